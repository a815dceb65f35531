#include "calendar/YearGrid.h"

#include <gtest/gtest.h>

#include "calendar/Weeks.h"
#include "calendar/YearDates.h"
#include "tests/calendar/Printing.h"

namespace qv {
namespace {

TEST(YearGrid, EachDateHasItsCellBelowItsWeekday) {
  for (const int year : {2023, 2024, 2026, 2027, -4}) {
    const YearGrid grid(year);
    for (const CalendarDate date : DatesOfYear(year)) {
      const int cell = grid.CellOf(date);
      EXPECT_EQ(grid.DateAt(cell), date);
      EXPECT_EQ(cell % daysOfWeek, WeekdayOf(date));
      EXPECT_LT(cell, grid.Cells());
    }
  }
}

TEST(YearGrid, CellsOfOtherYearsAreEmpty) {
  const YearGrid grid(2026);  // from a Thursday to a Thursday
  EXPECT_EQ(grid.Rows(), 53);
  EXPECT_FALSE(grid.DateAt(2));
  EXPECT_EQ(grid.DateAt(3), (CalendarDate{2026, 1, 1}));
  EXPECT_FALSE(grid.DateAt(grid.Cells() - 3));
  EXPECT_FALSE(grid.DateAt(grid.Cells()));
  EXPECT_FALSE(grid.DateAt(-1));
}

TEST(YearGrid, ALeapYearFromASundayHasTheMostRows) {
  EXPECT_EQ(YearGrid(2012).Rows(), 54);
  EXPECT_EQ(YearGrid(2018).Rows(), 53);
}

}  // namespace
}  // namespace qv
