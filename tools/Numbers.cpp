#include "tools/Numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

std::optional<std::uint32_t> HexadecimalDigit(wchar_t character) {
  if (character >= L'0' && character <= L'9') {
    return static_cast<std::uint32_t>(character - L'0');
  }
  if (character >= L'A' && character <= L'F') {
    return static_cast<std::uint32_t>(character - L'A' + 10);
  }
  if (character >= L'a' && character <= L'f') {
    return static_cast<std::uint32_t>(character - L'a' + 10);
  }
  return std::nullopt;
}

}  // namespace

std::int32_t HtoL(const wchar_t* text, std::size_t length) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; text && i < length; ++i) {
    const auto digit = HexadecimalDigit(text[i]);
    if (!digit) {
      break;
    }
    number = (number << 4) | *digit;
  }
  return static_cast<std::int32_t>(number);
}

int roundi(double value) {
  if (std::isnan(value)) {
    return 0;
  }
  constexpr double lowest = std::numeric_limits<int>::min();
  constexpr double highest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(std::round(value), lowest, highest));
}

namespace qv {

int Wtoi(std::wstring_view text) {
  const std::size_t start = std::min(text.find_first_not_of(L" \t\n\v\f\r"), text.size());
  text.remove_prefix(start);
  const bool negative = text.starts_with(L'-');
  if (negative || text.starts_with(L'+')) {
    text.remove_prefix(1);
  }
  constexpr long long limit = -static_cast<long long>(std::numeric_limits<int>::min());
  long long magnitude = 0;
  for (const wchar_t character : text) {
    if (character < L'0' || character > L'9') {
      break;
    }
    magnitude = std::min(limit, magnitude * 10 + (character - L'0'));
  }
  const long long value = negative ? -magnitude : magnitude;
  return static_cast<int>(std::min<long long>(value, std::numeric_limits<int>::max()));
}

}  // namespace qv
