#pragma once

#include <QWidget>

#include "calendar/CalendarMarks.h"
#include "discriminator/ColouredType.h"
#include "toolkit/WheelSteps.h"

class QScrollBar;

namespace qv {
class LegendView;
class YearButton;
class YearField;
class YearView;
}  // namespace qv

/// A whole year in which dates are marked with the brush, by pointer and keyboard, with a legend of
/// its day types below. The buttons beside the year, the wheel over it, and a number typed into it
/// go to another one.
class QVCalendar : public QWidget {
  Q_OBJECT

 public:
  /// Shows `marks`, which outlive the calendar, in the year of `today`.
  QVCalendar(QWidget* parent, qv::CalendarMarks& marks, const QVDateTime& today);
  ~QVCalendar() override;

  /// The texts of the months, from 0 for January, and of the weekdays, from 0 for Monday. Another
  /// index throws `std::out_of_range`.
  void SetMonthName(int index, const QVWideString& name);
  void SetWeekdayName(int index, const QVWideString& name);

  /// The day types of the legend, in its order. Without them there is no legend.
  void SetDayTypes(const std::vector<qv::ColouredType>& rows);

  /// Sets the brush; white (0xFFFFFF) with an empty text erases.
  void SetSelType(qv::Colour colour, const wchar_t* id);
  /// Applies the brush to a date; false if the date isn't `Valid`.
  bool Select(const QVDateTime& date);
  /// The text of the brush that marked the date. A date without a mark gives a text that no day
  /// type can have for its name. Holds until the marks are gone.
  const wchar_t* GetIdDay(const QVDateTime& date) const;
  /// The earliest and the latest date with a mark; a date that isn't `Valid` when there is none.
  void GetFirstSelectedDay(QVDateTime& date) const;
  void GetLastSelectedDay(QVDateTime& date) const;

  /// The year on show.
  int GetYear() const;
  /// Goes to another year, one of those on offer: 1 to 9999, and as far as there are marks.
  void SetYear(int year);

  /// Shows what became of the marks.
  void ShowMarks();
  /// Shows in the legend with what dates are marked now.
  void ShowBrush();

 signals:
  /// The user chose the brush of a day type by its row in the legend; -1 is the eraser.
  void BrushWanted(int row);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void AddShortcuts();
  void NameParts();
  void OnYear(int year);
  void OnYearWanted(int year);
  void OnMarked();
  void OnMonths();
  void LayOut();
  void LayOutYear(const QRect& room);

  qv::CalendarMarks& m_marks;
  std::vector<qv::ColouredType> m_dayTypes;
  qv::YearButton* m_before;
  qv::YearButton* m_after;
  qv::YearField* m_year;
  qv::YearView* m_view;
  QScrollBar* m_months;  // where not all of them fit
  qv::LegendView* m_legend;
  qv::WheelSteps m_wheel;  // over the header
};
