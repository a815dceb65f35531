#include "timestructure/TimeGrid.h"

#include <algorithm>
#include <array>
#include <string>

#include "tools/Numbers.h"

namespace qv {
namespace {

constexpr int quartersOfHour = 4;

/// The title of the box stands in this height, for the painted area and for the mouse alike.
constexpr int headerHeight = 19;
/// The labels of the hours, and the row that the mouse leaves to them.
constexpr int labelHeight = 12;

constexpr int margin = 6;
constexpr Colour grey = 0x808080;
constexpr Colour black = 0x000000;

/// The lines lie on the day's colour, where the ink of dark surroundings may vanish.
Colour LineInk(const TimeGrid::Picture& picture) {
  return picture.ink == black ? black : InkOn(picture.dayColour);
}

}  // namespace

/// The grid on its surface, in dots, once the height of the labels is known.
struct TimeGrid::Cells {
  Rect area;  ///< of labels and cells
  int top;    ///< of the cells
  double column;
  double row;
  double band;

  double X(int hour) const { return hour * column + area.left; }
  double Y(int minute) const { return minute * row + top; }
};

Rect TimeGrid::PaintedArea() const { return {2, headerHeight, m_width - 3, m_height - 3}; }

Rect TimeGrid::HitArea() const {
  return {8, labelHeight + headerHeight, m_width - 9, m_height - 9};
}

/// The painted area in its own coordinates.
Rect TimeGrid::Surface(Density density) const {
  const Rect painted = PaintedArea();
  return {0, 0, density.Dots(painted.Width()), density.Dots(painted.Height())};
}

TimeGrid::Cells TimeGrid::CellsOf(int labels, Density density) const {
  const Rect surface = Surface(density);
  const int room = density.Dots(margin);
  const Rect area{room, 0, surface.right - room, surface.bottom - room};
  const int height = area.Height() - labels;
  return {area, area.top + labels, area.Width() / static_cast<double>(hoursOfDay),
          height / static_cast<double>(minutesOfHour), height * 0.25};
}

int TimeGrid::DrawBackground(Canvas& canvas, const Picture& picture, Density density) const {
  canvas.Rectangle(Surface(density), picture.ground, picture.ground);
  const Cells cells = CellsOf(0, density);
  const int letters = density.Dots(labelHeight);
  int height = 0;
  for (const int hour : {0, 6, 12, 18, 23}) {
    const std::wstring label = std::to_wstring(hour);
    const Extent extent = canvas.TextExtent(label, letters);
    const double x = (cells.column - extent.cx) * 0.5 + cells.X(hour);
    canvas.Text({static_cast<int>(x), cells.area.top}, label, letters, picture.ink);
    height = extent.cy;
  }
  canvas.Rectangle({cells.area.left, height, cells.area.right, cells.area.bottom},
                   picture.dayColour, picture.dayColour);
  return height;
}

void TimeGrid::Paint(Canvas& canvas, const Picture& picture, Density density) const {
  const Cells cells = CellsOf(DrawBackground(canvas, picture, density), density);
  if (picture.selection) {
    for (int minute = picture.selection->from; minute < picture.selection->to; ++minute) {
      const double x = cells.X(minute / minutesOfHour);
      const double y = cells.Y(minute % minutesOfHour);
      canvas.Rectangle({static_cast<int>(x), static_cast<int>(y), roundi(x + cells.column),
                        roundi(y + cells.row)},
                       picture.selectionColour, picture.selectionColour);
    }
  }
  DrawLines(canvas, cells, LineInk(picture), density.LineBreadth());
}

void TimeGrid::DrawLines(Canvas& canvas, const Cells& cells, Colour ink, int breadth) {
  const int right = cells.area.right + breadth;
  const int bottom = cells.area.bottom + breadth;
  for (int hour = 0; hour <= hoursOfDay; ++hour) {
    const int x = static_cast<int>(cells.X(hour));
    canvas.Line({x, cells.top}, {x, cells.area.bottom}, ink);
  }
  for (int band = 0; band <= quartersOfHour; ++band) {
    const int y = static_cast<int>(band * cells.band + cells.top);
    canvas.Line({cells.area.left, y}, {right, y}, ink);
  }
  canvas.Line({right, cells.top + breadth}, {right, bottom}, grey);
  canvas.Line({cells.area.left + breadth, bottom}, {right, bottom}, grey);
}

std::optional<int> TimeGrid::MinuteAt(Point place) const {
  const Rect hit = HitArea();
  const bool isInside = place.x >= hit.left && place.x <= hit.right && place.y >= hit.top &&
                        place.y <= hit.bottom && !hit.IsEmpty();
  if (!isInside) {
    return std::nullopt;
  }
  const int x = std::min(place.x - hit.left, hit.Width() - 1);
  const int y = std::min(place.y - hit.top, hit.Height() - 1);
  const int column = static_cast<int>(x / (hit.Width() / static_cast<double>(hoursOfDay)));
  const int row = static_cast<int>(y / (hit.Height() * 0.25));
  return (row + quartersOfHour * column) * minutesOfQuarter;
}

}  // namespace qv
