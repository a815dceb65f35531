#include "calendar/ui/WeekRows.h"

#include "calendar/Weeks.h"
#include "calendar/YearDates.h"
#include "calendar/ui/DateCells.h"
#include "calendar/ui/YearView.h"
#include "calendar/ui/YearWords.h"
#include "toolkit/Strings.h"
#include "tools/Format.h"

namespace qv {

QAccessibleInterface* WeekRows::cellAt(int row, int column) const {
  const bool isInside = column >= 0 && column < daysOfWeek;
  return isInside ? m_cells.At(row * daysOfWeek + column) : nullptr;
}

int WeekRows::rowCount() const { return m_cells.Grid().Rows(); }

int WeekRows::columnCount() const { return daysOfWeek; }

QString WeekRows::rowDescription(int row) const {
  const YearGrid grid = m_cells.Grid();
  // The first week may lack its Monday, and the last one its Sunday.
  const int monday = row * daysOfWeek;
  const auto first = grid.DateAt(monday);
  const auto date = first ? first : grid.DateAt(monday + daysOfWeek - 1);
  const std::wstring form = YearWord(Text::YearWeek).toStdWString();
  return date ? ToQString(Format(form.empty() ? L"%d" : form, {WeekNumberOf(*date)})) : QString();
}

QString WeekRows::columnDescription(int column) const {
  if (column < 0 || column >= daysOfWeek) {
    return {};
  }
  const auto index = static_cast<std::size_t>(column);
  const std::wstring whole = HostDateForms().weekdays[index];
  return whole.empty() ? ToQString(m_view.Style().weekdayNames[index]) : ToQString(whole);
}

int WeekRows::selectedCellCount() const { return static_cast<int>(selectedCells().size()); }

QList<QAccessibleInterface*> WeekRows::selectedCells() const {
  QList<QAccessibleInterface*> cells;
  for (const CalendarDate date : m_view.Gestures().Cursor().Selected()) {
    if (date.year == m_view.Year()) {
      cells.append(m_cells.At(m_cells.Grid().CellOf(date)));
    }
  }
  return cells;
}

void WeekRows::modelChange(QAccessibleTableModelChangeEvent* /*event*/) { m_cells.Forget(); }

}  // namespace qv
