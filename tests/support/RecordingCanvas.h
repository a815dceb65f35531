#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "tools/Canvas.h"
#include "tools/Utf8.h"

namespace qv {

/// Keeps what is drawn as lines of text, such as "line 46,49 46,17 pen 000000", with colours as
/// "%06X" of their numbers. Its letters are 7 pixels wide.
class RecordingCanvas : public Canvas {
 public:
  static constexpr int letterWidth = 7;

  std::vector<std::string> lines;
  /// The points of each polygon, in order.
  std::vector<std::vector<Point>> polygons;

  void Fill(const Rect& area, Colour brush) override {
    lines.push_back("fill " + Words(area) + " brush " + Words(brush));
  }
  void Rectangle(const Rect& area, Colour pen, Colour brush) override {
    lines.push_back("rectangle " + Words(area) + Words(pen, brush));
  }
  void Ellipse(const Rect& area, Colour pen, Colour brush) override {
    lines.push_back("ellipse " + Words(area) + Words(pen, brush));
  }
  void Polygon(std::span<const Point> points, Colour pen, Colour brush) override {
    std::string line = "polygon" + Words(pen, brush) + " points";
    for (const Point point : points) {
      line += " " + Words(point);
    }
    lines.push_back(line);
    polygons.emplace_back(points.begin(), points.end());
  }
  void Line(Point from, Point to, Colour pen) override {
    lines.push_back("line " + Words(from) + " " + Words(to) + " pen " + Words(pen));
  }
  void Text(Point at, std::wstring_view text, int height, Colour colour) override {
    lines.push_back("text " + Words(at) + " \"" + ToUtf8(text).value_or("") + "\" height " +
                    std::to_string(height) + " colour " + Words(colour));
  }
  Extent TextExtent(std::wstring_view text, int height) const override {
    return {letterWidth * static_cast<int>(text.size()), height};
  }

 private:
  static std::string Words(Point point) {
    return std::to_string(point.x) + "," + std::to_string(point.y);
  }
  static std::string Words(const Rect& area) {
    return Words(Point{area.left, area.top}) + " " + Words(Point{area.right, area.bottom});
  }
  static std::string Words(Colour colour) {
    char digits[sizeof "FFFFFFFF"];
    std::snprintf(digits, sizeof digits, "%06X", colour);
    return digits;
  }
  static std::string Words(Colour pen, Colour brush) {
    return " pen " + Words(pen) + " brush " + Words(brush);
  }
};

}  // namespace qv
