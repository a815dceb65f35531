#include "tools/Format.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace qv {
namespace {

using namespace std::string_view_literals;

constexpr int least = std::numeric_limits<int>::min();

struct OneArgument {
  const wchar_t* format;
  FormatArgument argument;
  const wchar_t* text;
};

TEST(Format, ConvertsAnArgument) {
  const OneArgument rows[] = {{L"hour?id=%s?", L"abc", L"hour?id=abc?"},
                              {L"%s", L"", L""},
                              {L"<%5s>", L"ab", L"<   ab>"},
                              {L"<%05s>", L"ab", L"<   ab>"},
                              {L"<%2s>", L"abc", L"<abc>"},
                              {L"month%d", 7, L"month7"},
                              {L"%d", 0, L"0"},
                              {L"%d", -12, L"-12"},
                              {L"%d", least, L"-2147483648"},
                              {L"%d", 4000000000U, L"4000000000"},
                              {L"%u", 4000000000U, L"4000000000"},
                              {L"%02d", 5, L"05"},
                              {L"%02d", 45, L"45"},
                              {L"%02d", 1440, L"1440"},
                              {L"%02d", -5, L"-5"},
                              {L"%04d", -5, L"-005"},
                              {L"<%4d>", -5, L"<  -5>"},
                              {L"%06X", 0xFF, L"0000FF"},
                              {L"%06X", 0xABCDEF, L"ABCDEF"},
                              {L"%06X", 0, L"000000"},
                              {L"%06X", -1, L"FFFFFFFF"},
                              {L"%X", 4294967295U, L"FFFFFFFF"},
                              {L"<%3X>", 10, L"<  A>"}};
  for (const OneArgument& row : rows) {
    EXPECT_EQ(Format(row.format, {row.argument}), row.text) << std::wstring(row.format);
  }
}

TEST(Format, ShowsAnArgumentOfTheOtherKindInItsOwnForm) {
  const OneArgument rows[] = {{L"%s", 12, L"12"},
                              {L"<%4s>", -1, L"<  -1>"},
                              {L"%d", L"text", L"text"},
                              {L"%06X", L"ab", L"    ab"},
                              {L"%02d", L"%s", L"%s"}};
  for (const OneArgument& row : rows) {
    EXPECT_EQ(Format(row.format, {row.argument}), row.text) << std::wstring(row.format);
  }
}

TEST(Format, TakesArgumentsInTheirOrder) {
  EXPECT_EQ(Format(L"%s.%s.%d%%", {L"a", L"b", 3}), L"a.b.3%");
  EXPECT_EQ(Format(L"%02d:%02d", {7, 5}), L"07:05");
}

TEST(Format, LeavesArgumentsThatAreNotAskedFor) {
  EXPECT_EQ(Format(L"a", {1, 2}), L"a");
  EXPECT_EQ(Format(L"", {1}), L"");
}

TEST(Format, LeavesWhatIsNoConversion) {
  for (const wchar_t* text :
       {L"%", L"100%", L"%x", L"%n", L"%-5d", L"%.2d", L"%5", L"%0", L"% d", L"%ls", L"%p%"}) {
    EXPECT_EQ(Format(text, {1, 2}), text);
  }
}

TEST(Format, LeavesAConversionWithoutArgument) {
  EXPECT_EQ(Format(L"%s %d %06X %u", {}), L"%s %d %06X %u");
  EXPECT_EQ(Format(L"%d and %05s", {1}), L"1 and %05s");
}

TEST(Format, MakesOnePerCentOfTwo) {
  EXPECT_EQ(Format(L"%%", {}), L"%");
  EXPECT_EQ(Format(L"%%d", {1}), L"%d");
  EXPECT_EQ(Format(L"%%%d%%", {1}), L"%1%");
}

TEST(Format, NeverReadsAnArgumentAsAFormat) {
  EXPECT_EQ(Format(L"%s %s", {L"%s %d", L"%%"}), L"%s %d %%");
}

TEST(Format, TakesTextsOfEachType) {
  const QVWideString zeros(L"a\0b"sv);
  const wchar_t* null = nullptr;
  EXPECT_EQ(Format(L"%s|%s|%s", {zeros, L"c"sv, null}), L"a\0b|c|"sv);
}

TEST(Format, KeepsWidthsWithinReason) {
  EXPECT_EQ(Format(L"%99999999999999999999d", {1}).size(), 64U);
  EXPECT_EQ(Format(L"%099999999999999999999d", {1}), std::wstring(63, L'0') + L"1");
}

}  // namespace
}  // namespace qv
