#include "apps/qvdisc/CalledDates.h"

#include <gtest/gtest.h>

#include "tests/calendar/Printing.h"

namespace qvdisc {
namespace {

using Dates = std::vector<qv::CalendarDate>;

Dates Read(const std::string& text) { return std::get<Dates>(ReadDates(text)); }

template <class Value>
std::string Fault(const std::variant<Value, std::string>& read) {
  const auto* fault = std::get_if<std::string>(&read);
  return fault ? *fault : "none";
}

TEST(CalledDates, AreOneOrThoseOfARangeWithBothEnds) {
  EXPECT_EQ(Read("2026-01-06"), (Dates{{2026, 1, 6}}));
  EXPECT_EQ(Read("2026-01-06..2026-01-06"), (Dates{{2026, 1, 6}}));
  EXPECT_EQ(Read("2027-12-30..2028-01-02"),
            (Dates{{2027, 12, 30}, {2027, 12, 31}, {2028, 1, 1}, {2028, 1, 2}}));
  EXPECT_EQ(Read("2028-02-28..2028-03-01"), (Dates{{2028, 2, 28}, {2028, 2, 29}, {2028, 3, 1}}));
  EXPECT_EQ(Read("2026-02-28..2026-03-01"), (Dates{{2026, 2, 28}, {2026, 3, 1}}));
}

TEST(CalledDates, HaveAnyYearOf16Bits) {
  EXPECT_EQ(Read("0000-02-29"), (Dates{{0, 2, 29}}));
  EXPECT_EQ(Read("-32768-01-01"), (Dates{{-32768, 1, 1}}));
  EXPECT_EQ(Read("32767-12-31"), (Dates{{32767, 12, 31}}));
  for (const char* text : {"32768-01-01", "-32769-01-01", "99999-01-01", "2026-01-01..99999-01-01",
                           "1234567890123456789012345678901234567890-01-01"}) {
    EXPECT_EQ(Fault(ReadDates(text)), std::string("Years are -32768 to 32767: ") + text);
  }
}

TEST(CalledDates, OfAnotherFormAreRefused) {
  for (const char* text : {"",
                           "2026",
                           "2026-01",
                           "2026-1-6",
                           "26-01-06",
                           "2026-01-06 ",
                           " 2026-01-06",
                           "2026/01/06",
                           "20260106",
                           "2026-01-006",
                           "2026-01-06..",
                           "..2026-01-06",
                           "2026-01-01.2026-01-06",
                           "2026-01-01...2026-01-06",
                           "2026-01-01..2026-01-06..2026-01-08",
                           "2026-01-01..06",
                           "2026-01-01,2026-01-06",
                           "-2026",
                           "--2026-01-01",
                           "Winter day"}) {
    EXPECT_EQ(Fault(ReadDates(text)),
              std::string("Dates are written as 2026-01-06 or 2026-01-01..2026-01-06: ") + text);
  }
}

TEST(CalledDates, ThatDoNotExistAreRefused) {
  for (const char* text : {"2026-02-29", "2026-04-31", "2026-00-10", "2026-13-10", "2026-01-00",
                           "2026-01-32", "2026-02-01..2026-02-31", "2026-02-30..2026-03-01"}) {
    EXPECT_EQ(Fault(ReadDates(text)), std::string("There is no such date: ") + text);
  }
}

TEST(CalledDates, OfARangeAreInOrderAndNotTooMany) {
  EXPECT_EQ(Fault(ReadDates("2026-01-06..2026-01-05")),
            "A range starts with its earlier date: 2026-01-06..2026-01-05");
  EXPECT_EQ(Read("2000-01-01..2999-12-31").size(), 365242U + 1U);
  EXPECT_EQ(Fault(ReadDates("2000-01-01..3000-01-01")),
            "A range covers at most 1000 years: 2000-01-01..3000-01-01");
}

TEST(CalledYear, HasFourDigitsOrMoreAndFitsInto16Bits) {
  EXPECT_EQ(std::get<int>(ReadYear("2026")), 2026);
  EXPECT_EQ(std::get<int>(ReadYear("-0044")), -44);
  for (const char* text : {"", "26", "this", "2026 ", "2026-01", "+2026", "20 26"}) {
    EXPECT_EQ(Fault(ReadYear(text)),
              std::string("A year is written with four digits or more: ") + text);
  }
  EXPECT_EQ(Fault(ReadYear("32768")), "Years are -32768 to 32767: 32768");
}

TEST(CalledWeekdays, AreBitsFromMondayOn) {
  EXPECT_EQ(std::get<0>(ReadWeekdays("mon")), 0x01U);
  EXPECT_EQ(std::get<0>(ReadWeekdays("sun")), 0x40U);
  EXPECT_EQ(std::get<0>(ReadWeekdays("sat,mon,sat")), 0x21U);
  EXPECT_EQ(std::get<0>(ReadWeekdays("mon,wed-fri")), 0x1DU);
  EXPECT_EQ(std::get<0>(ReadWeekdays("mon-sun")), 0x7FU);
  EXPECT_EQ(std::get<0>(ReadWeekdays("tue-tue")), 0x02U);
  for (const char* text : {"", ",", "mon,", ",mon", "mon,,tue", "Mon", "monday", "1", "fri-mon",
                           "mon-", "-mon", "mon-tue-wed", "mon, tue"}) {
    EXPECT_EQ(Fault(ReadWeekdays(text)),
              std::string("Weekdays are written as mon,wed-fri: ") + text);
  }
}

TEST(CalledMonths, AreBitsFromJanuaryOn) {
  EXPECT_EQ(std::get<0>(ReadMonths("1")), 0x001U);
  EXPECT_EQ(std::get<0>(ReadMonths("12")), 0x800U);
  EXPECT_EQ(std::get<0>(ReadMonths("1,7-8")), 0x0C1U);
  EXPECT_EQ(std::get<0>(ReadMonths("01-12")), 0xFFFU);
  for (const char* text : {"", "0", "13", "1-13", "0-3", "8-7", "jan", "001", "1;2", "1-", "1 "}) {
    EXPECT_EQ(Fault(ReadMonths(text)), std::string("Months are written as 1,7-8: ") + text);
  }
}

}  // namespace
}  // namespace qvdisc
