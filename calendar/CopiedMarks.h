#pragma once

#include <optional>
#include <vector>

#include "calendar/CalendarMarks.h"

namespace qv {

/// The marks of one week and those of one month, ready for others. Each is kept until another week
/// or month is copied.
class CopiedMarks {
 public:
  /// Copies the date's week, Monday to Sunday.
  void CopyWeek(const CalendarMarks& marks, CalendarDate date);
  /// Copies the date's month.
  void CopyMonth(const CalendarMarks& marks, CalendarDate date);

  bool HasWeek() const { return !m_week.empty(); }
  bool HasMonth() const { return !m_month.empty(); }

  /// What makes the date's week like the copied one, weekday by weekday; a date that had no mark
  /// takes it away. Empty if no week was copied.
  std::vector<DateBrush> WeekAt(CalendarDate date) const;
  /// Likewise for the date's month, day by day: what the shorter month lacks is left out.
  std::vector<DateBrush> MonthAt(CalendarDate date) const;

 private:
  std::vector<Brush> m_week;
  std::vector<Brush> m_month;
};

enum class RepeatBy { Weekday, Date };

/// What makes the year after `year` like it. By date, each date is like the one of the same month
/// and day, and a 29 February that `year` lacks stays as it is. By weekday, it is like the one 52
/// weeks before; the last dates, for which that isn't in `year`, are like those of a week earlier.
/// A date without a mark takes it away in the next year.
std::vector<DateBrush> NextYearLike(const CalendarMarks& marks, int year, RepeatBy by);

}  // namespace qv
