#include "hostkit/DecimalNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <system_error>

#include "tools/Numbers.h"

namespace qv {
namespace {

/// `text` as bytes; nothing if it isn't only of what decimal numbers are made of, since
/// `from_chars` also reads words.
std::optional<std::string> BytesOf(std::wstring_view text) {
  if (text.find_first_not_of(L"0123456789.eE+-") != std::wstring_view::npos) {
    return std::nullopt;
  }
  return std::string(text.begin(), text.end());
}

/// The power of ten of the first digit that counts; of no interest for zero.
long PowerOf(std::wstring_view number) {
  const auto exponent = number.find_first_of(L"eE");
  const std::wstring_view mantissa = number.substr(0, exponent);
  const auto point = std::min(mantissa.find(L'.'), mantissa.size());
  const auto first = mantissa.find_first_of(L"123456789");
  const long written = exponent == std::wstring_view::npos ? 0 : Wtoi(number.substr(exponent + 1));
  return written + static_cast<long>(point) - static_cast<long>(first);
}

/// What is out of the range of numbers.
double Limit(std::wstring_view number) {
  const double size = PowerOf(number) < 0 ? 0.0 : std::numeric_limits<double>::infinity();
  return number.starts_with(L'-') ? -size : size;
}

}  // namespace

std::optional<double> DecimalNumber(std::wstring_view text) {
  const auto bytes = BytesOf(text);
  double number = 0;
  if (!bytes) {
    return std::nullopt;
  }
  const char* end = bytes->data() + bytes->size();
  const auto [stop, error] = std::from_chars(bytes->data(), end, number);
  if (stop != end || error == std::errc::invalid_argument) {
    return std::nullopt;
  }
  return error == std::errc::result_out_of_range ? Limit(text) : number;
}

std::wstring NumberText(double number) {
  constexpr int countingDigits = 6;
  std::array<char, 32> buffer;
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                          std::chars_format::general, countingDigits);
  return {buffer.data(), end};
}

}  // namespace qv
