#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

#include "calendar/ui/QVCalendar.h"
#include "calendar/ui/YearView.h"
#include "tests/calendar/Printing.h"
#include "tests/support/FakeHost.h"

namespace qv {

/// The year 2026 with two day types, on the screen and with the keyboard, and a host with all
/// texts.
class CalendarOnScreen : public testing::Test {
 protected:
  CalendarOnScreen() {
    for (unsigned number = 60060; number <= 60079; ++number) {
      host->loadString.additions.insert(static_cast<Text>(number));
    }
    calendar = std::make_unique<QVCalendar>(nullptr, marks, ToDateTime({2026, 11, 21}));
    calendar->SetDayTypes({{nullptr, L"Rest", 0x00FF00}, {nullptr, L"Work", 0x0000FF}});
    calendar->SetSelType(0x0000FF, L"Work");
    calendar->resize(900, 650);
    calendar->show();
    calendar->activateWindow();
    View()->setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(calendar.get()));
  }

  YearView* View() const { return calendar->findChild<YearView*>(); }

  std::wstring At(CalendarDate date) const {
    const Brush* brush = marks.BrushOf(date);
    return brush ? std::wstring(brush->text.ToView()) : L"-";
  }

  std::vector<CalendarDate> Marked() const {
    std::vector<CalendarDate> dates;
    marks.ForEach([&](const CalendarMarks::Mark& mark) { dates.push_back(mark.date); });
    return dates;
  }

  CalendarDate Cursor() const { return View()->Gestures().Cursor().Date(); }

  /// Sends a key to the year.
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::keyClick(View(), key, modifiers);
  }

  QPoint PlaceOf(CalendarDate date) const { return View()->CellOf(date).center(); }

  /// The middle of a place that is given in dots.
  QPoint Middle(const Rect& dots) const {
    return QPoint((dots.left + dots.right) / 2, (dots.top + dots.bottom) / 2) /
           View()->devicePixelRatioF();
  }

  void Send(QEvent::Type type, QPoint place, Qt::MouseButton button,
            Qt::KeyboardModifiers modifiers = {}) const {
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(Qt::LeftButton);
    QMouseEvent event(type, place, View()->mapToGlobal(place), button, held, modifiers);
    QApplication::sendEvent(View(), &event);
  }

  void Press(QPoint place, Qt::KeyboardModifiers modifiers = {}) const {
    Send(QEvent::MouseButtonPress, place, Qt::LeftButton, modifiers);
  }
  void MoveTo(QPoint place, Qt::KeyboardModifiers modifiers = {}) const {
    Send(QEvent::MouseMove, place, Qt::NoButton, modifiers);
  }
  void Release(QPoint place, Qt::KeyboardModifiers modifiers = {}) const {
    Send(QEvent::MouseButtonRelease, place, Qt::LeftButton, modifiers);
  }

  void Drag(CalendarDate from, CalendarDate to, Qt::KeyboardModifiers modifiers = {}) const {
    Press(PlaceOf(from), modifiers);
    MoveTo(PlaceOf(to), modifiers);
    Release(PlaceOf(to), modifiers);
  }

  QImage Picture() const { return View()->grab().toImage(); }

  InstalledFakeHost host;
  CalendarMarks marks;
  std::unique_ptr<QVCalendar> calendar;
};

}  // namespace qv
