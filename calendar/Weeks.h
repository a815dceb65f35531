#pragma once

#include "calendar/CalendarDate.h"

namespace qv {

/// 0 for Monday to 6 for Sunday, of a date that is `Valid`.
int WeekdayOf(CalendarDate date);

/// The number of the week that holds a date, 1 to 53, as ISO 8601 counts: weeks begin on Monday,
/// and the first one is that of the year's first Thursday. So the last days of December may be in
/// week 1, and the first ones of January in week 52 or 53.
int WeekNumberOf(CalendarDate date);

}  // namespace qv
