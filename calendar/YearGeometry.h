#pragma once

#include <optional>
#include <variant>

#include "calendar/CalendarDate.h"
#include "tools/Canvas.h"
#include "tools/Density.h"

namespace qv {

/// The line above a month's dates that has its name.
struct MonthName {
  int month = 0;

  friend bool operator==(const MonthName&, const MonthName&) = default;
};

/// The cell above a month's dates of one weekday, 0 for Monday to 6 for Sunday.
struct WeekdayHead {
  int month = 0;
  int weekday = 0;

  friend bool operator==(const WeekdayHead&, const WeekdayHead&) = default;
};

/// The cell beside a month's dates of one week, by its number as of ISO 8601.
struct WeekNumber {
  int month = 0;
  int week = 0;

  friend bool operator==(const WeekNumber&, const WeekNumber&) = default;
};

/// What stands at a place of the year.
using YearPlace = std::variant<CalendarDate, MonthName, WeekdayHead, WeekNumber>;

/// How the months of a year stand in a room: which of them, in how many columns and rows, and how
/// large their cells are.
struct YearArrangement {
  int columns = 1;
  int rows = 1;
  bool hasWeeks = false;  ///< a column for the numbers of the weeks
  Extent cell{};
};

/// Where the months and dates of one year stand in a room that begins at its corner: months in
/// rows and columns, each with a line for its name, one for the weekdays from Monday on, and one
/// for each of six weeks, where Saturday stands apart from Friday. All twelve months are
/// arranged with the largest cells, in the middle of the room. If even these are too small to be
/// read, there are fewer months, from a first one on. Weeks have numbers where there is room.
///
/// All lengths are in dots of the screen; all cells have one size.
class YearGeometry {
 public:
  /// A first month that is too late to fill the room, or too early, is moved.
  YearGeometry(Extent size, int year, Density density, int firstMonth = 1);

  int Year() const { return m_year; }

  /// How many months there are in the room, 1 to 12, and the first of them.
  int MonthsShown() const { return m_months; }
  int FirstMonth() const { return m_firstMonth; }
  /// Whether a month, 1 to 12, is among them. The places of another one are empty.
  bool Shows(int month) const { return month >= m_firstMonth && month < m_firstMonth + m_months; }

  bool HasWeeks() const { return m_arrangement.hasWeeks; }
  int CellWidth() const { return m_arrangement.cell.cx; }
  int CellHeight() const { return m_arrangement.cell.cy; }

  /// The line with the name of a month.
  Rect NameOf(int month) const;
  /// The cell above the column of a weekday, 0 for Monday to 6 for Sunday.
  Rect HeadOf(int month, int weekday) const;
  /// The cell of a date of the year.
  Rect CellOf(CalendarDate date) const;
  /// The cell of the number of a week, as of ISO 8601; nothing if the month has no date in it or
  /// there is no room for numbers.
  std::optional<Rect> WeekOf(int month, int week) const;

  /// What stands at this place, if anything: the inverse of the four above for months on show.
  std::optional<YearPlace> PlaceAt(Point place) const;
  /// The date on show whose cell is nearest to this place, which may be anywhere; nothing if cells
  /// have no room at all.
  std::optional<CalendarDate> NearestDate(Point place) const;

 private:
  bool HasCells() const { return CellWidth() > 0 && CellHeight() > 0; }
  Extent MonthSize() const;
  Point CornerOf(int month) const;
  Rect CellAt(int month, int column, int line) const;
  std::optional<int> MonthAt(Point place) const;
  std::optional<YearPlace> PlaceIn(int month, int column, int line) const;

  int m_year;
  int m_gap;         // between months
  int m_weekendGap;  // before Saturday
  YearArrangement m_arrangement;
  int m_months;
  int m_firstMonth;
  Point m_corner;  // of the first month
};

}  // namespace qv
