#pragma once

#include <functional>

#include "calendar/YearGestures.h"
#include "calendar/ui/YearSheet.h"
#include "calendar/ui/YearTable.h"
#include "toolkit/WheelSteps.h"

namespace qv {

/// A year in which dates are marked with the brush, by pointer and keyboard.
class YearView : public YearSheet {
  Q_OBJECT

 public:
  /// `marks` outlive the view. It shows the year of `today`.
  YearView(QWidget* parent, CalendarMarks& marks, CalendarDate today);

  /// Shows another year, to which the cursor goes as well.
  void GoToYear(int year);
  /// The years that the cursor stays in.
  void SetYears(int first, int last) { m_gestures.Cursor().SetYears(first, last); }

  const YearGestures& Gestures() const { return m_gestures; }
  /// Lets `gesture` move the cursor or mark dates, and shows what became of them, in their year. It
  /// tells whether it marked any.
  void Do(const std::function<bool(YearGestures&)>& gesture);
  void Undo();
  void Redo();

  /// A date, its weekday and its day type, in the words of the host's language.
  QString WordsOf(CalendarDate date) const;

 signals:
  /// The user changed marks.
  void Marked();
  /// A gesture leads to another year.
  void YearWanted(int year);
  /// The user chose the brush of a row of the legend, -1 for the eraser.
  void BrushWanted(int row);
  /// The user asked for a menu for the cursor's date.
  void MenuWanted(const QPoint& globalPlace);

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  bool HandleKey(const QKeyEvent& event);
  bool HandleVerb(int key);
  /// Scrolls to a month that isn't on show.
  void Reveal(int month);
  void ShowGestures();
  void DragTo(const QMouseEvent& event);
  void AskForMenuAtCursor();
  void TellWhatMoved(const CalendarCursor& before);
  void ShowChanged(const std::vector<CalendarDate>& dates);
  void ScrollPast(const QPointF& place);

  YearTableOffer m_offer;
  CalendarMarks& m_marks;
  YearGestures m_gestures;
  WheelSteps m_wheel;
  bool m_isOutside = false;  // whether a stroke's pointer has left the view
};

}  // namespace qv
