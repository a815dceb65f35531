#pragma once

#include <array>

#include "host/Text.h"

namespace qv {

/// The names of the months, in their order.
inline constexpr std::array monthTexts = {
    Text::January, Text::February, Text::March,     Text::April,   Text::May,      Text::June,
    Text::July,    Text::August,   Text::September, Text::October, Text::November, Text::December};

/// The short names of the weekdays, from Monday on, for the heads of the calendar.
inline constexpr std::array weekdayHeadTexts = {
    Text::CalendarMonday, Text::CalendarTuesday,  Text::CalendarWednesday, Text::CalendarThursday,
    Text::CalendarFriday, Text::CalendarSaturday, Text::CalendarSunday};

/// Their whole names, from Monday on.
inline constexpr std::array weekdayTexts = {Text::Monday,   Text::Tuesday, Text::Wednesday,
                                            Text::Thursday, Text::Friday,  Text::Saturday,
                                            Text::Sunday};

}  // namespace qv
