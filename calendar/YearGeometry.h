#pragma once

#include <optional>

#include "calendar/CalendarDate.h"
#include "tools/Canvas.h"

namespace qv {

/// Where the months and dates of one year stand in a rectangle that begins at its corner: months in
/// rows and columns, each with a line for its name, one for the weekdays from Monday on, and one
/// for each of six weeks. The number of columns is that with the largest cells.
class YearGeometry {
 public:
  /// Of any unit; all cells have one size, in whole units.
  YearGeometry(Extent size, int year);

  int Year() const { return m_year; }

  /// The line with the name of a month, 1 to 12.
  Rect NameOf(int month) const;
  /// The cell above the column of a weekday, 0 for Monday to 6 for Sunday.
  Rect HeadOf(int month, int weekday) const;
  /// The cell of a date of the year.
  Rect CellOf(CalendarDate date) const;
  /// The date whose cell holds this place, if there is one.
  std::optional<CalendarDate> DateAt(Point place) const;

  int CellHeight() const { return m_cell.cy; }
  int CellWidth() const { return m_cell.cx; }

 private:
  Point CornerOf(int month) const;
  Rect CellAt(int month, int column, int line) const;
  std::optional<int> MonthAt(Point place) const;
  /// How many cells of the first week stand before the 1st.
  int CellsBefore(int month) const;

  int m_year;
  int m_columns = 1;
  int m_gap = 0;
  Extent m_cell;
};

}  // namespace qv
