#pragma once

#include <compare>

#include "tools/QVDateTime.h"

namespace qv {

inline constexpr int monthsOfYear = 12;
inline constexpr int daysOfWeek = 7;
inline constexpr int saturday = 5;  ///< of weekdays that count from 0 for Monday

/// A date of the calendar as a key: it sorts by time. Month and day count from 1.
struct CalendarDate {
  int year = 0;
  int month = 0;
  int day = 0;

  // NOLINTNEXTLINE(modernize-use-nullptr): a defaulted comparison, in which no pointer stands
  friend auto operator<=>(const CalendarDate&, const CalendarDate&) = default;
};

inline CalendarDate KeyOf(const QVDateTime& date) {
  return {date.Year(), date.Month(), date.Day()};
}

/// At midnight.
inline QVDateTime ToDateTime(CalendarDate date) {
  return {date.year, date.month, date.day, 0, 0, 0, 0, 0};
}

/// Days in a month, counted from 1, of any year.
inline int DaysIn(int year, int month) { return DaysOfMonth(ToDateTime({year, month, 1})); }

}  // namespace qv
