#pragma once

#include <optional>
#include <vector>

namespace qv {

/// A simulated value over a day: straight lines between points, the last of which leads through
/// midnight to the first. One point is a constant; without points there is no value.
class DailyCurve {
 public:
  struct Point {
    int minute = 0;  ///< of the day, from 00:00
    double value = 0;

    friend bool operator==(const Point&, const Point&) = default;
  };

  DailyCurve() = default;
  /// Points in any order. Of two at one minute the first counts; those outside the day and those
  /// whose value is no finite number are left out.
  explicit DailyCurve(const std::vector<Point>& points);

  /// The value at this minute of the day, which may be any number and wraps around.
  std::optional<double> At(int minuteOfDay) const;

  friend bool operator==(const DailyCurve&, const DailyCurve&) = default;

 private:
  std::vector<Point> m_points;
};

}  // namespace qv
