#include "tools/Numbers.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>
#include <string>
#include <utility>

namespace qv {
namespace {

struct Hexadecimal {
  const wchar_t* text;
  std::size_t length;
  std::int32_t number;
};

void ExpectNumbers(std::initializer_list<Hexadecimal> rows) {
  for (const Hexadecimal& row : rows) {
    EXPECT_EQ(HtoL(row.text, row.length), row.number)
        << std::wstring(row.text ? row.text : L"(null)") << " of " << row.length;
  }
}

TEST(HtoL, ReadsTheFirstCharactersAsAHexadecimalNumber) {
  ExpectNumbers({{L"0000FF", 6, 255},
                 {L"FF0000", 6, 0xFF0000},
                 {L"0123456789ABCDEF", 8, 0x01234567},
                 {L"abcdef", 6, 0xABCDEF},
                 {L"aBcDeF", 6, 0xABCDEF},
                 {L"FFFFFF", 2, 0xFF}});
}

TEST(HtoL, StopsAtTheEndOfTheTextAndBeforeWhatIsNoDigit) {
  ExpectNumbers({{L"12", 6, 0x12}, {L"12G456", 6, 0x12}, {L"12 456", 6, 0x12}, {L"1\uFF11", 2, 1}});
}

TEST(HtoL, IsZeroWithoutADigitAtTheStart) {
  ExpectNumbers({{L"FFFFFF", 0, 0}, {L"", 0, 0}, {L"", 6, 0}, {nullptr, 0, 0}, {nullptr, 6, 0}});
  ExpectNumbers({{L" 12", 3, 0}, {L"-1", 2, 0}, {L"0x12", 4, 0}, {L"@`/:", 4, 0}});
}

TEST(HtoL, KeepsTheLast32Bits) {
  ExpectNumbers({{L"7FFFFFFF", 8, 0x7FFFFFFF},
                 {L"80000000", 8, std::numeric_limits<std::int32_t>::min()},
                 {L"FFFFFFFF", 8, -1},
                 {L"123456789", 9, 0x23456789},
                 {L"1FFFFFFFFF", 10, -1}});
}

constexpr int least = std::numeric_limits<int>::min();
constexpr int most = std::numeric_limits<int>::max();

void ExpectRounded(std::initializer_list<std::pair<double, int>> rows) {
  for (const auto& [value, nearest] : rows) {
    EXPECT_EQ(roundi(value), nearest) << value;
  }
}

TEST(roundi, GivesTheNearestInteger) {
  ExpectRounded({{0.0, 0}, {-0.0, 0}, {0.49999999999999994, 0}, {1.4, 1}, {-1.6, -2}});
}

TEST(roundi, RoundsHalvesAwayFromZero) {
  ExpectRounded({{0.5, 1}, {1.5, 2}, {2.5, 3}, {-0.5, -1}, {-1.5, -2}, {-2.5, -3}, {1439.5, 1440}});
}

TEST(roundi, StaysAtTheLimits) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  ExpectRounded({{2147483646.5, most}, {2147483647, most}, {1e10, most}, {infinity, most}});
  ExpectRounded({{-2147483648.0, least}, {-1e10, least}, {-infinity, least}});
}

TEST(roundi, MakesZeroOfWhatIsNoNumber) {
  ExpectRounded({{std::numeric_limits<double>::quiet_NaN(), 0}});
}

TEST(Wtoi, ReadsBlanksASignAndDigits) {
  const std::pair<const wchar_t*, int> rows[] = {
      {L"0", 0},       {L"2026", 2026}, {L"007", 7},
      {L"+5", 5},      {L"-5", -5},     {L" \t\n\v\f\r12", 12},
      {L"  -12", -12}, {L"12 34", 12},  {L"12:34", 12},
      {L"12abc", 12},  {L"1.9", 1},     {L"", 0},
      {L"   ", 0},     {L"-", 0},       {L"+", 0},
      {L"+-5", 0},     {L"- 5", 0},     {L"abc", 0},
      {L"0x10", 0},    {L"\u00A05", 0}, {L"\uFF15", 0}};
  for (const auto& [text, number] : rows) {
    EXPECT_EQ(Wtoi(text), number) << std::wstring(text);
  }
}

TEST(Wtoi, StaysAtTheLimits) {
  const std::pair<const wchar_t*, int> rows[] = {{L"2147483646", most - 1},
                                                 {L"2147483647", most},
                                                 {L"2147483648", most},
                                                 {L"-2147483647", least + 1},
                                                 {L"-2147483648", least},
                                                 {L"-2147483649", least},
                                                 {L"99999999999999999999999999", most},
                                                 {L"-99999999999999999999999999", least}};
  for (const auto& [text, number] : rows) {
    EXPECT_EQ(Wtoi(text), number) << std::wstring(text);
  }
}

TEST(Wtoi, ReadsNoFurtherThanTheView) { EXPECT_EQ(Wtoi(std::wstring_view(L"12345", 2)), 12); }

}  // namespace
}  // namespace qv
