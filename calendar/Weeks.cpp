#include "calendar/Weeks.h"

namespace qv {
namespace {

constexpr int thursday = 3;

bool IsLeapYear(int year) { return DaysIn(year, 2) == 29; }

int DayOfYear(CalendarDate date) {
  int day = date.day;
  for (int month = 1; month < date.month; ++month) {
    day += DaysIn(date.year, month);
  }
  return day;
}

/// 52, or 53 if the year begins or ends with a Thursday.
int WeeksOf(int year, int firstWeekday) {
  const int lastWeekday = (firstWeekday + (IsLeapYear(year) ? 1 : 0)) % daysOfWeek;
  return firstWeekday == thursday || lastWeekday == thursday ? 53 : 52;
}

}  // namespace

int WeekdayOf(CalendarDate date) {
  constexpr int monday = 2;
  return (ToDateTime(date).DayOfWeek() + daysOfWeek - monday) % daysOfWeek;
}

int WeekNumberOf(CalendarDate date) {
  const int first = WeekdayOf({date.year, 1, 1});
  const int thursdayOfWeek = DayOfYear(date) + thursday - WeekdayOf(date);
  if (thursdayOfWeek < 1) {
    const int before = date.year - 1;
    // Years before are not asked for their weekdays: the first year of all has none before it.
    const int firstBefore = (first + daysOfWeek - (IsLeapYear(before) ? 2 : 1)) % daysOfWeek;
    return WeeksOf(before, firstBefore);
  }
  const int week = (thursdayOfWeek - 1) / daysOfWeek + 1;
  return week > WeeksOf(date.year, first) ? 1 : week;
}

}  // namespace qv
