#pragma once

#include <cstdint>
#include <vector>

#include "timestructure/DialGeometry.h"
#include "timestructure/STagSlot.h"
#include "tools/Canvas.h"
#include "tools/XmlNode.h"

namespace qv {

/// The surroundings in which a dial is drawn.
struct DialSurroundings {
  Colour ground = 0xF0F0F0;
  Colour ink = 0x000000;  ///< of labels and marks: black, or white on a dark ground
  Density density{};      ///< of the screen
};

/// One day as two clock faces, the left for 00:00 to 12:00 and the right for 12:00 to 24:00, in
/// which the slots of the day are sectors.
class DayDial {
 public:
  /// Discs show in this colour what of the day no slot covers; green (0x00FF00) at first.
  void SetBkColor(Colour color) { m_bkColor = color; }
  /// Rings around the discs show this colour, white at first, while bit 0 of the options is set.
  void SetColor(Colour color) { m_color = color; }
  /// Sets the options, 0 at first. Bit 0: the rings have their colour; else that of the ground. The
  /// other bits mean nothing.
  void Setup(std::uint8_t options) { m_options = options; }

  /// Takes the slots from `count` bytes, one for each minute from 00:00: 0 is part of a slot, 1
  /// ends it, any other byte is passed over. All slots are red. A slot that no byte 1 ends is one
  /// minute shorter than its bytes. None if `map` is null or `count` below 1; what lies behind
  /// 24:00 is kept and not drawn.
  void Setup(const std::uint8_t* map, int count);

  /// Takes the slots of a day type, in the order of the document, with the colours of their hour
  /// types; red where there is none or `hourTypes` is null. None if `day` is null. Times may be any
  /// text. Neither node is kept.
  void Setup(const XmlNode* day, const XmlNode* hourTypes);

  /// The slots in the order in which they were read and are drawn, neither sorted nor clipped.
  const std::vector<STagSlot>& Slots() const { return m_slots; }

  /// Draws the dial into a canvas of this size in dots, all of which it covers. A later slot covers
  /// an earlier one. Where there is no room for a face none is drawn, and in a face that is all
  /// ring no slot. In dark surroundings the marks on a light ring are black.
  void Paint(Canvas& canvas, int width, int height, const DialSurroundings& surroundings) const;

 private:
  using Sector = std::optional<FaceMinutes> (*)(const STagSlot&);

  void ResetSlots() { m_slots.clear(); }
  Colour MarkInk(const DialSurroundings& surroundings) const;
  void DrawFace(Canvas& canvas, const Rect& half, int firstHour, Sector sectorOf,
                const DialSurroundings& surroundings) const;
  void DrawExternCircle(Canvas& canvas, const Rect& face, int firstHour,
                        const DialSurroundings& surroundings) const;

  Colour m_bkColor = 0x00FF00;
  Colour m_color = 0xFFFFFF;
  std::uint8_t m_options = 0;
  std::vector<STagSlot> m_slots;
};

}  // namespace qv
