#pragma once

#include <vector>

#include "calendar/CalendarDate.h"

namespace qv {

/// Where a key of the calendar leads.
enum class CursorKey { Left, Right, Up, Down, Home, End, PageUp, PageDown };

/// The date that has the keyboard, and the range that is selected up to it.
class CalendarCursor {
 public:
  explicit CalendarCursor(CalendarDate date) : m_date(date), m_start(date) {}

  CalendarDate Date() const { return m_date; }

  /// Years that the cursor stays in, both included; what leads out of them does nothing.
  void SetYears(int first, int last);

  bool CanReach(int year) const { return year >= m_firstYear && year <= m_lastYear; }

  /// Left and Right go by the day, Up and Down by the week, Home and End to the first and last date
  /// of the month, the page keys by the month. `byYear` makes that the year in each case. `extends`
  /// takes the range along, which else goes. Whether the cursor moved or the range went.
  bool Move(CursorKey key, bool byYear, bool extends);

  /// Goes to a date by itself. `extends` takes the range along.
  void GoTo(CalendarDate date, bool extends = false);

  /// Whether more than one date is selected.
  bool HasRange() const { return m_start != m_date; }
  /// Leaves the cursor's date alone selected.
  void DropRange() { m_start = m_date; }
  /// Whether a date is in the range, or the cursor's alone.
  bool IsSelected(CalendarDate date) const;
  /// The dates of the range in order, or that of the cursor alone.
  std::vector<CalendarDate> Selected() const;

 private:
  CalendarDate m_date;
  CalendarDate m_start;  // of the range
  int m_firstYear = 1;
  int m_lastYear = 9999;
};

}  // namespace qv
