#include "calendar/CopiedMarks.h"

#include <gtest/gtest.h>

#include "calendar/Weeks.h"
#include "calendar/YearDates.h"
#include "tests/calendar/Printing.h"

namespace qv {
namespace {

const Brush work{0x0000FF, L"Work"};
const Brush rest{0x00FF00, L"Rest"};

class CopiedMarksTest : public testing::Test {
 protected:
  void Mark(const Brush& brush, const std::vector<CalendarDate>& dates) {
    marks.SetBrush(brush);
    EXPECT_TRUE(marks.Apply(dates));
  }

  std::wstring At(CalendarDate date) const {
    const Brush* brush = marks.BrushOf(date);
    return brush ? std::wstring(brush->text.ToView()) : L"-";
  }

  CalendarMarks marks;
  CopiedMarks copied;
};

TEST_F(CopiedMarksTest, AWeekIsPastedWeekdayByWeekday) {
  Mark(work, {{2026, 1, 5}, {2026, 1, 7}});  // Monday and Wednesday
  Mark(rest, {{2026, 1, 11}, {2027, 1, 1}});
  copied.CopyWeek(marks, {2026, 1, 8});
  EXPECT_TRUE(marks.ApplyEach(copied.WeekAt({2026, 12, 31})));
  EXPECT_EQ(At({2026, 12, 28}), L"Work");
  EXPECT_EQ(At({2026, 12, 29}), L"-");
  EXPECT_EQ(At({2026, 12, 30}), L"Work");
  EXPECT_EQ(At({2027, 1, 1}), L"-") << "had a mark that the copied Friday lacks";
  EXPECT_EQ(At({2027, 1, 3}), L"Rest");
  EXPECT_TRUE(marks.Undo());
  EXPECT_EQ(At({2027, 1, 1}), L"Rest");
}

TEST_F(CopiedMarksTest, AMonthIsPastedDayByDayAsFarAsBothReach) {
  Mark(work, {{2026, 1, 1}, {2026, 1, 31}});
  Mark(rest, {{2026, 2, 28}, {2026, 3, 1}, {2026, 3, 31}});
  copied.CopyMonth(marks, {2026, 1, 15});
  EXPECT_TRUE(marks.ApplyEach(copied.MonthAt({2026, 2, 10})));
  EXPECT_EQ(At({2026, 2, 1}), L"Work");
  EXPECT_EQ(At({2026, 2, 28}), L"-");
  EXPECT_EQ(At({2026, 3, 1}), L"Rest");
  copied.CopyMonth(marks, {2026, 2, 1});
  EXPECT_TRUE(marks.ApplyEach(copied.MonthAt({2026, 3, 1})));
  EXPECT_EQ(At({2026, 3, 1}), L"Work");
  EXPECT_EQ(At({2026, 3, 31}), L"Rest") << "February has no 31st to copy";
}

TEST_F(CopiedMarksTest, WhatWasNotCopiedPastesNothing) {
  EXPECT_FALSE(copied.HasWeek());
  EXPECT_FALSE(copied.HasMonth());
  EXPECT_TRUE(copied.WeekAt({2026, 1, 1}).empty());
  EXPECT_TRUE(copied.MonthAt({2026, 1, 1}).empty());
  copied.CopyWeek(marks, {2026, 1, 1});
  EXPECT_TRUE(copied.HasWeek());
  EXPECT_FALSE(copied.HasMonth());
}

TEST_F(CopiedMarksTest, AYearRepeatedByDateKeepsMonthAndDay) {
  Mark(work, {{2026, 1, 1}, {2026, 12, 31}});
  Mark(rest, {{2027, 5, 1}});
  EXPECT_TRUE(marks.ApplyEach(NextYearLike(marks, 2026, RepeatBy::Date)));
  EXPECT_EQ(At({2027, 1, 1}), L"Work");
  EXPECT_EQ(At({2027, 12, 31}), L"Work");
  EXPECT_EQ(At({2027, 5, 1}), L"-");
  EXPECT_EQ(At({2026, 1, 1}), L"Work");
}

TEST_F(CopiedMarksTest, ALeapDayThatOneYearLacksIsLeftAlone) {
  Mark(work, {{2024, 2, 29}, {2028, 2, 29}});
  EXPECT_EQ(NextYearLike(marks, 2024, RepeatBy::Date).size(), 365U);
  EXPECT_EQ(NextYearLike(marks, 2027, RepeatBy::Date).size(), 365U);
  EXPECT_FALSE(marks.ApplyEach(NextYearLike(marks, 2027, RepeatBy::Date)));
}

TEST_F(CopiedMarksTest, AYearRepeatedByWeekdayKeepsTheWeekdayOfEachDate) {
  for (const int year : {2023, 2024, 2026, 2027, 2099}) {
    Mark(work, DatesOfWeekday(year, 1, 0));
    Mark(rest, DatesOfWeekday(year, 12, 0));
    const auto repeated = NextYearLike(marks, year, RepeatBy::Weekday);
    ASSERT_EQ(repeated.size(), DatesOfYear(year + 1).size());
    for (const DateBrush& each : repeated) {
      EXPECT_TRUE(each.brush.IsEraser() || WeekdayOf(each.date) == 0) << "year " << year;
    }
    EXPECT_TRUE(marks.ApplyEach(repeated));
    EXPECT_EQ(At(DatesOfWeekday(year + 1, 12, 0).back()), L"Rest");
    while (marks.Undo()) {
    }
  }
}

TEST_F(CopiedMarksTest, ARepeatedYearIsOneStep) {
  Mark(work, DatesOfYear(2026));
  EXPECT_TRUE(marks.ApplyEach(NextYearLike(marks, 2026, RepeatBy::Weekday)));
  EXPECT_EQ(At({2027, 12, 31}), L"Work");
  EXPECT_TRUE(marks.Undo());
  EXPECT_EQ(marks.Last(), (CalendarDate{2026, 12, 31}));
}

}  // namespace
}  // namespace qv
