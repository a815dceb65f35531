#include "calendar/CalendarCursor.h"

#include <algorithm>

#include "calendar/YearDates.h"

namespace qv {
namespace {

CalendarDate LastOfMonth(CalendarDate date) { return DatesOfMonth(date.year, date.month).back(); }

CalendarDate ByYear(CalendarDate date, CursorKey key) {
  switch (key) {
    case CursorKey::Home:
      return {date.year, 1, 1};
    case CursorKey::End:
      return {date.year, monthsOfYear, 31};
    case CursorKey::Left:
    case CursorKey::Up:
    case CursorKey::PageUp:
      return MonthsAfter(date, -monthsOfYear);
    default:
      return MonthsAfter(date, monthsOfYear);
  }
}

CalendarDate ByDayAndMonth(CalendarDate date, CursorKey key) {
  switch (key) {
    case CursorKey::Left:
      return DaysAfter(date, -1);
    case CursorKey::Right:
      return DaysAfter(date, 1);
    case CursorKey::Up:
      return DaysAfter(date, -daysOfWeek);
    case CursorKey::Down:
      return DaysAfter(date, daysOfWeek);
    case CursorKey::Home:
      return {date.year, date.month, 1};
    case CursorKey::End:
      return LastOfMonth(date);
    case CursorKey::PageUp:
      return MonthsAfter(date, -1);
    default:
      return MonthsAfter(date, 1);
  }
}

}  // namespace

void CalendarCursor::SetYears(int first, int last) {
  m_firstYear = first;
  m_lastYear = last;
}

bool CalendarCursor::Move(CursorKey key, bool byYear, bool extends) {
  const CalendarDate to = byYear ? ByYear(m_date, key) : ByDayAndMonth(m_date, key);
  if (!CanReach(to.year)) {
    return false;
  }
  const bool changes = to != m_date || (HasRange() && !extends);
  GoTo(to, extends);
  return changes;
}

void CalendarCursor::GoTo(CalendarDate date, bool extends) {
  m_date = date;
  if (!extends) {
    m_start = date;
  }
}

bool CalendarCursor::IsSelected(CalendarDate date) const {
  const auto [first, last] = std::minmax({m_start, m_date});
  return first <= date && date <= last;
}

std::vector<CalendarDate> CalendarCursor::Selected() const { return DatesBetween(m_start, m_date); }

}  // namespace qv
