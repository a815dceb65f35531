#include "apps/qvdisc/SlotText.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "discriminator/DayMinutes.h"
#include "tools/Utf8.h"

namespace qvdisc {
namespace {

constexpr int lastMinute = qv::minutesOfHour - 1;

bool Take(std::string_view& rest, char letter) {
  const bool isThere = rest.starts_with(letter);
  rest.remove_prefix(isThere ? 1 : 0);
  return isThere;
}

/// A number of as many digits as a field takes, and of at least `least`.
std::optional<int> TakeNumber(std::string_view& rest, std::size_t least) {
  constexpr std::size_t most = 2;
  const std::size_t digits = std::min(rest.find_first_not_of("0123456789"), rest.size());
  if (digits < least || digits > most) {
    return std::nullopt;
  }
  const int number = std::stoi(std::string(rest.substr(0, digits)));
  rest.remove_prefix(digits);
  return number;
}

std::optional<qv::TimeOfDay> TakeTime(std::string_view& rest) {
  const auto hours = TakeNumber(rest, 1);
  const auto minutes = hours && Take(rest, ':') ? TakeNumber(rest, 2) : std::nullopt;
  return minutes ? std::optional(qv::TimeOfDay{*hours, *minutes}) : std::nullopt;
}

std::string OutOfRange(const char* what, int last, const std::string& text) {
  return std::string(what) + " are 0 to " + std::to_string(last) + ": " + text;
}

}  // namespace

std::variant<CalledSlot, std::string> ReadSlot(const std::string& text) {
  std::string_view rest = text;
  const auto from = TakeTime(rest);
  const auto to = from && Take(rest, '-') ? TakeTime(rest) : std::nullopt;
  const std::size_t name = rest.find_first_not_of(' ');
  if (!to || name == 0 || name == std::string_view::npos) {
    return "A slot is written as 08:00-12:00 NAME: " + text;
  }
  if (std::max(from->hours, to->hours) > qv::hoursOfDay) {
    return OutOfRange("Hours", qv::hoursOfDay, text);
  }
  if (std::max(from->minutes, to->minutes) > lastMinute) {
    return OutOfRange("Minutes", lastMinute, text);
  }
  return CalledSlot{*from, *to, qv::FromUtf8(std::string(rest.substr(name)))};
}

}  // namespace qvdisc
