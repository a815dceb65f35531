#pragma once

#include <QWidget>

#include "calendar/CalendarMarks.h"

class QToolButton;

namespace qv {
class YearField;
class YearView;
}  // namespace qv

/// A whole year in which dates are marked with the brush, by a click. The buttons beside the year,
/// the wheel over it, and a number typed into it go to another one.
class QVCalendar : public QWidget {
  Q_OBJECT

 public:
  /// Shows `marks`, which outlive the calendar, in the year of `today`.
  QVCalendar(QWidget* parent, qv::CalendarMarks& marks, const QVDateTime& today);

  /// The texts of the months, from 0 for January, and of the weekdays, from 0 for Monday. Another
  /// index throws `std::out_of_range`.
  void SetMonthName(int index, const QVWideString& name);
  void SetWeekdayName(int index, const QVWideString& name);

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

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void OfferYears();

  qv::CalendarMarks& m_marks;
  QToolButton* m_before;
  QToolButton* m_after;
  qv::YearField* m_year;
  qv::YearView* m_view;
};
