#include "timestructure/DayDial.h"

#include <string>

#include "discriminator/ColouredType.h"
#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "tools/Nodes.h"

namespace qv {
namespace {

constexpr Colour red = 0x0000FF;
constexpr Colour black = 0x000000;
constexpr std::uint8_t ringHasColour = 1;
constexpr int labelHeight = 14;

/// The colour of a slot's hour type. It is read as it stands: nothing folds its case.
Colour ColourOfSlot(const XmlNode& slot, const XmlNode* hourTypes) {
  const XmlNode* hour = HourTypeOfSlot(slot, hourTypes);
  return hour ? ColourAsStored(hour->Value(tag::Color)) : red;
}

void DrawLabel(Canvas& canvas, int i, Point rim, const std::wstring& label,
               const DialSurroundings& surroundings) {
  const int height = surroundings.density.Dots(labelHeight);
  const Extent extent = canvas.TextExtent(label, height);
  canvas.Text(LabelPlace(i, rim, extent), label, height, surroundings.ink);
}

}  // namespace

void DayDial::Setup(const std::uint8_t* map, int count) {
  ResetSlots();
  int start = -1;
  int end = -1;
  for (int i = 0; map && i < count; ++i) {
    if (map[i] == 0) {
      end = i;
      start = start < 0 ? i : start;
    } else if (map[i] == 1 && start >= 0) {
      m_slots.push_back({start, end + 1, red});
      start = -1;
    }
  }
  if (start >= 0) {
    // A run that is still open ends on its last minute, not behind it.
    m_slots.push_back({start, end, red});
  }
}

void DayDial::Setup(const XmlNode* day, const XmlNode* hourTypes) {
  ResetSlots();
  for (const XmlNode& slot : ChildrenWithTag(day, tag::Slot)) {
    m_slots.push_back({TimeOf(slot.Value(tag::From)).Minutes(),
                       TimeOf(slot.Value(tag::To)).Minutes(), ColourOfSlot(slot, hourTypes)});
  }
}

void DayDial::Paint(Canvas& canvas, int width, int height,
                    const DialSurroundings& surroundings) const {
  canvas.Fill({0, 0, width, height}, surroundings.ground);
  const DialHalves halves = HalvesOf(width, height, surroundings.density);
  DrawFace(canvas, halves.left, 0, OnLeftFace, surroundings);
  DrawFace(canvas, halves.right, hoursOfFace, OnRightFace, surroundings);
}

void DayDial::DrawFace(Canvas& canvas, const Rect& half, int firstHour, Sector sectorOf,
                       const DialSurroundings& surroundings) const {
  const Rect face = CalcViewport(half, surroundings.density);
  if (face.IsEmpty()) {
    return;
  }
  DrawExternCircle(canvas, face, firstHour, surroundings);
  if (DiscOf(face, surroundings.density).IsEmpty()) {
    return;
  }
  for (const STagSlot& slot : m_slots) {
    if (const auto minutes = sectorOf(slot)) {
      canvas.Polygon(CreatePolygon(*minutes, face, surroundings.density), slot.color, slot.color);
    }
  }
}

Colour DayDial::MarkInk(const DialSurroundings& surroundings) const {
  // A ring may be light on a dark ground, and the ink of the ground would vanish on it.
  const bool isOnRing = m_options & ringHasColour;
  return isOnRing && surroundings.ink != black ? InkOn(m_color) : surroundings.ink;
}

void DayDial::DrawExternCircle(Canvas& canvas, const Rect& face, int firstHour,
                               const DialSurroundings& surroundings) const {
  canvas.Rectangle(face, surroundings.ground, surroundings.ground);
  if (m_options & ringHasColour) {
    canvas.Ellipse(face, m_color, m_color);
  }
  for (int i = 0; i < hoursOfFace; ++i) {
    const HourMark mark = HourMarkOf(i, face);
    canvas.Line(mark.centre, mark.rim, MarkInk(surroundings));
    DrawLabel(canvas, i, mark.rim, std::to_wstring(firstHour + i), surroundings);
  }
  // Covers the marks but for their ends in the ring.
  canvas.Ellipse(DiscOf(face, surroundings.density), m_bkColor, m_bkColor);
}

}  // namespace qv
