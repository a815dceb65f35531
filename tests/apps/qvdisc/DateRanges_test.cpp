#include "apps/qvdisc/DateRanges.h"

#include <gtest/gtest.h>

#include "tests/calendar/Printing.h"

namespace qvdisc {
namespace {

TEST(DateRanges, AreTheFewestThatHoldTheDates) {
  const std::vector<qv::CalendarDate> dates = {{2026, 2, 27}, {2026, 2, 28},  {2026, 3, 1},
                                               {2026, 5, 1},  {2027, 12, 31}, {2028, 1, 1}};
  EXPECT_EQ(RangesOf(dates), (std::vector<DateRange>{{{2026, 2, 27}, {2026, 3, 1}},
                                                     {{2026, 5, 1}, {2026, 5, 1}},
                                                     {{2027, 12, 31}, {2028, 1, 1}}}));
  EXPECT_EQ(RangesOf({}), std::vector<DateRange>{});
  EXPECT_EQ(RangesAsText(dates, qv::Language::English),
            L"2026-02-27 to 2026-03-01, 2026-05-01, 2027-12-31 to 2028-01-01");
  EXPECT_EQ(RangesAsText({{-44, 3, 15}}, qv::Language::Spanish), L"-0044-03-15");
}

}  // namespace
}  // namespace qvdisc
