#include "calendar/FastSelection.h"

#include <gmock/gmock.h>

#include <chrono>

namespace qv {
namespace {

constexpr std::uint32_t allWeekDays = 0x7F;
constexpr std::uint32_t allMonths = 0xFFF;

TEST(FastSelection, ADateMatchesByWeekdayAndMonth) {
  const QVDateTime mondayInJune = ToDateTime({2026, 6, 1});
  EXPECT_TRUE(MatchesFastSelection(mondayInJune, {0x01, 0x020}));
  EXPECT_FALSE(MatchesFastSelection(mondayInJune, {0x7E, 0x020}));
  EXPECT_FALSE(MatchesFastSelection(mondayInJune, {0x01, 0xFDF}));
  EXPECT_FALSE(MatchesFastSelection(mondayInJune, {allWeekDays, 0}));
  EXPECT_FALSE(MatchesFastSelection(mondayInJune, {0, allMonths}));
  EXPECT_FALSE(MatchesFastSelection(ToDateTime({2026, 2, 29}), {allWeekDays, allMonths}));
}

TEST(FastSelection, SundayIsTheLastBitOfTheWeek) {
  // 1 June 2026 is a Monday.
  for (int day = 1; day <= 7; ++day) {
    const std::uint32_t bit = 1U << (day - 1);
    EXPECT_TRUE(MatchesFastSelection(ToDateTime({2026, 6, day}), {bit, allMonths})) << day;
    EXPECT_FALSE(MatchesFastSelection(ToDateTime({2026, 6, day}), {~bit, allMonths})) << day;
  }
}

TEST(FastSelection, CoversEveryDayOfACommonAndOfALeapYear) {
  EXPECT_EQ(DatesOfFastSelection(2026, {allWeekDays, allMonths}).size(), 365U);
  EXPECT_EQ(DatesOfFastSelection(2024, {allWeekDays, allMonths}).size(), 366U);
  EXPECT_TRUE(DatesOfFastSelection(2024, {}).empty());
  EXPECT_TRUE(DatesOfFastSelection(99999, {allWeekDays, allMonths}).empty());
}

TEST(FastSelection, FindsTheSaturdaysOfFebruary) {
  const std::vector<CalendarDate> saturdays = {
      {2026, 2, 7}, {2026, 2, 14}, {2026, 2, 21}, {2026, 2, 28}};
  EXPECT_EQ(DatesOfFastSelection(2026, {0x20, 0x002}), saturdays);
}

TEST(FastSelection, AgreesWithTheStandardCalendar) {
  using namespace std::chrono;
  for (int year : {-400, 0, 1, 1600, 1900, 2000, 2023, 2026, 9999}) {
    for (unsigned bit = 0; bit < 7; ++bit) {
      for (const CalendarDate date : DatesOfFastSelection(year, {1U << bit, allMonths})) {
        const weekday expected(
            sys_days(std::chrono::year(date.year) / static_cast<unsigned>(date.month) /
                     static_cast<unsigned>(date.day)));
        ASSERT_EQ(expected.iso_encoding() - 1, bit) << date.year << ' ' << date.month;
      }
    }
  }
}

struct RangeCase {
  int first;
  int last;
  bool accepted;
};

class MonthRangeTest : public testing::TestWithParam<RangeCase> {};

TEST_P(MonthRangeTest, TakesMonthsInOrderOrElseTheWholeYear) {
  const RangeCase& range = GetParam();
  MonthRange months;
  EXPECT_TRUE(months.Set(5, 5));
  EXPECT_EQ(months.Set(range.first, range.last), range.accepted);
  for (int month = 1; month <= 12; ++month) {
    const bool isInside = range.first <= month && month <= range.last;
    EXPECT_EQ(months.Contains(month), !range.accepted || isInside) << month;
  }
}

INSTANTIATE_TEST_SUITE_P(Ranges, MonthRangeTest,
                         testing::Values(RangeCase{3, 3, true}, RangeCase{3, 6, true},
                                         RangeCase{1, 12, true}, RangeCase{6, 3, false},
                                         RangeCase{0, 3, false}, RangeCase{-1, 0, false},
                                         RangeCase{3, 13, false}, RangeCase{13, 14, false},
                                         RangeCase{5, 0, false}));

TEST(MonthRange, IsTheWholeYearAtFirst) {
  const MonthRange months;
  EXPECT_TRUE(months.Contains(1));
  EXPECT_TRUE(months.Contains(12));
}

}  // namespace
}  // namespace qv
