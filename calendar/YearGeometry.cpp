#include "calendar/YearGeometry.h"

#include <algorithm>

namespace qv {
namespace {

constexpr int months = 12;
constexpr int daysOfWeek = 7;
constexpr int linesAboveWeeks = 2;  // the month's name and the weekdays
constexpr int lines = linesAboveWeeks + 6;

Extent CellFor(Extent size, int columns, int gap) {
  const int rows = months / columns;
  return {std::max(0, (size.cx - (columns - 1) * gap) / columns / daysOfWeek),
          std::max(0, (size.cy - (rows - 1) * gap) / rows / lines)};
}

/// How well a number fits into a cell, which is broader than it is high.
int RoomFor(Extent cell) {
  constexpr int breadth = 3;
  constexpr int height = 4;
  return std::min(cell.cx * height, cell.cy * breadth * 2);
}

}  // namespace

YearGeometry::YearGeometry(Extent size, int year)
    : m_year(year), m_gap(std::min(size.cx, size.cy) / 40) {
  m_cell = CellFor(size, m_columns, m_gap);
  for (const int columns : {2, 3, 4, 6, 12}) {
    const Extent cell = CellFor(size, columns, m_gap);
    if (RoomFor(cell) > RoomFor(m_cell)) {
      m_columns = columns;
      m_cell = cell;
    }
  }
}

Point YearGeometry::CornerOf(int month) const {
  const int index = month - 1;
  return {index % m_columns * (daysOfWeek * m_cell.cx + m_gap),
          index / m_columns * (lines * m_cell.cy + m_gap)};
}

Rect YearGeometry::CellAt(int month, int column, int line) const {
  const Point corner = CornerOf(month);
  const int left = corner.x + column * m_cell.cx;
  const int top = corner.y + line * m_cell.cy;
  return {left, top, left + m_cell.cx, top + m_cell.cy};
}

Rect YearGeometry::NameOf(int month) const {
  const Rect first = CellAt(month, 0, 0);
  return {first.left, first.top, first.left + daysOfWeek * m_cell.cx, first.bottom};
}

Rect YearGeometry::HeadOf(int month, int weekday) const { return CellAt(month, weekday, 1); }

int YearGeometry::CellsBefore(int month) const {
  constexpr int mondayOfDayOfWeek = 2;
  const int first = ToDateTime({m_year, month, 1}).DayOfWeek();
  return (first - mondayOfDayOfWeek + daysOfWeek) % daysOfWeek;
}

Rect YearGeometry::CellOf(CalendarDate date) const {
  const int cell = CellsBefore(date.month) + date.day - 1;
  return CellAt(date.month, cell % daysOfWeek, linesAboveWeeks + cell / daysOfWeek);
}

std::optional<int> YearGeometry::MonthAt(Point place) const {
  const int column = place.x / (daysOfWeek * m_cell.cx + m_gap);
  const int row = place.y / (lines * m_cell.cy + m_gap);
  const int month = row * m_columns + column + 1;
  return column < m_columns && month <= months ? std::optional(month) : std::nullopt;
}

std::optional<CalendarDate> YearGeometry::DateAt(Point place) const {
  const bool hasCells = m_cell.cx > 0 && m_cell.cy > 0;
  const auto month = hasCells && place.x >= 0 && place.y >= 0 ? MonthAt(place) : std::nullopt;
  if (!month) {
    return std::nullopt;
  }
  const Point corner = CornerOf(*month);
  const int column = (place.x - corner.x) / m_cell.cx;
  const int week = (place.y - corner.y) / m_cell.cy - linesAboveWeeks;
  const int day = week * daysOfWeek + column - CellsBefore(*month) + 1;
  const CalendarDate date{m_year, *month, day};
  const bool isInside = column < daysOfWeek && week >= 0 && ToDateTime(date).Valid();
  return isInside ? std::optional(date) : std::nullopt;
}

}  // namespace qv
