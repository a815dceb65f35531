#include "tools/Numbers.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace qv {
namespace {

struct Hexadecimal {
  const wchar_t* text;
  std::size_t length;
  std::int32_t number;
};

TEST(HtoL, ReadsTheFirstCharactersAsAHexadecimalNumber) {
  const Hexadecimal rows[] = {{L"0000FF", 6, 255},
                              {L"FF0000", 6, 0xFF0000},
                              {L"0123456789ABCDEF", 8, 0x01234567},
                              {L"abcdef", 6, 0xABCDEF},
                              {L"aBcDeF", 6, 0xABCDEF},
                              {L"FFFFFF", 2, 0xFF},
                              {L"FFFFFF", 0, 0},
                              {L"", 0, 0},
                              {L"", 6, 0},
                              {nullptr, 0, 0},
                              {nullptr, 6, 0},
                              {L"12", 6, 0x12},
                              {L"12G456", 6, 0x12},
                              {L"12 456", 6, 0x12},
                              {L" 12", 3, 0},
                              {L"-1", 2, 0},
                              {L"0x12", 4, 0},
                              {L"@`/:", 4, 0},
                              {L"1\uFF11", 2, 1},
                              {L"7FFFFFFF", 8, 0x7FFFFFFF},
                              {L"80000000", 8, std::numeric_limits<std::int32_t>::min()},
                              {L"FFFFFFFF", 8, -1},
                              {L"123456789", 9, 0x23456789},
                              {L"1FFFFFFFFF", 10, -1}};
  for (const Hexadecimal& row : rows) {
    EXPECT_EQ(HtoL(row.text, row.length), row.number)
        << std::wstring(row.text ? row.text : L"(null)") << " of " << row.length;
  }
}

TEST(roundi, GivesTheNearestIntegerAndHalvesAwayFromZero) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr int least = std::numeric_limits<int>::min();
  constexpr int most = std::numeric_limits<int>::max();
  const std::pair<double, int> rows[] = {{0.0, 0},
                                         {-0.0, 0},
                                         {0.49999999999999994, 0},
                                         {0.5, 1},
                                         {1.5, 2},
                                         {2.5, 3},
                                         {-0.5, -1},
                                         {-1.5, -2},
                                         {-2.5, -3},
                                         {1.4, 1},
                                         {-1.6, -2},
                                         {1439.5, 1440},
                                         {2147483646.5, most},
                                         {2147483647, most},
                                         {1e10, most},
                                         {-1e10, least},
                                         {-2147483648.0, least},
                                         {infinity, most},
                                         {-infinity, least},
                                         {std::numeric_limits<double>::quiet_NaN(), 0}};
  for (const auto& [value, nearest] : rows) {
    EXPECT_EQ(roundi(value), nearest) << value;
  }
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
  constexpr int least = std::numeric_limits<int>::min();
  constexpr int most = std::numeric_limits<int>::max();
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
