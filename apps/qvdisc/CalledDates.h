#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "calendar/CalendarDate.h"

/// Dates as a call writes them. What can't be read gives the reason in words.
namespace qvdisc {

/// The years that a range may cover, so that a slip of the hand doesn't fill the disk.
inline constexpr int mostYearsOfRange = 1000;

/// Reads a date, "2026-01-06", or all those of a range, "2026-01-01..2026-01-06", whose ends are
/// both in it. A year has four digits or more and fits into 16 bits.
std::variant<std::vector<qv::CalendarDate>, std::string> ReadDates(const std::string& text);

/// Reads a year, in the same form.
std::variant<int, std::string> ReadYear(const std::string& text);

/// Reads weekdays, "mon,wed-fri": bit 0 for Monday to bit 6 for Sunday.
std::variant<std::uint32_t, std::string> ReadWeekdays(const std::string& text);

/// Reads months, "1,7-8": bit 0 for January to bit 11 for December.
std::variant<std::uint32_t, std::string> ReadMonths(const std::string& text);

}  // namespace qvdisc
