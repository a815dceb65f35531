#include "calendar/YearGeometry.h"

#include <gtest/gtest.h>

#include "tests/calendar/Printing.h"

namespace qv {
namespace {

struct YearOfSize {
  int width;
  int height;
};

class YearGeometryTest : public testing::TestWithParam<YearOfSize> {
 protected:
  YearGeometry Of(int year) const { return {{GetParam().width, GetParam().height}, year}; }
};

std::vector<CalendarDate> DatesOf(int year) {
  std::vector<CalendarDate> dates;
  for (int month = 1; month <= 12; ++month) {
    for (int day = 1; day <= DaysOfMonth(ToDateTime({year, month, 1})); ++day) {
      dates.push_back({year, month, day});
    }
  }
  return dates;
}

TEST_P(YearGeometryTest, EveryDateIsFoundInItsWholeCellAndNowhereElse) {
  for (const int year : {-1, 2024, 2026}) {
    const YearGeometry geometry = Of(year);
    for (const CalendarDate date : DatesOf(year)) {
      const Rect cell = geometry.CellOf(date);
      ASSERT_FALSE(cell.IsEmpty());
      ASSERT_EQ(geometry.DateAt({cell.left, cell.top}), date);
      ASSERT_EQ(geometry.DateAt({cell.right - 1, cell.bottom - 1}), date);
      ASSERT_NE(geometry.DateAt({cell.left - 1, cell.top}), date);
      ASSERT_NE(geometry.DateAt({cell.left, cell.bottom}), date);
    }
  }
}

TEST_P(YearGeometryTest, AllLiesInside) {
  const YearGeometry geometry = Of(2026);
  for (int month = 1; month <= 12; ++month) {
    for (const Rect& place :
         {geometry.NameOf(month), geometry.HeadOf(month, 6), geometry.CellOf({2026, month, 28})}) {
      EXPECT_GE(place.left, 0);
      EXPECT_GE(place.top, 0);
      EXPECT_LE(place.right, GetParam().width);
      EXPECT_LE(place.bottom, GetParam().height);
    }
  }
}

TEST_P(YearGeometryTest, ADateStandsBelowItsWeekday) {
  const YearGeometry geometry = Of(2026);
  // 1 June 2026 is a Monday, 1 November a Sunday.
  EXPECT_EQ(geometry.CellOf({2026, 6, 1}).left, geometry.HeadOf(6, 0).left);
  EXPECT_EQ(geometry.CellOf({2026, 6, 1}).top, geometry.HeadOf(6, 0).bottom);
  EXPECT_EQ(geometry.CellOf({2026, 11, 1}).left, geometry.HeadOf(11, 6).left);
  EXPECT_EQ(geometry.CellOf({2026, 6, 1}).top, geometry.NameOf(6).bottom + geometry.CellHeight());
}

INSTANTIATE_TEST_SUITE_P(Sizes, YearGeometryTest,
                         testing::Values(YearOfSize{640, 360}, YearOfSize{320, 240},
                                         YearOfSize{1200, 800}, YearOfSize{3840, 2160},
                                         YearOfSize{200, 1500}, YearOfSize{1800, 120},
                                         YearOfSize{500, 500}, YearOfSize{333, 777}));

TEST(YearGeometry, ArrangesTheMonthsToFitTheShape) {
  const auto columns = [](Extent size) {
    const YearGeometry geometry(size, 2026);
    int count = 1;
    while (count < 12 && geometry.NameOf(count + 1).top == geometry.NameOf(count).top) {
      ++count;
    }
    return count;
  };
  EXPECT_EQ(columns({1800, 120}), 12);
  EXPECT_EQ(columns({200, 1500}), 1);
  EXPECT_EQ(columns({640, 360}), 4);
  EXPECT_EQ(columns({500, 600}), 3);
}

TEST(YearGeometry, WithoutRoomThereIsNoDate) {
  for (const Extent size : {Extent{0, 0}, Extent{-1, -1}, Extent{5, 500}, Extent{500, 5}}) {
    const YearGeometry geometry(size, 2026);
    EXPECT_FALSE(geometry.DateAt({0, 0}));
    EXPECT_FALSE(geometry.DateAt({3, 3}));
  }
}

TEST(YearGeometry, BesideTheDatesThereIsNone) {
  const YearGeometry geometry({640, 360}, 2026);
  EXPECT_FALSE(geometry.DateAt({-1, 100}));
  EXPECT_FALSE(geometry.DateAt({100, -1}));
  EXPECT_FALSE(geometry.DateAt({10000, 100}));
  EXPECT_FALSE(geometry.DateAt({100, 10000}));
  const Rect head = geometry.HeadOf(1, 0);
  EXPECT_FALSE(geometry.DateAt({head.left, head.top}));
  // January 2026 begins on a Thursday.
  EXPECT_FALSE(geometry.DateAt({head.left, head.bottom}));
  EXPECT_EQ(geometry.DateAt({geometry.HeadOf(1, 3).left, head.bottom}), (CalendarDate{2026, 1, 1}));
}

}  // namespace
}  // namespace qv
