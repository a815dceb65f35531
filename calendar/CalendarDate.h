#pragma once

#include <compare>

#include "tools/QVDateTime.h"

namespace qv {

/// A date of the calendar as a key: it sorts by time. Month and day count from 1.
struct CalendarDate {
  int year = 0;
  int month = 0;
  int day = 0;

  // NOLINTNEXTLINE(modernize-use-nullptr): what the comparison is made of isn't written here
  friend auto operator<=>(const CalendarDate&, const CalendarDate&) = default;
};

inline CalendarDate KeyOf(const QVDateTime& date) {
  return {date.Year(), date.Month(), date.Day()};
}

/// At midnight.
inline QVDateTime ToDateTime(CalendarDate date) {
  return {date.year, date.month, date.day, 0, 0, 0, 0, 0};
}

}  // namespace qv
