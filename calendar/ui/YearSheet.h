#pragma once

#include <QImage>
#include <QWidget>
#include <set>
#include <vector>

#include "calendar/YearPicture.h"
#include "discriminator/ColouredType.h"

namespace qv {

/// What of a year's picture changes while a user works on it; each list is sorted.
struct YearState {
  std::vector<CalendarDate> preview{};
  std::vector<CalendarDate> selected{};
  std::optional<CalendarDate> focused{};
};

/// The months of one year as they are seen, as many as can be read. A change paints the dates again
/// that it is about.
class YearSheet : public QWidget {
  Q_OBJECT

 public:
  /// `marks` outlive the sheet. It shows the year of `today`.
  YearSheet(QWidget* parent, const CalendarMarks& marks, CalendarDate today);

  const CalendarMarks& Marks() const { return m_marks; }
  const YearStyle& Style() const { return m_style; }
  int Year() const { return m_year; }
  void SetYear(int year);
  /// Shows the months from this one on, or from as near to it as they fill the room.
  void SetFirstMonth(int month);
  void SetMonthName(std::size_t index, const QVWideString& name);
  void SetWeekdayName(std::size_t index, const QVWideString& name);
  /// The day types from whose colours dates have their signs.
  void SetDayTypes(const std::vector<ColouredType>& rows);

  /// Where dates stand, in dots of the screen.
  YearGeometry Geometry() const;
  /// The cell of a date in pixels; empty if it isn't on show.
  QRect CellOf(CalendarDate date) const;
  /// What stands at a place, and the date that is nearest to it, in pixels.
  std::optional<YearPlace> PlaceAt(const QPointF& place) const;
  std::optional<CalendarDate> NearestDate(const QPointF& place) const;

  /// Shows another state.
  void ShowState(YearState state);
  /// Shows what became of dates.
  void Repaint(const std::vector<CalendarDate>& dates);
  /// Shows what became of everything.
  void RepaintAll();

 signals:
  /// Other months are on show, or another number of them.
  void MonthsChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  YearLook LookOn(const QColor& ground, Density density) const;
  Density ScreenDensity() const { return {devicePixelRatioF()}; }
  Point DotsAt(const QPointF& place) const;

  const CalendarMarks& m_marks;
  CalendarDate m_today;
  int m_year;
  int m_firstMonth = 1;
  YearStyle m_style;  // its texts; the colours follow the palette
  std::vector<LegendEntry> m_legend;
  YearState m_state;
  QImage m_picture;
  std::set<CalendarDate> m_stale;  // dates that the picture shows as they were
};

}  // namespace qv
