#pragma once

#include <vector>

#include "calendar/YearGeometry.h"

namespace qv {

/// The dates of `year` that a place of it stands for: a date itself, a month by its name, a weekday
/// of a month by its head, a week by its number, which may reach into other months of the year.
std::vector<CalendarDate> DatesOfPlace(const YearPlace& place, int year);

}  // namespace qv
