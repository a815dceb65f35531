#include "tools/Utf8.h"

#include <gtest/gtest.h>

#include <utility>

namespace qv {
namespace {

using namespace std::string_view_literals;

const std::pair<std::wstring_view, std::string_view> texts[] = {
    {L"", ""},
    {L"abc", "abc"},
    {L"a\0b"sv, "a\0b"sv},
    {L"\x7F\u0080\u07FF", "\x7F\xC2\x80\xDF\xBF"},
    {L"\u0800\uD7FF\uE000\uFFFF", "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"},
    {L"\U00010000\U0010FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"}};

TEST(ToUtf8, WritesEveryLengthOfCharacter) {
  for (const auto& [wide, bytes] : texts) {
    EXPECT_EQ(ToUtf8(wide), bytes);
  }
}

TEST(FromUtf8, ReadsEveryLengthOfCharacter) {
  for (const auto& [wide, bytes] : texts) {
    EXPECT_EQ(FromUtf8(bytes), wide);
  }
}

TEST(ToUtf8, RefusesNumbersThatAreNoCharacters) {
  for (const unsigned number :
       {0xD800U, 0xDBFFU, 0xDC00U, 0xDFFFU, 0x110000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    const std::wstring text{L'a', static_cast<wchar_t>(number), L'b'};
    EXPECT_EQ(ToUtf8(text), std::nullopt) << number;
  }
}

TEST(FromUtf8, PutsAReplacementForEachByteThatIsNoUtf8) {
  const std::pair<std::string_view, std::wstring_view> rows[] = {
      {"a\x80z", L"a\uFFFDz"},
      {"a\xFFz", L"a\uFFFDz"},
      {"\xC3", L"\uFFFD"},
      {"\xC3z", L"\uFFFDz"},
      {"\xC0\xAF", L"\uFFFD\uFFFD"},
      {"\xE2\x82", L"\uFFFD\uFFFD"},
      {"\xE0\x80\x80", L"\uFFFD\uFFFD\uFFFD"},
      {"\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},
      {"\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"\xF8\x88\x80\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"\xFF\xC3\xB1\xFF", L"\uFFFD\u00F1\uFFFD"}};
  for (const auto& [bytes, wide] : rows) {
    EXPECT_EQ(FromUtf8(bytes), wide);
  }
}

TEST(ColumnsOf, CountsWideAndJoiningCharacters) {
  const std::pair<std::wstring_view, unsigned> rows[] = {
      {L"", 0}, {L"a\u00f1", 2}, {L"\u6771\u4eac", 4}, {L"n\u0303", 1}};
  for (const auto& [text, columns] : rows) {
    EXPECT_EQ(ColumnsOf(text), columns);
  }
}

TEST(Utf8, EveryCharacterComesBack) {
  for (unsigned code = 0; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 97) {
    const std::wstring text(1, static_cast<wchar_t>(code));
    const auto bytes = ToUtf8(text);
    ASSERT_EQ(bytes.has_value(), code < 0xD800 || code > 0xDFFF) << code;
    if (bytes) {
      ASSERT_EQ(FromUtf8(*bytes), text) << code;
    }
  }
}

}  // namespace
}  // namespace qv
