#pragma once

namespace qv {

inline constexpr int hoursOfDay = 24;
inline constexpr int minutesOfHour = 60;
inline constexpr int minutesOfDay = hoursOfDay * minutesOfHour;
/// The step in which a mouse selects times.
inline constexpr int minutesOfQuarter = 15;

/// Minutes of a day, counted from 00:00, the end exclusive.
struct MinuteRange {
  int from = 0;
  int to = 0;

  int Length() const { return to - from; }
  /// Whether both have a minute in common; ranges that touch have none, and one of no length
  /// overlaps what it lies inside of.
  bool Overlaps(const MinuteRange& other) const { return from < other.to && to > other.from; }
  friend bool operator==(const MinuteRange&, const MinuteRange&) = default;
};

}  // namespace qv
