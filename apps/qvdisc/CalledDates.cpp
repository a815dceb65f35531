#include "apps/qvdisc/CalledDates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>

#include "apps/qvdisc/DateRanges.h"

namespace qvdisc {
namespace {

using qv::CalendarDate;
using Years = std::numeric_limits<std::int16_t>;

bool Take(std::string_view& rest, std::string_view start) {
  const bool isThere = rest.starts_with(start);
  rest.remove_prefix(isThere ? start.size() : 0);
  return isThere;
}

/// A number of `least` to `most` digits; one that no `int` holds is the greatest that does.
std::optional<int> TakeNumber(std::string_view& rest, std::size_t least, std::size_t most) {
  const std::size_t digits = std::min(rest.find_first_not_of("0123456789"), rest.size());
  if (digits < least || digits > most) {
    return std::nullopt;
  }
  int number = std::numeric_limits<int>::max();
  std::from_chars(rest.data(), rest.data() + digits, number);
  rest.remove_prefix(digits);
  return number;
}

std::optional<int> TakeYear(std::string_view& rest) {
  // With fewer digits it would rather be a year of the century, or a day.
  constexpr std::size_t leastDigits = 4;
  const bool isNegative = Take(rest, "-");
  const auto number = TakeNumber(rest, leastDigits, std::string_view::npos);
  return number ? std::optional(isNegative ? -*number : *number) : std::nullopt;
}

bool IsYear(int year) { return year >= Years::min() && year <= Years::max(); }

std::string NoYear(const std::string& text) {
  return "Years are " + std::to_string(Years::min()) + " to " + std::to_string(Years::max()) +
         ": " + text;
}

std::optional<CalendarDate> TakeDate(std::string_view& rest) {
  constexpr std::size_t digits = 2;
  const auto year = TakeYear(rest);
  const auto month = year && Take(rest, "-") ? TakeNumber(rest, digits, digits) : std::nullopt;
  const auto day = month && Take(rest, "-") ? TakeNumber(rest, digits, digits) : std::nullopt;
  return day ? std::optional(CalendarDate{*year, *month, *day}) : std::nullopt;
}

/// A date, or two with dots between them; one is the start and the end of itself.
std::optional<DateRange> ReadRange(std::string_view text) {
  const auto from = TakeDate(text);
  const auto to = from && Take(text, "..") ? TakeDate(text) : from;
  return to && text.empty() ? std::optional(DateRange{*from, *to}) : std::nullopt;
}

/// What is wrong with a range of the right form; empty if nothing is.
std::string FaultOf(const DateRange& range, const std::string& text) {
  for (const CalendarDate date : {range.from, range.to}) {
    if (!IsYear(date.year)) {
      return NoYear(text);
    }
    if (!ToDateTime(date).Valid()) {
      return "There is no such date: " + text;
    }
  }
  if (range.to < range.from) {
    return "A range starts with its earlier date: " + text;
  }
  return range.to.year - range.from.year >= mostYearsOfRange
             ? "A range covers at most " + std::to_string(mostYearsOfRange) + " years: " + text
             : std::string();
}

/// The place of a text in a list, or nothing.
using PlaceOf = std::optional<int> (*)(std::string_view text);

std::optional<int> PlaceOfWeekday(std::string_view text) {
  constexpr std::array<std::string_view, 7> days = {"mon", "tue", "wed", "thu",
                                                    "fri", "sat", "sun"};
  const auto day = std::find(days.begin(), days.end(), text);
  return day == days.end() ? std::nullopt : std::optional(static_cast<int>(day - days.begin()));
}

std::optional<int> PlaceOfMonth(std::string_view text) {
  constexpr int lastMonth = 12;
  const auto month = TakeNumber(text, 1, 2);
  const bool isMonth = month && text.empty() && *month >= 1 && *month <= lastMonth;
  return isMonth ? std::optional(*month - 1) : std::nullopt;
}

/// The bits of one item of a list, as "mon" or "mon-fri"; none if it can't be read.
std::uint32_t BitsOfItem(std::string_view item, PlaceOf placeOf) {
  const std::size_t dash = item.find('-');
  const auto first = placeOf(item.substr(0, dash));
  const auto last = dash == std::string_view::npos ? first : placeOf(item.substr(dash + 1));
  std::uint32_t bits = 0;
  for (int place = first.value_or(0); first && last && place <= *last; ++place) {
    bits |= 1U << place;
  }
  return bits;
}

std::variant<std::uint32_t, std::string> ReadList(const std::string& text, PlaceOf placeOf,
                                                  const char* form) {
  std::uint32_t all = 0;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find(',', start), text.size());
    const auto bits = BitsOfItem(std::string_view(text).substr(start, end - start), placeOf);
    if (bits == 0) {
      return form + text;
    }
    all |= bits;
    start = end + 1;
  }
  return all;
}

}  // namespace

std::variant<std::vector<CalendarDate>, std::string> ReadDates(const std::string& text) {
  const auto range = ReadRange(text);
  if (!range) {
    return "Dates are written as 2026-01-06 or 2026-01-01..2026-01-06: " + text;
  }
  if (std::string fault = FaultOf(*range, text); !fault.empty()) {
    return fault;
  }
  return DatesOf(*range);
}

std::variant<int, std::string> ReadYear(const std::string& text) {
  std::string_view rest = text;
  const auto year = TakeYear(rest);
  if (!year || !rest.empty()) {
    return "A year is written with four digits or more: " + text;
  }
  if (!IsYear(*year)) {
    return NoYear(text);
  }
  return *year;
}

std::variant<std::uint32_t, std::string> ReadWeekdays(const std::string& text) {
  return ReadList(text, PlaceOfWeekday, "Weekdays are written as mon,wed-fri: ");
}

std::variant<std::uint32_t, std::string> ReadMonths(const std::string& text) {
  return ReadList(text, PlaceOfMonth, "Months are written as 1,7-8: ");
}

}  // namespace qvdisc
