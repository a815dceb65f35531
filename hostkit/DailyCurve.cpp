#include "hostkit/DailyCurve.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "discriminator/DayMinutes.h"

namespace qv {
namespace {

/// The minutes from one minute of the day to the next time that it is the other.
int MinutesUntil(int from, int to) { return (to - from + minutesOfDay) % minutesOfDay; }

}  // namespace

DailyCurve::DailyCurve(const std::vector<Point>& points) {
  std::copy_if(points.begin(), points.end(), std::back_inserter(m_points), [](const Point& point) {
    return point.minute >= 0 && point.minute < minutesOfDay && std::isfinite(point.value);
  });
  std::stable_sort(m_points.begin(), m_points.end(),
                   [](const Point& a, const Point& b) { return a.minute < b.minute; });
  const auto doubled =
      std::unique(m_points.begin(), m_points.end(),
                  [](const Point& a, const Point& b) { return a.minute == b.minute; });
  m_points.erase(doubled, m_points.end());
}

std::optional<double> DailyCurve::At(int minuteOfDay) const {
  if (m_points.empty()) {
    return std::nullopt;
  }
  const int minute = MinutesUntil(0, minuteOfDay % minutesOfDay);
  const auto next = std::find_if(m_points.begin(), m_points.end(),
                                 [minute](const Point& point) { return point.minute > minute; });
  const Point& from = next == m_points.begin() ? m_points.back() : *std::prev(next);
  const Point& to = next == m_points.end() ? m_points.front() : *next;
  const int length = MinutesUntil(from.minute, to.minute);
  return length == 0
             ? from.value
             : std::lerp(from.value, to.value, double(MinutesUntil(from.minute, minute)) / length);
}

}  // namespace qv
