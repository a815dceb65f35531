#include "calendar/CopiedMarks.h"

#include <algorithm>

#include "calendar/YearDates.h"

namespace qv {
namespace {

/// The eraser for a date without a mark.
Brush BrushAt(const CalendarMarks& marks, CalendarDate date) {
  const Brush* brush = marks.BrushOf(date);
  return brush ? *brush : Brush();
}

std::vector<Brush> BrushesOf(const CalendarMarks& marks, const std::vector<CalendarDate>& dates) {
  std::vector<Brush> brushes;
  for (const CalendarDate date : dates) {
    brushes.push_back(BrushAt(marks, date));
  }
  return brushes;
}

/// As far as there are both.
std::vector<DateBrush> Paired(const std::vector<CalendarDate>& dates,
                              const std::vector<Brush>& brushes) {
  std::vector<DateBrush> pairs;
  for (std::size_t i = 0; i < std::min(dates.size(), brushes.size()); ++i) {
    pairs.push_back({dates[i], brushes[i]});
  }
  return pairs;
}

CalendarDate SourceByWeekday(CalendarDate date) {
  constexpr int weeksOfYear = 52;
  const CalendarDate source = DaysAfter(date, -weeksOfYear * daysOfWeek);
  return source.year == date.year ? DaysAfter(source, -daysOfWeek) : source;
}

}  // namespace

void CopiedMarks::CopyWeek(const CalendarMarks& marks, CalendarDate date) {
  m_week = BrushesOf(marks, DatesOfWeek(date));
}

void CopiedMarks::CopyMonth(const CalendarMarks& marks, CalendarDate date) {
  m_month = BrushesOf(marks, DatesOfMonth(date.year, date.month));
}

std::vector<DateBrush> CopiedMarks::WeekAt(CalendarDate date) const {
  return Paired(DatesOfWeek(date), m_week);
}

std::vector<DateBrush> CopiedMarks::MonthAt(CalendarDate date) const {
  return Paired(DatesOfMonth(date.year, date.month), m_month);
}

std::vector<DateBrush> NextYearLike(const CalendarMarks& marks, int year, RepeatBy by) {
  std::vector<DateBrush> dates;
  for (const CalendarDate date : DatesOfYear(year + 1)) {
    const CalendarDate sameDate{year, date.month, date.day};
    const CalendarDate source = by == RepeatBy::Date ? sameDate : SourceByWeekday(date);
    if (ToDateTime(source).Valid()) {
      dates.push_back({date, BrushAt(marks, source)});
    }
  }
  return dates;
}

}  // namespace qv
