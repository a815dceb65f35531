#include "tools/CharTraits.h"

#include <gtest/gtest.h>

namespace {

TEST(QVWideChar, LeavesNumbersThatAreNoCharacters) {
  for (const int number : {-1, 0xD800, 0xDFFF, 0x110000, 0x7FFFFFFF}) {
    EXPECT_EQ(QVWideChar::ToUpper(number), number);
  }
}

TEST(QVWideChar, MeasuresAndCompares) {
  EXPECT_EQ(QVWideChar::Length(L"abc"), 3U);
  EXPECT_EQ(QVWideChar::Length(L""), 0U);
  EXPECT_EQ(QVWideChar::Length(nullptr), 0U);
  EXPECT_EQ(QVWideChar::Compare(L"a", L"a"), 0);
  EXPECT_LT(QVWideChar::Compare(L"A", L"a"), 0);
  EXPECT_GT(QVWideChar::Compare(L"ab", L"a"), 0);
  EXPECT_EQ(QVWideChar::Compare(L"abX", L"abY", 2), 0);
  EXPECT_LT(QVWideChar::Compare(L"abX", L"abY", 3), 0);
  EXPECT_EQ(QVWideChar::Compare(L"ab\0x", L"ab\0y", 4), 0);
}

TEST(QVWideChar, UppersWithoutTheProcessesLocale) {
  EXPECT_EQ(QVWideChar::ToUpper(L'i'), L'I');
  EXPECT_EQ(QVWideChar::ToUpper(0xF1), 0xD1);
  EXPECT_EQ(QVWideChar::ToUpper(0xDF), 0xDF);
}

TEST(QVWideChar, HasOneEmptyText) {
  EXPECT_EQ(*QVWideChar::EmptyString(), L'\0');
  EXPECT_EQ(QVWideChar::EmptyString(), QVWideChar::EmptyString());
}

TEST(QVChar, Measures) {
  EXPECT_EQ(QVChar::Length("abc"), 3U);
  EXPECT_EQ(QVChar::Length("\xC3\xB1"), 2U);
  EXPECT_EQ(QVChar::Length(""), 0U);
  EXPECT_EQ(QVChar::Length(nullptr), 0U);
  EXPECT_EQ(*QVChar::EmptyString(), '\0');
}

}  // namespace
