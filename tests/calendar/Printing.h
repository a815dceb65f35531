#pragma once

#include <ostream>

#include "calendar/CalendarDate.h"

namespace qv {

inline void PrintTo(const CalendarDate& date, std::ostream* stream) {
  *stream << date.year << '-' << date.month << '-' << date.day;
}

}  // namespace qv
