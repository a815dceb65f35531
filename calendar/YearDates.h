#pragma once

#include <vector>

#include "calendar/CalendarDate.h"

namespace qv {

/// The date so many days later, or earlier if `days` is negative. It may lie beyond the years that
/// are `Valid`.
CalendarDate DaysAfter(CalendarDate date, int days);

/// How many days the second date is after the first; negative if it is before.
int DaysFromTo(CalendarDate from, CalendarDate to);

/// The same day so many months later or earlier, or the last of a month that is shorter.
CalendarDate MonthsAfter(CalendarDate date, int months);

/// The dates from one to the other, both included, in order; either may be the earlier one.
std::vector<CalendarDate> DatesBetween(CalendarDate one, CalendarDate other);

/// The dates of a block, whose corners are two dates: in each week from that of one to that of the
/// other, those weekdays that lie from the weekday of one to that of the other. Dates of a year
/// that is neither of theirs nor between, as at the turn of a year, are left out.
std::vector<CalendarDate> BlockBetween(CalendarDate one, CalendarDate other);

/// The Monday of the date's week.
CalendarDate MondayOf(CalendarDate date);
/// From that Monday to the Sunday, also where they belong to two years.
std::vector<CalendarDate> DatesOfWeek(CalendarDate date);
std::vector<CalendarDate> DatesOfMonth(int year, int month);
std::vector<CalendarDate> DatesOfYear(int year);
/// Those dates of a month that fall on a weekday, 0 for Monday.
std::vector<CalendarDate> DatesOfWeekday(int year, int month, int weekday);

}  // namespace qv
