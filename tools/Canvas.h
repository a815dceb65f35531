#pragma once

#include <span>
#include <string_view>

#include "tools/Colour.h"

namespace qv {

/// A place on a canvas: to the right and downwards from its upper left corner.
struct Point {
  int x = 0;
  int y = 0;

  friend bool operator==(const Point&, const Point&) = default;
};

/// The room that a text takes.
struct Extent {
  int cx = 0;
  int cy = 0;

  friend bool operator==(const Extent&, const Extent&) = default;
};

/// A rectangle whose right and bottom edges are not part of it.
struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  bool IsEmpty() const { return right <= left || bottom <= top; }
  friend bool operator==(const Rect&, const Rect&) = default;
};

/// Takes a picture as a short list of primitives, so that what is drawn can be computed and tested
/// without a window.
///
/// Units are the dots of the surface. Brushes are solid, outlines one dot wide and inside the
/// rectangle that they are given for; what is empty draws nothing.
class Canvas {
 public:
  Canvas() = default;
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  virtual ~Canvas() = default;

  /// A rectangle without an outline.
  virtual void Fill(const Rect& area, Colour brush) = 0;
  virtual void Rectangle(const Rect& area, Colour pen, Colour brush) = 0;
  virtual void Ellipse(const Rect& area, Colour pen, Colour brush) = 0;

  /// The closed polygon of these points, which belong to its outline; where it covers itself an
  /// even number of times it is not filled. Two points are a line with both its ends.
  virtual void Polygon(std::span<const Point> points, Colour pen, Colour brush) = 0;

  /// A line from `from` up to `to`, which is not drawn. On a dense surface it may be broader than
  /// a dot: to its right, or below it if it is rather level than steep.
  virtual void Line(Point from, Point to, Colour pen) = 0;

  /// A line of text in an upright sans-serif face whose ascent plus descent is `height`; `at` is
  /// the upper left corner of its extent. What lies behind it stays.
  virtual void Text(Point at, std::wstring_view text, int height, Colour colour) = 0;

  /// The room that `Text` takes.
  virtual Extent TextExtent(std::wstring_view text, int height) const = 0;
};

/// Black, or white if `ground` is dark: what text and marks are drawn with on it.
constexpr Colour InkOn(Colour ground) {
  // How light a colour looks, by the weights of television.
  const Colour lightness =
      299 * (ground & 0xFF) + 587 * (ground >> 8 & 0xFF) + 114 * (ground >> 16 & 0xFF);
  return lightness < 1000 * 0xFF / 2 ? 0xFFFFFF : 0x000000;
}

}  // namespace qv
