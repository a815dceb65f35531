#pragma once

#include <optional>

#include "calendar/CalendarDate.h"

namespace qv {

/// A year as a table: a row for each week that has a date of it, from Monday to Sunday. Cells are
/// counted row by row from 0; those of the first and last row that are dates of other years are
/// empty.
class YearGrid {
 public:
  explicit YearGrid(int year);

  int Rows() const;
  int Cells() const;
  /// The date in a cell; nothing for an empty one or an index that isn't one.
  std::optional<CalendarDate> DateAt(int cell) const;
  /// The cell of a date of the year.
  int CellOf(CalendarDate date) const;

 private:
  CalendarDate m_first;
  CalendarDate m_monday;  // on or before the first date
};

}  // namespace qv
