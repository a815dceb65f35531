#include "calendar/YearGeometry.h"

#include <gtest/gtest.h>

#include "calendar/Weeks.h"
#include "tests/calendar/Printing.h"

namespace qv {
namespace {

constexpr Density common{1};

std::vector<CalendarDate> DatesOf(const YearGeometry& geometry) {
  std::vector<CalendarDate> dates;
  for (int month = 1; month <= 12; ++month) {
    const int days = DaysOfMonth(ToDateTime({geometry.Year(), month, 1}));
    for (int day = 1; day <= days && geometry.Shows(month); ++day) {
      dates.push_back({geometry.Year(), month, day});
    }
  }
  return dates;
}

/// Sizes of all shapes, and at the limits between arrangements.
std::vector<Extent> FortySizes() {
  std::vector<Extent> sizes;
  for (const int width : {130, 320, 533, 640, 1024, 1200, 1920, 3840}) {
    for (const int height : {100, 240, 501, 800, 2160}) {
      sizes.push_back({width, height});
    }
  }
  return sizes;
}

class YearGeometryTest : public testing::TestWithParam<Extent> {};

/// All four corners of a place belong to it, and the dots beside it don't.
void ExpectFound(const YearGeometry& geometry, const Rect& area, const YearPlace& place) {
  ASSERT_FALSE(area.IsEmpty());
  ASSERT_EQ(geometry.PlaceAt({area.left, area.top}), place);
  ASSERT_EQ(geometry.PlaceAt({area.right - 1, area.bottom - 1}), place);
  ASSERT_NE(geometry.PlaceAt({area.left - 1, area.top}), place);
  ASSERT_NE(geometry.PlaceAt({area.right, area.top}), place);
  ASSERT_NE(geometry.PlaceAt({area.left, area.top - 1}), place);
  ASSERT_NE(geometry.PlaceAt({area.left, area.bottom}), place);
}

TEST_P(YearGeometryTest, EveryDateIsFoundInItsWholeCellAndNowhereElse) {
  for (const int year : {-1, 2024, 2026}) {
    for (const int firstMonth : {1, 6, 12}) {
      const YearGeometry geometry(GetParam(), year, common, firstMonth);
      for (const CalendarDate date : DatesOf(geometry)) {
        ASSERT_NO_FATAL_FAILURE(ExpectFound(geometry, geometry.CellOf(date), date));
        ASSERT_EQ(geometry.NearestDate({geometry.CellOf(date).left, geometry.CellOf(date).top}),
                  date);
      }
    }
  }
}

TEST_P(YearGeometryTest, NamesHeadsAndWeeksAreFoundLikewise) {
  const YearGeometry geometry(GetParam(), 2026, common);
  for (int month = 1; month <= geometry.MonthsShown(); ++month) {
    ExpectFound(geometry, geometry.NameOf(month), MonthName{month});
    for (int weekday = 0; weekday < 7; ++weekday) {
      ExpectFound(geometry, geometry.HeadOf(month, weekday), WeekdayHead{month, weekday});
    }
    for (int week = 1; week <= 53; ++week) {
      if (const auto area = geometry.WeekOf(month, week)) {
        ExpectFound(geometry, *area, WeekNumber{month, week});
      }
    }
  }
}

TEST_P(YearGeometryTest, EveryDateStandsBesideTheNumberOfItsWeek) {
  for (const int year : {2024, 2026, 2027}) {
    const YearGeometry geometry(GetParam(), year, common);
    for (const CalendarDate date : DatesOf(geometry)) {
      const auto week = geometry.WeekOf(date.month, WeekNumberOf(date));
      ASSERT_EQ(week.has_value(), geometry.HasWeeks());
      ASSERT_TRUE(!week || week->top == geometry.CellOf(date).top);
    }
  }
}

TEST_P(YearGeometryTest, AllLiesInsideAndInTheMiddle) {
  const YearGeometry geometry(GetParam(), 2026, common);
  Rect all{GetParam().cx, GetParam().cy, 0, 0};
  const auto add = [&](const Rect& place) {
    all = {std::min(all.left, place.left), std::min(all.top, place.top),
           std::max(all.right, place.right), std::max(all.bottom, place.bottom)};
  };
  for (int i = 0; i < geometry.MonthsShown(); ++i) {
    add(geometry.NameOf(geometry.FirstMonth() + i));
  }
  for (const CalendarDate date : DatesOf(geometry)) {
    add(geometry.CellOf(date));
  }
  EXPECT_GE(all.left, 0);
  EXPECT_GE(all.top, 0);
  EXPECT_LE(all.right, GetParam().cx);
  EXPECT_LE(all.bottom, GetParam().cy);
  // Numbers of weeks stand on one side alone, and not each month has its sixth week.
  const int besides = geometry.HasWeeks() ? geometry.CellWidth() : 0;
  EXPECT_NEAR(all.left - besides, GetParam().cx - all.right, 1);
  EXPECT_NEAR(all.top, GetParam().cy - all.bottom, 1 + 2 * geometry.CellHeight());
}

TEST_P(YearGeometryTest, CellsAreLegible) {
  const YearGeometry geometry(GetParam(), 2026, common);
  EXPECT_GE(geometry.CellWidth(), 18);
  EXPECT_GE(geometry.CellHeight(), 11);
}

INSTANTIATE_TEST_SUITE_P(Sizes, YearGeometryTest, testing::ValuesIn(FortySizes()),
                         [](const auto& test) {
                           return std::to_string(test.param.cx) + "x" +
                                  std::to_string(test.param.cy);
                         });

TEST(YearGeometry, ADateStandsBelowItsWeekdayAndBesideItsWeek) {
  const YearGeometry geometry({1200, 800}, 2026, common);
  // 1 June 2026 is a Monday of week 23, 1 November a Sunday.
  const Rect june = geometry.CellOf({2026, 6, 1});
  EXPECT_EQ(june.left, geometry.HeadOf(6, 0).left);
  EXPECT_EQ(june.top, geometry.HeadOf(6, 0).bottom);
  EXPECT_EQ(june.top, geometry.NameOf(6).bottom + geometry.CellHeight());
  EXPECT_EQ(geometry.CellOf({2026, 11, 1}).left, geometry.HeadOf(11, 6).left);
  ASSERT_TRUE(geometry.WeekOf(6, 23));
  EXPECT_EQ(geometry.WeekOf(6, 23)->top, june.top);
  EXPECT_EQ(geometry.WeekOf(6, 23)->right, june.left);
  EXPECT_FALSE(geometry.WeekOf(6, 22));
}

TEST(YearGeometry, SaturdayStandsApartFromFriday) {
  const YearGeometry geometry({640, 360}, 2026, common);
  EXPECT_EQ(geometry.HeadOf(1, 4).left, geometry.HeadOf(1, 3).right);
  EXPECT_GT(geometry.HeadOf(1, 5).left, geometry.HeadOf(1, 4).right);
  EXPECT_EQ(geometry.HeadOf(1, 6).left, geometry.HeadOf(1, 5).right);
}

int ColumnsOf(const YearGeometry& geometry) {
  int count = 1;
  while (count < 12 && geometry.NameOf(count + 1).top == geometry.NameOf(count).top) {
    ++count;
  }
  return count;
}

TEST(YearGeometry, ArrangesTheMonthsToFitTheShape) {
  struct Case {
    Extent size;
    int columns;
  };
  for (const auto& [size, columns] :
       {Case{{1800, 120}, 12}, Case{{900, 250}, 6}, Case{{640, 360}, 4}, Case{{500, 600}, 3},
        Case{{320, 800}, 2}, Case{{200, 1500}, 1}, Case{{3840, 2160}, 4}}) {
    const YearGeometry geometry(size, 2026, common);
    EXPECT_EQ(geometry.MonthsShown(), 12) << size.cx;
    EXPECT_EQ(ColumnsOf(geometry), columns) << size.cx;
  }
}

TEST(YearGeometry, ShowsFewerMonthsInsteadOfCellsThatAreTooSmall) {
  const YearGeometry geometry({320, 240}, 2026, common, 4);
  EXPECT_EQ(geometry.MonthsShown(), 4);
  EXPECT_EQ(geometry.FirstMonth(), 4);
  EXPECT_TRUE(geometry.Shows(4));
  EXPECT_TRUE(geometry.Shows(7));
  EXPECT_FALSE(geometry.Shows(3));
  EXPECT_FALSE(geometry.Shows(8));
  EXPECT_TRUE(geometry.CellOf({2026, 3, 31}).IsEmpty());
  EXPECT_TRUE(geometry.NameOf(8).IsEmpty());
  EXPECT_FALSE(geometry.CellOf({2026, 7, 1}).IsEmpty());
}

TEST(YearGeometry, TheFirstMonthIsMovedSoThatTheRoomIsFull) {
  EXPECT_EQ(YearGeometry({320, 240}, 2026, common, 12).FirstMonth(), 9);
  EXPECT_EQ(YearGeometry({320, 240}, 2026, common, 0).FirstMonth(), 1);
  EXPECT_EQ(YearGeometry({640, 360}, 2026, common, 5).FirstMonth(), 1);
}

TEST(YearGeometry, OnADenseScreenThereIsAsMuchToBeSeen) {
  const YearGeometry dense({640, 480}, 2026, {2});
  EXPECT_EQ(dense.MonthsShown(), 4);
  EXPECT_GE(dense.CellWidth(), 36);
}

TEST(YearGeometry, WeeksHaveNumbersWhereThereIsRoom) {
  EXPECT_TRUE(YearGeometry({1200, 800}, 2026, common).HasWeeks());
  EXPECT_FALSE(YearGeometry({560, 360}, 2026, common).HasWeeks());
  EXPECT_FALSE(YearGeometry({560, 360}, 2026, common).WeekOf(1, 1));
}

TEST(YearGeometry, WithoutRoomThereIsNothing) {
  for (const Extent size : {Extent{0, 0}, Extent{-1, -1}, Extent{5, 500}, Extent{500, 5}}) {
    const YearGeometry geometry(size, 2026, common);
    EXPECT_EQ(geometry.PlaceAt({0, 0}), std::nullopt);
    EXPECT_EQ(geometry.PlaceAt({3, 3}), std::nullopt);
    EXPECT_EQ(geometry.NearestDate({3, 3}), std::nullopt);
  }
}

TEST(YearGeometry, BesideTheDatesThereIsNone) {
  const YearGeometry geometry({640, 360}, 2026, common);
  for (const Point place : {Point{-1, 100}, Point{100, -1}, Point{10000, 100}, Point{100, 10000}}) {
    EXPECT_FALSE(geometry.PlaceAt(place));
  }
  // January 2026 begins on a Thursday.
  const int top = geometry.HeadOf(1, 0).bottom;
  EXPECT_FALSE(geometry.PlaceAt({geometry.HeadOf(1, 2).left, top}));
  EXPECT_EQ(geometry.PlaceAt({geometry.HeadOf(1, 3).left, top}),
            YearPlace(CalendarDate{2026, 1, 1}));
}

TEST(YearGeometry, FindsTheDateNearestToAPlaceAnywhere) {
  const YearGeometry geometry({640, 360}, 2026, common);
  EXPECT_EQ(geometry.NearestDate({geometry.CellOf({2026, 1, 1}).left, -5000}),
            (CalendarDate{2026, 1, 1}));
  // 27 December is the last Sunday, and stands furthest to the right.
  EXPECT_EQ(geometry.NearestDate({500000, 500}), (CalendarDate{2026, 12, 27}));
  // The end of February 2026 is a Saturday, beside which there is no date.
  const Rect last = geometry.CellOf({2026, 2, 28});
  EXPECT_EQ(geometry.NearestDate({last.right + 3, last.bottom + 1}), (CalendarDate{2026, 2, 28}));
}

}  // namespace
}  // namespace qv
