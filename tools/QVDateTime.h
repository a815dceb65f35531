#pragma once

#include "tools/Export.h"

/// A calendar date with a time of day. It keeps the numbers that it is given, also those of a date
/// that doesn't exist: such a date isn't `Valid`, yet gives its parts and compares by them.
///
/// The calendar is the proleptic Gregorian one; every year of 16 bits with sign is real, 0 and
/// negative ones included.
class QVTOOLS_EXPORT QVDateTime {
 public:
  /// Not `Valid` until a date is set.
  QVDateTime() = default;
  /// Month and day count from 1. The time of day is kept but takes no part in anything else.
  QVDateTime(int year, int month, int day, int hour, int minute, int second, int millisecond,
             int microsecond);

  int Year() const { return m_year; }
  int Month() const { return m_month; }
  int Day() const { return m_day; }

  /// 1 for Sunday up to 7 for Saturday; 0 if the date isn't `Valid`.
  int DayOfWeek() const;

  /// Replaces the date and leaves the time of day.
  void SetDate(int year, int month, int day);

  /// Whether the date is one of the calendar.
  bool Valid() const;

  /// Whether this date is `other` or before it, by year, month and day.
  bool operator<=(const QVDateTime& other) const;

 private:
  int m_year = 0;
  int m_month = 0;
  int m_day = 0;
  int m_hour = 0;
  int m_minute = 0;
  int m_second = 0;
  int m_millisecond = 0;
  int m_microsecond = 0;
};

/// Days in the month of `date`, by its year and month alone; 0 if the month isn't one of 1 to 12.
QVTOOLS_EXPORT int DaysOfMonth(const QVDateTime& date);
