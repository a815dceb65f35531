#include "calendar/DateWords.h"

#include <gtest/gtest.h>

namespace qv {
namespace {

const Brush work{0x0000FF, L"Work 100%s"};

TEST(DateWords, WithoutALanguageAreNumbersAndTheName) {
  EXPECT_EQ(DateInWords({2026, 5, 7}, nullptr, {}), L"2026-05-07");
  EXPECT_EQ(DateInWords({2026, 5, 7}, &work, {}), L"2026-05-07: Work 100%s");
}

TEST(DateWords, FollowTheFormsOfTheLanguage) {
  DateForms forms;
  forms.months[4] = L"May";
  forms.weekdays[3] = L"Thursday";
  forms.date = L"%s, %d %s %d";
  forms.typed = L"%s is %s";
  forms.untyped = L"%s has no type";
  EXPECT_EQ(DateInWords({2026, 5, 7}, nullptr, forms), L"Thursday, 7 May 2026 has no type");
  EXPECT_EQ(DateInWords({2026, 5, 7}, &work, forms), L"Thursday, 7 May 2026 is Work 100%s");
}

}  // namespace
}  // namespace qv
