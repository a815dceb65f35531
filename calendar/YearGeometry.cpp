#include "calendar/YearGeometry.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "calendar/Weeks.h"

namespace qv {
namespace {

constexpr int linesAboveWeeks = 2;  // the month's name and the weekdays
constexpr int weekLines = 6;
constexpr int lines = linesAboveWeeks + weekLines;

/// In pixels of the layout: below this, numbers and signs can't be read, and above it there is room
/// to spare.
constexpr Extent leastCell{18, 11};
constexpr Extent roomyCell{21, 13};

struct Gaps {
  int months;
  int weekend;
};

/// How well a number fits into a cell, which is half as broad again as it is high.
int RoomFor(Extent cell) { return std::min(cell.cx * 2, cell.cy * 3); }

bool Holds(Extent cell, Extent least) { return cell.cx >= least.cx && cell.cy >= least.cy; }

Extent InDots(Extent pixels, Density density) {
  return {density.Dots(pixels.cx), density.Dots(pixels.cy)};
}

int Columns(bool hasWeeks) { return daysOfWeek + (hasWeeks ? 1 : 0); }

/// The months with the largest cells, which stay in proportion to each other: a year that is drawn
/// out of shape is hard to read.
YearArrangement Fitted(Extent size, int columns, int rows, bool hasWeeks, Gaps gaps) {
  const int width = (size.cx - (columns - 1) * gaps.months) / columns - gaps.weekend;
  const int height = (size.cy - (rows - 1) * gaps.months) / rows;
  const int cx = std::max(0, width / Columns(hasWeeks));
  const int cy = std::max(0, height / lines);
  return {columns, rows, hasWeeks, {std::min(cx, cy * 2), std::min(cy, cx)}};
}

/// All months with the largest cells, if there is a way to have none below the least.
std::optional<YearArrangement> WholeYear(Extent size, bool hasWeeks, Gaps gaps, Extent least) {
  std::optional<YearArrangement> best;
  for (const int columns : {1, 2, 3, 4, 6, 12}) {
    const auto other = Fitted(size, columns, monthsOfYear / columns, hasWeeks, gaps);
    if (Holds(other.cell, least) && (!best || RoomFor(other.cell) > RoomFor(best->cell))) {
      best = other;
    }
  }
  return best;
}

/// As many months as have cells no smaller than this; at least one.
YearArrangement SomeMonths(Extent size, Gaps gaps, Extent cell) {
  const int width = daysOfWeek * cell.cx + gaps.weekend + gaps.months;
  const int height = lines * cell.cy + gaps.months;
  const int columns = std::max(1, (size.cx + gaps.months) / width);
  const int rows = std::max(1, (size.cy + gaps.months) / height);
  return Fitted(size, columns, rows, false, gaps);
}

YearArrangement Arranged(Extent size, Density density, Gaps gaps) {
  if (const auto year = WholeYear(size, true, gaps, InDots(roomyCell, density))) {
    return *year;
  }
  const Extent least = InDots(leastCell, density);
  return WholeYear(size, false, gaps, least).value_or(SomeMonths(size, gaps, least));
}

bool Holds(const Rect& area, Point place) {
  return place.x >= area.left && place.x < area.right && place.y >= area.top &&
         place.y < area.bottom;
}

/// How far a place lies beyond the edges of an area, which are left out.
int Beyond(int place, int first, int end) {
  return std::max({0, first - place, place - (end - 1)});
}

std::int64_t SquaredDistance(Point place, const Rect& area) {
  const std::int64_t across = Beyond(place.x, area.left, area.right);
  const std::int64_t down = Beyond(place.y, area.top, area.bottom);
  return across * across + down * down;
}

/// The day of a month in a cell below its weekdays; it may be none of the month.
int DayAt(int year, int month, int column, int line) {
  return line * daysOfWeek + column - WeekdayOf({year, month, 1}) + 1;
}

}  // namespace

YearGeometry::YearGeometry(Extent size, int year, Density density, int firstMonth)
    : m_year(year),
      m_gap(std::max(density.Dots(6), std::min(size.cx, size.cy) / 40)),
      m_weekendGap(std::max(density.Dots(2), size.cx / 400)),
      m_arrangement(Arranged(size, density, {m_gap, m_weekendGap})),
      m_months(std::min(monthsOfYear, m_arrangement.columns * m_arrangement.rows)),
      m_firstMonth(std::clamp(firstMonth, 1, monthsOfYear - m_months + 1)) {
  const Extent month = MonthSize();
  m_corner = {(size.cx - m_arrangement.columns * (month.cx + m_gap) + m_gap) / 2,
              (size.cy - m_arrangement.rows * (month.cy + m_gap) + m_gap) / 2};
}

Extent YearGeometry::MonthSize() const {
  return {Columns(HasWeeks()) * CellWidth() + m_weekendGap, lines * CellHeight()};
}

Point YearGeometry::CornerOf(int month) const {
  const Extent size = MonthSize();
  const int index = month - m_firstMonth;
  return {m_corner.x + index % m_arrangement.columns * (size.cx + m_gap),
          m_corner.y + index / m_arrangement.columns * (size.cy + m_gap)};
}

/// Column -1 has the numbers of the weeks.
Rect YearGeometry::CellAt(int month, int column, int line) const {
  if (!Shows(month)) {
    return {};
  }
  const Point corner = CornerOf(month);
  const int before = (column + Columns(HasWeeks()) - daysOfWeek) * CellWidth();
  const int left = corner.x + before + (column < saturday ? 0 : m_weekendGap);
  const int top = corner.y + line * CellHeight();
  return {left, top, left + CellWidth(), top + CellHeight()};
}

Rect YearGeometry::NameOf(int month) const {
  const Rect first = CellAt(month, 0, 0);
  return {first.left, first.top, CellAt(month, daysOfWeek - 1, 0).right, first.bottom};
}

Rect YearGeometry::HeadOf(int month, int weekday) const { return CellAt(month, weekday, 1); }

Rect YearGeometry::CellOf(CalendarDate date) const {
  const int cell = WeekdayOf({m_year, date.month, 1}) + date.day - 1;
  return CellAt(date.month, cell % daysOfWeek, linesAboveWeeks + cell / daysOfWeek);
}

std::optional<Rect> YearGeometry::WeekOf(int month, int week) const {
  for (int line = linesAboveWeeks; line < lines && HasWeeks(); ++line) {
    if (PlaceIn(month, -1, line) == YearPlace(WeekNumber{month, week})) {
      return CellAt(month, -1, line);
    }
  }
  return std::nullopt;
}

/// What stands in a cell, if anything; column -1 has the numbers of the weeks.
std::optional<YearPlace> YearGeometry::PlaceIn(int month, int column, int line) const {
  if (line == 0) {
    return column < 0 ? std::nullopt : std::optional(YearPlace(MonthName{month}));
  }
  if (line == 1) {
    return column < 0 ? std::nullopt : std::optional(YearPlace(WeekdayHead{month, column}));
  }
  const int days = DaysIn(m_year, month);
  const int day = DayAt(m_year, month, std::max(0, column), line - linesAboveWeeks);
  if (column >= 0) {
    return day >= 1 && day <= days ? std::optional(YearPlace(CalendarDate{m_year, month, day}))
                                   : std::nullopt;
  }
  const CalendarDate first{m_year, month, std::max(1, day)};
  return first.day <= days ? std::optional(YearPlace(WeekNumber{month, WeekNumberOf(first)}))
                           : std::nullopt;
}

std::optional<int> YearGeometry::MonthAt(Point place) const {
  const Extent size = MonthSize();
  for (int month = m_firstMonth; month < m_firstMonth + m_months; ++month) {
    const Point corner = CornerOf(month);
    if (Holds({corner.x, corner.y, corner.x + size.cx, corner.y + size.cy}, place)) {
      return month;
    }
  }
  return std::nullopt;
}

std::optional<YearPlace> YearGeometry::PlaceAt(Point place) const {
  const auto month = HasCells() ? MonthAt(place) : std::nullopt;
  if (!month) {
    return std::nullopt;
  }
  if (Holds(NameOf(*month), place)) {
    return MonthName{*month};
  }
  const int line = (place.y - CornerOf(*month).y) / CellHeight();
  for (int column = HasWeeks() ? -1 : 0; column < daysOfWeek; ++column) {
    if (Holds(CellAt(*month, column, line), place)) {
      return PlaceIn(*month, column, line);
    }
  }
  return std::nullopt;
}

std::optional<CalendarDate> YearGeometry::NearestDate(Point place) const {
  std::optional<CalendarDate> nearest;
  auto least = std::numeric_limits<std::int64_t>::max();
  for (int month = m_firstMonth; month < m_firstMonth + m_months && HasCells(); ++month) {
    for (int day = 1; day <= DaysIn(m_year, month); ++day) {
      const CalendarDate date{m_year, month, day};
      const auto distance = SquaredDistance(place, CellOf(date));
      if (distance < least) {
        least = distance;
        nearest = date;
      }
    }
  }
  return nearest;
}

}  // namespace qv
