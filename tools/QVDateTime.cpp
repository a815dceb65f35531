#include "tools/QVDateTime.h"

#include <cstdint>
#include <limits>
#include <tuple>

namespace {

bool IsLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

}  // namespace

QVDateTime::QVDateTime(int year, int month, int day, int hour, int minute, int second,
                       int millisecond, int microsecond)
    : m_year(year),
      m_month(month),
      m_day(day),
      m_hour(hour),
      m_minute(minute),
      m_second(second),
      m_millisecond(millisecond),
      m_microsecond(microsecond) {}

int QVDateTime::DayOfWeek() const {
  if (!Valid()) {
    return 0;
  }
  // Zeller's congruence: years begin in March, and 400 years are a whole number of weeks, so that
  // any year may be moved into 2000 to 2399 first. It counts 0 for Saturday.
  const int shiftedMonth = m_month < 3 ? m_month + 12 : m_month;
  const int cycleYear = (m_year % 400 + 400) % 400 + 2000;
  const int year = m_month < 3 ? cycleYear - 1 : cycleYear;
  const int fromSaturday =
      (m_day + 13 * (shiftedMonth + 1) / 5 + year + year / 4 - year / 100 + year / 400) % 7;
  return fromSaturday == 0 ? 7 : fromSaturday;
}

void QVDateTime::SetDate(int year, int month, int day) {
  m_year = year;
  m_month = month;
  m_day = day;
}

bool QVDateTime::Valid() const {
  using Years = std::numeric_limits<std::int16_t>;
  return m_year >= Years::min() && m_year <= Years::max() && m_day >= 1 &&
         m_day <= DaysOfMonth(*this);
}

bool QVDateTime::operator<=(const QVDateTime& other) const {
  return std::tie(m_year, m_month, m_day) <= std::tie(other.m_year, other.m_month, other.m_day);
}

int DaysOfMonth(const QVDateTime& date) {
  static constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (date.Month() < 1 || date.Month() > 12) {
    return 0;
  }
  return date.Month() == 2 && IsLeapYear(date.Year()) ? 29 : days[date.Month() - 1];
}
