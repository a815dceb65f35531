#include "timestructure/DialHit.h"

#include <algorithm>
#include <cmath>

#include "timestructure/DialGeometry.h"

namespace qv {
namespace {

constexpr double twoPi = 6.283185307179586;

/// The minute of the face (0 to 719) at this place, if that lies in its disc.
std::optional<int> MinuteOfFace(Point place, const Rect& half) {
  const Rect disc = DiscOf(CalcViewport(half));
  if (disc.IsEmpty()) {
    return std::nullopt;
  }
  const double radius = disc.Width() * 0.5;
  const double right = place.x + 0.5 - (disc.left + radius);
  const double up = disc.top + radius - (place.y + 0.5);
  if (std::hypot(right, up) > radius) {
    return std::nullopt;
  }
  // Clockwise from the top, as hands go.
  const double turn = std::atan2(right, up) / twoPi;
  const int minute = static_cast<int>(std::floor((turn < 0 ? turn + 1 : turn) * minutesOfFace));
  return std::min(minute, minutesOfFace - 1);
}

}  // namespace

std::optional<int> MinuteAt(Point place, int width, int height) {
  const DialHalves halves = HalvesOf(width, height);
  if (const auto morning = MinuteOfFace(place, halves.left)) {
    return morning;
  }
  const auto afternoon = MinuteOfFace(place, halves.right);
  return afternoon ? std::optional(minutesOfFace + *afternoon) : std::nullopt;
}

std::optional<std::size_t> SlotAt(int minute, const std::vector<STagSlot>& slots) {
  const auto last = std::find_if(slots.rbegin(), slots.rend(), [minute](const STagSlot& slot) {
    return slot.from <= minute && minute < slot.to;
  });
  return last == slots.rend() ? std::nullopt : std::optional<std::size_t>(slots.rend() - last - 1);
}

}  // namespace qv
