#include "timestructure/DialGeometry.h"

#include <algorithm>
#include <cmath>

namespace qv {
namespace {

constexpr double twoPi = 6.283185307179586;
constexpr double halfPi = 1.5707963267948966;
constexpr int margin = 14;
constexpr int halfOfGap = 7;
constexpr int ringBreadth = 8;

}  // namespace

DialHalves HalvesOf(int width, int height, Density density) {
  const int middle = width / 2;
  const int gap = density.Dots(halfOfGap);
  return {{0, 0, middle - gap, height}, {middle + gap, 0, width, height}};
}

Rect CalcViewport(const Rect& half, Density density) {
  const int room = density.Dots(margin);
  Rect face{half.left + room, room, half.right - room, half.Height() - room};
  const int width = face.Width();
  const int height = face.Height();
  if (width >= height) {
    face.left += (width - height) / 2;
    face.right = face.left + height;
  } else {
    face.top += (height - width) / 2;
    face.bottom = face.top + width;
  }
  return face;
}

Rect DiscOf(const Rect& face, Density density) {
  const int ring = density.Dots(ringBreadth);
  return {face.left + ring, face.top + ring, face.right - ring, face.bottom - ring};
}

HourMark HourMarkOf(int i, const Rect& face) {
  const double rx = face.Width() * 0.5;
  const double ry = face.Height() * 0.5;
  const double angle = halfPi - (i * twoPi) / hoursOfFace;
  const Point centre{face.left + static_cast<int>(rx), static_cast<int>(ry) + face.top};
  // Both reach out by the same radius: a face is square.
  return {centre,
          {static_cast<int>(std::cos(angle) * rx + face.left + rx),
           static_cast<int>((face.top + ry) - std::sin(angle) * rx)}};
}

Point LabelPlace(int i, Point rim, Extent extent) {
  const auto [cx, cy] = extent;
  switch (i) {
    case 0:
      return {rim.x - cx / 2, rim.y - cy};
    case 1:
    case 2:
      return {rim.x, rim.y - cy};
    case 3:
      return {rim.x + 1, rim.y - cy / 2};
    case 4:
    case 5:
      return rim;
    case 6:
      return {rim.x - cx / 2, rim.y};
    case 7:
    case 8:
      return {rim.x - cx, rim.y};
    case 9:
      return {rim.x - 1 - cx, rim.y - cy / 2};
    default:
      return {rim.x - cx, rim.y - cy};
  }
}

std::optional<FaceMinutes> OnLeftFace(const STagSlot& slot) {
  const auto part = DayPart(slot);
  if (!part || part->from >= minutesOfFace) {
    return std::nullopt;
  }
  return FaceMinutes{part->from, std::min(part->to, minutesOfFace)};
}

std::optional<FaceMinutes> OnRightFace(const STagSlot& slot) {
  const auto part = DayPart(slot);
  if (!part || part->to <= minutesOfFace) {
    return std::nullopt;
  }
  return FaceMinutes{std::max(part->from, minutesOfFace) - minutesOfFace, part->to - minutesOfFace};
}

std::vector<Point> CreatePolygon(FaceMinutes minutes, const Rect& face, Density density) {
  const double hw = face.Width() * 0.5;
  const double hh = face.Height() * 0.5;
  const double r = hw - density.Dots(ringBreadth);
  std::vector<Point> points;
  points.reserve(static_cast<std::size_t>(minutes.last - minutes.first) + 2);
  points.push_back({static_cast<int>(face.left + hw), static_cast<int>(face.top + hh)});
  for (int m = minutes.first; m <= minutes.last; ++m) {
    const double angle = halfPi - (m * twoPi) / minutesOfFace;
    points.push_back({static_cast<int>(std::cos(angle) * r + face.left + hw),
                      static_cast<int>((face.top + hh) - std::sin(angle) * r)});
  }
  return points;
}

}  // namespace qv
