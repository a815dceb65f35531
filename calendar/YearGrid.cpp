#include "calendar/YearGrid.h"

#include "calendar/YearDates.h"

namespace qv {

YearGrid::YearGrid(int year) : m_first{year, 1, 1}, m_monday(MondayOf(m_first)) {}

int YearGrid::Rows() const { return CellOf({m_first.year, 12, 31}) / daysOfWeek + 1; }

int YearGrid::Cells() const { return Rows() * daysOfWeek; }

std::optional<CalendarDate> YearGrid::DateAt(int cell) const {
  const CalendarDate date = DaysAfter(m_monday, cell);
  return date.year == m_first.year ? std::optional(date) : std::nullopt;
}

int YearGrid::CellOf(CalendarDate date) const { return DaysFromTo(m_monday, date); }

}  // namespace qv
