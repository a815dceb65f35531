#include "calendar/YearDates.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/calendar/Printing.h"

namespace qv {
namespace {

using testing::ElementsAre;

TEST(YearDates, DaysAreCountedAcrossMonthsAndYears) {
  EXPECT_EQ(DaysAfter({2026, 12, 31}, 1), (CalendarDate{2027, 1, 1}));
  EXPECT_EQ(DaysAfter({2024, 3, 1}, -1), (CalendarDate{2024, 2, 29}));
  EXPECT_EQ(DaysAfter({1, 1, 1}, -1), (CalendarDate{0, 12, 31}));
}

TEST(YearDates, DaysFromOneDateToAnotherAreThoseToCount) {
  EXPECT_EQ(DaysFromTo({2024, 2, 28}, {2024, 3, 1}), 2);
  EXPECT_EQ(DaysFromTo({2024, 3, 1}, {2024, 2, 28}), -2);
  EXPECT_EQ(DaysFromTo({2024, 1, 1}, DaysAfter({2024, 1, 1}, 1000)), 1000);
}

TEST(YearDates, AMonthThatIsShorterGivesItsLastDay) {
  EXPECT_EQ(MonthsAfter({2026, 1, 31}, 1), (CalendarDate{2026, 2, 28}));
  EXPECT_EQ(MonthsAfter({2024, 2, 29}, 12), (CalendarDate{2025, 2, 28}));
  EXPECT_EQ(MonthsAfter({2026, 1, 15}, -1), (CalendarDate{2025, 12, 15}));
  EXPECT_EQ(MonthsAfter({0, 1, 15}, -1), (CalendarDate{-1, 12, 15}));
  EXPECT_EQ(MonthsAfter({2026, 12, 1}, 1), (CalendarDate{2027, 1, 1}));
}

TEST(YearDates, ARangeRunsForwardsWhicheverEndComesFirst) {
  const std::vector<CalendarDate> dates = {{2026, 1, 31}, {2026, 2, 1}, {2026, 2, 2}};
  EXPECT_EQ(DatesBetween({2026, 1, 31}, {2026, 2, 2}), dates);
  EXPECT_EQ(DatesBetween({2026, 2, 2}, {2026, 1, 31}), dates);
  EXPECT_EQ(DatesBetween({2026, 2, 2}, {2026, 2, 2}).size(), 1U);
}

TEST(YearDates, ABlockHasTheSameWeekdaysOfEachWeek) {
  // 28 January 2026 is a Wednesday, 5 February the Thursday of the next week.
  const std::vector<CalendarDate> block = {
      {2026, 1, 28}, {2026, 1, 29}, {2026, 2, 4}, {2026, 2, 5}};
  EXPECT_EQ(BlockBetween({2026, 1, 28}, {2026, 2, 5}), block);
  EXPECT_EQ(BlockBetween({2026, 2, 5}, {2026, 1, 28}), block);
  EXPECT_EQ(BlockBetween({2026, 1, 29}, {2026, 2, 4}), block);
  EXPECT_EQ(BlockBetween({2026, 2, 4}, {2026, 1, 29}), block);
}

TEST(YearDates, AWeekRunsFromMondayAcrossTheYear) {
  const auto week = DatesOfWeek({2027, 1, 1});
  ASSERT_EQ(week.size(), 7U);
  EXPECT_EQ(week.front(), (CalendarDate{2026, 12, 28}));
  EXPECT_EQ(week.back(), (CalendarDate{2027, 1, 3}));
  EXPECT_EQ(DatesOfWeek({2026, 12, 28}), week);
}

TEST(YearDates, MonthsAndYearsAreWhole) {
  EXPECT_EQ(DatesOfMonth(2024, 2).size(), 29U);
  EXPECT_EQ(DatesOfMonth(2100, 2).size(), 28U);
  EXPECT_EQ(DatesOfYear(2024).size(), 366U);
  EXPECT_EQ(DatesOfYear(2025).size(), 365U);
}

TEST(YearDates, AWeekdayOfAMonthIsEachOfItsDates) {
  EXPECT_THAT(DatesOfWeekday(2026, 2, 6),
              ElementsAre(CalendarDate{2026, 2, 1}, CalendarDate{2026, 2, 8},
                          CalendarDate{2026, 2, 15}, CalendarDate{2026, 2, 22}));
}

}  // namespace
}  // namespace qv
