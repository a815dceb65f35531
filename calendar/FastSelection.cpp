#include "calendar/FastSelection.h"

namespace qv {
namespace {

bool HasBit(std::uint32_t mask, int bit) { return (mask >> bit & 1U) != 0; }

/// 0 for Monday to 6 for Sunday, of a date that is `Valid`.
int WeekdayBit(const QVDateTime& date) {
  constexpr int sunday = 1;
  constexpr int sundayBehindSaturday = 8;
  constexpr int monday = 2;
  const int weekday = date.DayOfWeek();
  return (weekday == sunday ? sundayBehindSaturday : weekday) - monday;
}

}  // namespace

bool MatchesFastSelection(const QVDateTime& date, const FastSelection& rule) {
  return date.Valid() && HasBit(rule.months, date.Month() - 1) &&
         HasBit(rule.weekDays, WeekdayBit(date));
}

std::vector<CalendarDate> DatesOfFastSelection(int year, const FastSelection& rule) {
  std::vector<CalendarDate> dates;
  for (int month = 1; month <= 12; ++month) {
    const int days = DaysIn(year, month);
    for (int day = 1; day <= days; ++day) {
      const CalendarDate date{year, month, day};
      if (MatchesFastSelection(ToDateTime(date), rule)) {
        dates.push_back(date);
      }
    }
  }
  return dates;
}

bool MonthRange::Set(int first, int last) {
  *this = MonthRange();
  if (first < 1 || last > 12 || first > last) {
    return false;
  }
  m_first = first;
  m_last = last;
  return true;
}

}  // namespace qv
