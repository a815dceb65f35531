#include "calendar/YearGestures.h"

#include <utility>

#include "calendar/YearDates.h"

namespace qv {

void YearGestures::Press(CalendarDate date, bool extends) {
  m_before = m_cursor;
  m_start = extends ? m_cursor.Date() : date;
  m_covered = DatesBetween(*m_start, date);
  m_cursor.GoTo(date);
}

bool YearGestures::DragTo(CalendarDate date, bool asBlock) {
  if (!m_start) {
    return false;
  }
  m_cursor.GoTo(date);
  const auto before = std::exchange(
      m_covered, asBlock ? BlockBetween(*m_start, date) : DatesBetween(*m_start, date));
  return m_covered != before;
}

bool YearGestures::Release() {
  m_start.reset();
  return m_marks.Apply(std::exchange(m_covered, {}));
}

void YearGestures::Cancel() {
  if (m_start) {
    m_start.reset();
    m_covered.clear();
    m_cursor = m_before;
  }
}

bool YearGestures::MarkSelected() {
  const auto dates = m_cursor.Selected();
  m_cursor.DropRange();
  return m_marks.Apply(dates);
}

bool YearGestures::EraseSelected() {
  std::vector<DateBrush> erased;
  for (const CalendarDate date : m_cursor.Selected()) {
    erased.push_back({date, {}});
  }
  m_cursor.DropRange();
  return m_marks.ApplyEach(erased);
}

bool YearGestures::RepeatYear(RepeatBy by) {
  return m_marks.ApplyEach(NextYearLike(m_marks, m_cursor.Date().year, by));
}

}  // namespace qv
