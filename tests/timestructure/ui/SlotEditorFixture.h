#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QToolButton>

#include "tests/timestructure/ui/DayTypesFixture.h"
#include "timestructure/TimeGrid.h"
#include "timestructure/ui/CDlgAddModifyTimeSlot.h"

namespace qv {

/// The editor of a slot of an orange day, over the hour types of `DayTypesFixture`.
class SlotEditor : public DayTypesFixture {
 protected:
  int Run(const std::string& id, const std::string& from, const std::string& to,
          const std::function<void()>& script) {
    slot = Parsed("<slot><id>" + id + "</id><from>" + from + "</from><to>" + to + "</to></slot>");
    CDlgAddModifyTimeSlot editor(nullptr, hours.get(), slot.get(), 0x80CCFF);
    return Play(editor, script);
  }

  /// Lets `play` select in a slot that starts at midnight and ends at `to`, and cancels that.
  void SelectIn(const std::string& to, const std::function<void()>& play) {
    Run("p", "00:00", to, [&] {
      play();
      Click(IDCANCEL);
    });
  }

  std::wstring Stored() const {
    return std::wstring(slot->Value(L"id").ToView()) + L" " +
           std::wstring(slot->Value(L"from").ToView()) + L"-" +
           std::wstring(slot->Value(L"to").ToView());
  }

  static QString Shown() {
    return Edit(fromHours)->text() + ":" + Edit(fromMinutes)->text() + "-" + Edit(toHours)->text() +
           ":" + Edit(toMinutes)->text();
  }

  /// A minute of the day.
  static int At(int hours, int minutes) { return hours * 60 + minutes; }

  /// The middle of the quarter that starts at this minute, in the dialog.
  static QPoint Cell(int minute) {
    const QWidget* box = TopControl(gridBox);
    const TimeGrid grid(box->width(), box->height());
    for (int x = 0; x < box->width(); ++x) {
      for (int y = 0; y < box->height(); ++y) {
        if (grid.MinuteAt({x, y}) == minute) {
          return box->mapTo(TopWindow(), QPoint(x + 3, y + 3));
        }
      }
    }
    ADD_FAILURE() << "no such cell";
    return {};
  }

  static void PressCell(int minute) {
    QTest::mousePress(TopWindow(), Qt::LeftButton, {}, Cell(minute));
  }
  static void MoveTo(const QPoint& place, Qt::MouseButtons buttons = Qt::LeftButton) {
    QMouseEvent event(QEvent::MouseMove, place, TopWindow()->mapToGlobal(place), Qt::NoButton,
                      buttons, {});
    QApplication::sendEvent(TopWindow(), &event);
  }
  static void Release(const QPoint& place) {
    QTest::mouseRelease(TopWindow(), Qt::LeftButton, {}, place);
  }

  static void ClickArrow(int spin, Qt::ArrowType arrow) {
    for (auto* button : TopControl(spin)->findChildren<QToolButton*>()) {
      if (button->arrowType() == arrow) {
        QTest::mouseClick(button, Qt::LeftButton);
      }
    }
  }

  /// The colour of the picture at the middle of a quarter.
  static QColor ColourAt(int minute) {
    return TopWindow()->grab().toImage().pixelColor(Cell(minute));
  }

  /// The colour there that stands on the screen, without painting anything for it.
  static QColor ColourOnScreen(int minute) {
    return TopWindow()
        ->screen()
        ->grabWindow(TopWindow()->winId())
        .toImage()
        .pixelColor(Cell(minute));
  }

  std::unique_ptr<XmlNode> slot;
};

}  // namespace qv
