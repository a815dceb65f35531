#pragma once

#include <optional>

#include "discriminator/DayMinutes.h"
#include "tools/Canvas.h"
#include "tools/Density.h"

namespace qv {

/// A day as a grid inside a group box: a column for each hour, sixty rows for its minutes, ruled in
/// quarters. All of it is arithmetic on the size of the box.
class TimeGrid {
 public:
  /// What is drawn, and in which colours.
  struct Picture {
    Colour dayColour = 0xFFFFFF;  ///< ground of the grid
    std::optional<MinuteRange> selection{};
    Colour selectionColour = 0;
    Colour ground = 0xF0F0F0;  ///< around the grid
    /// Of labels: black, or white on a dark ground. Lines are black too on a light ground, and on a
    /// dark one in the ink that is legible on the day's colour.
    Colour ink = 0;

    friend bool operator==(const Picture&, const Picture&) = default;
  };

  /// The size of the group box, in pixels.
  TimeGrid(int width, int height) : m_width(width), m_height(height) {}

  /// What is painted, in the coordinates of the box. Its own coordinates begin at its corner.
  Rect PaintedArea() const;

  /// Paints all of that area, on a canvas of so many dots to the pixel.
  void Paint(Canvas& canvas, const Picture& picture, Density density = {}) const;

  /// The start of the quarter at this place of the box (0 to 1425); nothing outside the grid. The
  /// right and the bottom edge belong to the last column and row.
  std::optional<int> MinuteAt(Point place) const;

 private:
  struct Cells;

  Rect HitArea() const;
  Rect Surface(Density density) const;
  Cells CellsOf(int labels, Density density) const;
  int DrawBackground(Canvas& canvas, const Picture& picture, Density density) const;
  static void DrawLines(Canvas& canvas, const Cells& cells, Colour ink, int breadth);

  int m_width;
  int m_height;
};

}  // namespace qv
