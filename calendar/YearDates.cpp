#include "calendar/YearDates.h"

#include <algorithm>
#include <chrono>

#include "calendar/Weeks.h"

namespace qv {
namespace {

using std::chrono::sys_days;

sys_days DaysOf(CalendarDate date) { return std::chrono::year(date.year) / date.month / date.day; }

CalendarDate DateOf(sys_days days) {
  const std::chrono::year_month_day date(days);
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day()))};
}

}  // namespace

CalendarDate DaysAfter(CalendarDate date, int days) {
  return DateOf(DaysOf(date) + std::chrono::days(days));
}

int DaysFromTo(CalendarDate from, CalendarDate to) {
  return static_cast<int>((DaysOf(to) - DaysOf(from)).count());
}

CalendarDate MonthsAfter(CalendarDate date, int months) {
  const int all = date.year * 12 + date.month - 1 + months;
  const int month = (all % 12 + 12) % 12;
  CalendarDate result{(all - month) / 12, month + 1, 1};
  result.day = std::min(date.day, DaysOfMonth(ToDateTime(result)));
  return result;
}

std::vector<CalendarDate> DatesBetween(CalendarDate one, CalendarDate other) {
  const auto [first, last] = std::minmax({DaysOf(one), DaysOf(other)});
  std::vector<CalendarDate> dates;
  for (sys_days day = first; day <= last; day += std::chrono::days(1)) {
    dates.push_back(DateOf(day));
  }
  return dates;
}

std::vector<CalendarDate> BlockBetween(CalendarDate one, CalendarDate other) {
  const auto [first, last] = std::minmax({WeekdayOf(one), WeekdayOf(other)});
  const auto [from, to] = std::minmax({MondayOf(one), MondayOf(other)});
  const auto [firstYear, lastYear] = std::minmax({one.year, other.year});
  std::vector<CalendarDate> dates;
  for (CalendarDate monday = from; monday <= to; monday = DaysAfter(monday, daysOfWeek)) {
    for (int weekday = first; weekday <= last; ++weekday) {
      const CalendarDate date = DaysAfter(monday, weekday);
      if (date.year >= firstYear && date.year <= lastYear) {
        dates.push_back(date);
      }
    }
  }
  return dates;
}

CalendarDate MondayOf(CalendarDate date) { return DaysAfter(date, -WeekdayOf(date)); }

std::vector<CalendarDate> DatesOfWeek(CalendarDate date) {
  const CalendarDate monday = MondayOf(date);
  return DatesBetween(monday, DaysAfter(monday, daysOfWeek - 1));
}

std::vector<CalendarDate> DatesOfMonth(int year, int month) {
  const CalendarDate first{year, month, 1};
  return DatesBetween(first, {year, month, DaysOfMonth(ToDateTime(first))});
}

std::vector<CalendarDate> DatesOfYear(int year) {
  return DatesBetween({year, 1, 1}, {year, 12, 31});
}

std::vector<CalendarDate> DatesOfWeekday(int year, int month, int weekday) {
  std::vector<CalendarDate> dates = DatesOfMonth(year, month);
  std::erase_if(dates, [&](CalendarDate date) { return WeekdayOf(date) != weekday; });
  return dates;
}

}  // namespace qv
