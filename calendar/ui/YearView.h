#pragma once

#include <QWidget>

#include "calendar/CalendarMarks.h"
#include "calendar/YearPicture.h"

namespace qv {

/// The months of one year. A click on a date marks it with the brush.
class YearView : public QWidget {
  Q_OBJECT

 public:
  /// `marks` outlive the view.
  YearView(QWidget* parent, CalendarMarks& marks);

  void SetYear(int year);
  void SetMonthName(std::size_t index, const QVWideString& name);
  void SetWeekdayName(std::size_t index, const QVWideString& name);

 signals:
  /// The user changed marks.
  void Marked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  std::optional<CalendarDate> DateAt(const QPointF& place) const;
  YearStyle PaletteStyle() const;

  CalendarMarks& m_marks;
  YearStyle m_style;  // its texts; the colours follow the palette
  int m_year = 1;
};

}  // namespace qv
