#include "calendar/Weeks.h"

#include <gtest/gtest.h>

#include <chrono>

#include "tests/calendar/Printing.h"

namespace qv {
namespace {

TEST(Weeks, BeginOnMonday) {
  EXPECT_EQ(WeekdayOf({2026, 6, 1}), 0);
  EXPECT_EQ(WeekdayOf({2026, 11, 1}), 6);
}

struct NumberedDate {
  CalendarDate date;
  int week;
};

TEST(Weeks, AreCountedFromThatOfTheFirstThursday) {
  for (const auto& [date, week] :
       {NumberedDate{{2026, 1, 1}, 1}, NumberedDate{{2026, 1, 4}, 1}, NumberedDate{{2026, 1, 5}, 2},
        NumberedDate{{2026, 12, 31}, 53}, NumberedDate{{2027, 1, 3}, 53},
        NumberedDate{{2027, 1, 4}, 1}, NumberedDate{{2024, 12, 30}, 1},
        NumberedDate{{2024, 12, 29}, 52}, NumberedDate{{2023, 1, 1}, 52},
        NumberedDate{{2021, 1, 1}, 53}, NumberedDate{{2020, 12, 31}, 53}}) {
    EXPECT_EQ(WeekNumberOf(date), week) << testing::PrintToString(date);
  }
}

/// By the definition: how many Thursdays there are in a year up to that of the week.
int CountedWeek(std::chrono::sys_days day) {
  using namespace std::chrono;
  const auto weekday = static_cast<int>(std::chrono::weekday(day).iso_encoding());
  const sys_days thursday = day + days(4 - weekday);
  const year_month_day date = thursday;
  return static_cast<int>((thursday - sys_days(date.year() / January / 1)).count() / 7) + 1;
}

TEST(Weeks, AreThoseOfTheDefinitionInEveryKindOfYear) {
  using namespace std::chrono;
  for (sys_days day = 1999y / 12 / 1; day < sys_days(2029y / 2 / 1); day += days(1)) {
    const year_month_day date = day;
    const CalendarDate key{static_cast<int>(date.year()),
                           static_cast<int>(static_cast<unsigned>(date.month())),
                           static_cast<int>(static_cast<unsigned>(date.day()))};
    ASSERT_EQ(WeekNumberOf(key), CountedWeek(day)) << testing::PrintToString(key);
  }
}

TEST(Weeks, HaveNumbersAlsoAtTheEndsOfTheCalendar) {
  // These two years are 2032 and 1967 moved by whole cycles of 400 years.
  EXPECT_EQ(WeekNumberOf({-32768, 1, 1}), WeekNumberOf({2032, 1, 1}));
  EXPECT_EQ(WeekNumberOf({32767, 12, 31}), WeekNumberOf({1967, 12, 31}));
}

}  // namespace
}  // namespace qv
