#include "tools/QVDateTime.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>

namespace {

namespace chrono = std::chrono;

chrono::year_month_day Peer(int year, int month, int day) {
  return {chrono::year(year), chrono::month(static_cast<unsigned>(month)),
          chrono::day(static_cast<unsigned>(day))};
}

QVDateTime Date(int year, int month, int day) { return {year, month, day, 0, 0, 0, 0, 0}; }

/// 1 for Sunday to 7 for Saturday, 0 for a date that doesn't exist.
int PeerDayOfWeek(const chrono::year_month_day& date) {
  return date.ok() ? static_cast<int>(chrono::weekday(chrono::sys_days{date}).c_encoding()) + 1 : 0;
}

/// Expects the date to be as the standard library has it, which counts years up to 32767.
void ExpectAsPeer(int year, int month, int day) {
  const auto peer = Peer(year, month, day);
  const QVDateTime date = Date(year, month, day);
  ASSERT_EQ(date.Valid(), peer.ok()) << year << '-' << month << '-' << day;
  ASSERT_EQ(date.DayOfWeek(), PeerDayOfWeek(peer)) << year << '-' << month << '-' << day;
}

int PeerDaysOfMonth(int year, int month) {
  const chrono::year_month_day_last last(
      chrono::year(year), chrono::month_day_last(chrono::month(static_cast<unsigned>(month))));
  return static_cast<int>(static_cast<unsigned>(last.day()));
}

TEST(QVDateTime, AgreesWithTheStandardLibraryOnEveryDayOfTwoCenturies) {
  for (int year = 1890; year <= 2110; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 0; day <= 32; ++day) {
        ASSERT_NO_FATAL_FAILURE(ExpectAsPeer(year, month, day));
      }
    }
  }
}

TEST(QVDateTime, AgreesWithTheStandardLibraryInEveryYear) {
  for (int year = -32767; year <= 32767; ++year) {
    const int month = 1 + (year + 32767) % 12;
    for (const int day : {1, 13, 28, 29, 30, 31, 32}) {
      ASSERT_NO_FATAL_FAILURE(ExpectAsPeer(year, month, day));
    }
    ASSERT_NO_FATAL_FAILURE(ExpectAsPeer(year, 2, 29));
    ASSERT_EQ(DaysOfMonth(Date(year, month, 1)), PeerDaysOfMonth(year, month)) << year;
    ASSERT_EQ(DaysOfMonth(Date(year, 2, 1)), PeerDaysOfMonth(year, 2)) << year;
  }
}

TEST(QVDateTime, IsNotValidUntilADateIsSet) {
  QVDateTime date;
  EXPECT_FALSE(date.Valid());
  EXPECT_EQ(date.DayOfWeek(), 0);
  date.SetDate(2026, 1, 31);
  EXPECT_TRUE(date.Valid());
  EXPECT_EQ(date.Year(), 2026);
  EXPECT_EQ(date.Month(), 1);
  EXPECT_EQ(date.Day(), 31);
  EXPECT_EQ(date.DayOfWeek(), 7);
}

TEST(QVDateTime, TakesTheFirstThreeOfEightNumbersForTheDate) {
  const QVDateTime date(2024, 2, 29, 1, 2, 3, 4, 5);
  EXPECT_EQ(date.Year(), 2024);
  EXPECT_EQ(date.Month(), 2);
  EXPECT_EQ(date.Day(), 29);
  EXPECT_EQ(date.DayOfWeek(), 5);
}

TEST(QVDateTime, ADateThatDoesNotExistKeepsItsNumbers) {
  constexpr int least = std::numeric_limits<int>::min();
  constexpr int most = std::numeric_limits<int>::max();
  const int dates[][3] = {{2026, 2, 29}, {2026, 2, 30},  {1900, 2, 29},       {2026, 13, 1},
                          {2026, 0, 1},  {2026, 1, 0},   {2026, 1, 32},       {2026, -1, -1},
                          {99999, 1, 1}, {32768, 1, 1},  {-32769, 12, 31},    {2026, 4, 31},
                          {least, 1, 1}, {most, 12, 31}, {2026, least, most}, {2026, most, least}};
  for (const auto& [year, month, day] : dates) {
    QVDateTime date;
    date.SetDate(year, month, day);
    EXPECT_FALSE(date.Valid()) << year << '-' << month << '-' << day;
    EXPECT_EQ(date.DayOfWeek(), 0) << year << '-' << month << '-' << day;
    EXPECT_EQ(date.Year(), year);
    EXPECT_EQ(date.Month(), month);
    EXPECT_EQ(date.Day(), day);
  }
}

TEST(QVDateTime, EveryYearOfSixteenBitsIsReal) {
  for (const int year : {-32768, -400, -1, 0, 1, 9999, 32767}) {
    EXPECT_TRUE(Date(year, 1, 1).Valid()) << year;
    EXPECT_TRUE(Date(year, 12, 31).Valid()) << year;
  }
  EXPECT_EQ(Date(-32768, 12, 31).DayOfWeek() % 7 + 1, Date(-32767, 1, 1).DayOfWeek());
}

TEST(QVDateTime, IsCopiedByAssignment) {
  const QVDateTime source(2026, 12, 31, 0, 0, 0, 0, 0);
  QVDateTime date;
  date = source;
  EXPECT_EQ(date.Year(), 2026);
  EXPECT_EQ(date.Month(), 12);
  EXPECT_EQ(date.Day(), 31);
}

TEST(QVDateTime, ComparesByYearThenMonthThenDay) {
  const QVDateTime ascending[] = {Date(-5, 12, 31),  Date(0, 0, 0),    Date(1999, 12, 31),
                                  Date(2000, 1, 1),  Date(2000, 1, 2), Date(2000, 2, 1),
                                  Date(2000, 2, 30), Date(2000, 3, 1), Date(2000, 13, 1),
                                  Date(2001, 1, 1),  Date(99999, 1, 1)};
  for (std::size_t i = 0; i < std::size(ascending); ++i) {
    for (std::size_t j = 0; j < std::size(ascending); ++j) {
      EXPECT_EQ(ascending[i] <= ascending[j], i <= j) << i << ' ' << j;
    }
  }
}

TEST(QVDateTime, TheTimeOfDayTakesNoPartInComparing) {
  const QVDateTime late(2026, 1, 1, 23, 59, 59, 999, 999);
  EXPECT_TRUE(late <= Date(2026, 1, 1));
  EXPECT_TRUE(Date(2026, 1, 1) <= late);
}

TEST(DaysOfMonth, LooksAtYearAndMonthAlone) {
  const int months[][3] = {{2026, 2, 28}, {2024, 2, 29},  {1900, 2, 28}, {2000, 2, 29},
                           {2026, 4, 30}, {2026, 12, 31}, {0, 2, 29},    {-4, 2, 29},
                           {-100, 2, 28}, {99999, 2, 28}, {2026, 0, 0},  {2026, 13, 0},
                           {2026, -1, 0}};
  for (const auto& [year, month, days] : months) {
    EXPECT_EQ(DaysOfMonth(Date(year, month, 1)), days) << year << '-' << month;
    EXPECT_EQ(DaysOfMonth(Date(year, month, 99)), days) << year << '-' << month;
  }
}

}  // namespace
