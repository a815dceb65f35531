#pragma once

#include <optional>
#include <vector>

#include "calendar/CalendarCursor.h"
#include "calendar/CalendarMarks.h"
#include "calendar/CopiedMarks.h"

namespace qv {

/// What the user does to the dates of a calendar with pointer and keyboard. Each verb that changes
/// marks is one step that can be undone, and tells whether it changed any.
class YearGestures {
 public:
  /// `marks` outlive the gestures.
  YearGestures(CalendarMarks& marks, CalendarDate cursor) : m_marks(marks), m_cursor(cursor) {}

  CalendarCursor& Cursor() { return m_cursor; }
  const CalendarCursor& Cursor() const { return m_cursor; }
  const CopiedMarks& Copied() const { return m_copied; }

  /// Begins a stroke at a date, or at the cursor's if it `extends`, and takes the cursor along.
  void Press(CalendarDate date, bool extends = false);
  /// Leads the stroke on to a date: over all dates from where it began, or as a block of the same
  /// weekdays. Whether it covers other dates now. Without a stroke nothing happens.
  bool DragTo(CalendarDate date, bool asBlock = false);
  /// Ends the stroke and marks what it covers with the brush.
  bool Release();
  /// Takes the stroke back, and the cursor to where it was.
  void Cancel();
  bool IsDrawing() const { return m_start.has_value(); }
  /// The dates that the stroke would mark now, in order.
  const std::vector<CalendarDate>& Covered() const { return m_covered; }

  /// Marks dates, as those of a month, with the brush.
  bool Mark(const std::vector<CalendarDate>& dates) { return m_marks.Apply(dates); }
  /// Marks the selected dates, which leaves the cursor's alone selected.
  bool MarkSelected();
  /// Takes the marks of the selected dates away; the brush stays.
  bool EraseSelected();

  void CopyWeek() { m_copied.CopyWeek(m_marks, m_cursor.Date()); }
  void CopyMonth() { m_copied.CopyMonth(m_marks, m_cursor.Date()); }
  /// Makes the week or month of the cursor like the one that was copied last.
  bool PasteWeek() { return m_marks.ApplyEach(m_copied.WeekAt(m_cursor.Date())); }
  bool PasteMonth() { return m_marks.ApplyEach(m_copied.MonthAt(m_cursor.Date())); }
  /// Makes the year after that of the cursor like it.
  bool RepeatYear(RepeatBy by);

 private:
  CalendarMarks& m_marks;
  CalendarCursor m_cursor;
  CopiedMarks m_copied;
  std::optional<CalendarDate> m_start;  // of the stroke
  CalendarCursor m_before = m_cursor;   // the stroke
  std::vector<CalendarDate> m_covered;
};

}  // namespace qv
