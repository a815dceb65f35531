#include "calendar/PlaceDates.h"

#include <gtest/gtest.h>

#include "calendar/YearDates.h"
#include "tests/calendar/Printing.h"

namespace qv {
namespace {

TEST(PlaceDates, ADateStandsForItself) {
  EXPECT_EQ(DatesOfPlace(CalendarDate{2026, 5, 17}, 2026),
            (std::vector<CalendarDate>{{2026, 5, 17}}));
}

TEST(PlaceDates, ANameStandsForItsMonthAndAHeadForItsWeekday) {
  EXPECT_EQ(DatesOfPlace(MonthName{2}, 2024), DatesOfMonth(2024, 2));
  EXPECT_EQ(DatesOfPlace(WeekdayHead{2, 3}, 2024), DatesOfWeekday(2024, 2, 3));
}

TEST(PlaceDates, AWeekNumberStandsForAWeekThatMayCrossMonths) {
  // Week 18 of 2026 is 27 April to 3 May, and has a number in both months.
  const auto week = DatesBetween({2026, 4, 27}, {2026, 5, 3});
  EXPECT_EQ(DatesOfPlace(WeekNumber{4, 18}, 2026), week);
  EXPECT_EQ(DatesOfPlace(WeekNumber{5, 18}, 2026), week);
  EXPECT_TRUE(DatesOfPlace(WeekNumber{6, 18}, 2026).empty());
}

TEST(PlaceDates, AWeekNumberKeepsToTheYear) {
  // 1 January 2027 is the Friday of week 53 of 2026; 31 December 2025 a Wednesday of week 1.
  EXPECT_EQ(DatesOfPlace(WeekNumber{1, 53}, 2027), DatesBetween({2027, 1, 1}, {2027, 1, 3}));
  EXPECT_EQ(DatesOfPlace(WeekNumber{12, 1}, 2025), DatesBetween({2025, 12, 29}, {2025, 12, 31}));
}

}  // namespace
}  // namespace qv
