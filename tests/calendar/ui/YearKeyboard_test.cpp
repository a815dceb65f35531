// What the keyboard does to a year.
#include <QMenu>
#include <QSignalSpy>

#include "calendar/YearDates.h"
#include "tests/calendar/ui/CalendarOnScreen.h"

namespace qv {
namespace {

class YearKeyboard : public CalendarOnScreen {
 protected:
  YearKeyboard() { GoTo({2026, 5, 17}); }

  void GoTo(CalendarDate date) const {
    View()->Do([date](YearGestures& gestures) {
      gestures.Cursor().GoTo(date);
      return false;
    });
  }

  /// The lines of the menu that is open now.
  static QStringList Lines(const QMenu& menu) {
    QStringList lines;
    for (const QAction* action : menu.actions()) {
      if (!action->isSeparator()) {
        lines.append((action->isEnabled() ? "" : "-") + action->text().section('\t', 0, 0));
      }
    }
    return lines;
  }

  /// Opens the menu at a date and presses the line with this text.
  void Choose(CalendarDate date, Text text) const {
    QMenu* menu = OpenMenu(date);
    ASSERT_TRUE(menu);
    const QString caption = '[' + QString::number(Number(text)) + ']';
    for (QAction* action : menu->actions()) {
      if (action->text().startsWith(caption)) {
        EXPECT_TRUE(action->isEnabled());
        action->trigger();
        menu->close();
        return;
      }
    }
    ADD_FAILURE() << "no line " << qPrintable(caption);
  }

  QMenu* OpenMenu(CalendarDate date) const {
    const QPoint place = PlaceOf(date);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, View()->mapToGlobal(place));
    QApplication::sendEvent(View(), &event);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  }
};

TEST_F(YearKeyboard, TheCursorIsSeenWhileTheYearHasTheKeyboard) {
  const QImage with = Picture();
  View()->clearFocus();
  EXPECT_NE(Picture(), with);
  View()->setFocus();
  EXPECT_EQ(Picture(), with);
  Key(Qt::Key_Down);
  EXPECT_NE(Picture(), with);
  EXPECT_EQ(Cursor(), (CalendarDate{2026, 5, 24}));
}

TEST_F(YearKeyboard, TheCursorGoesOnInOtherYears) {
  Key(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(calendar->GetYear(), 2025);
  EXPECT_EQ(Cursor(), (CalendarDate{2025, 5, 17}));
  Key(Qt::Key_End, Qt::ControlModifier);
  Key(Qt::Key_Right);
  EXPECT_EQ(calendar->GetYear(), 2026);
  EXPECT_EQ(Cursor(), (CalendarDate{2026, 1, 1}));
  calendar->SetYear(2030);
  EXPECT_EQ(Cursor(), (CalendarDate{2030, 1, 1}));
}

TEST_F(YearKeyboard, TheCursorStaysInTheYearsOnOffer) {
  calendar->SetYear(9999);
  Key(Qt::Key_End, Qt::ControlModifier);
  Key(Qt::Key_Right);
  EXPECT_EQ(Cursor(), (CalendarDate{9999, 12, 31}));
  EXPECT_EQ(calendar->GetYear(), 9999);
}

TEST_F(YearKeyboard, SpaceMarksTheCursorsDate) {
  Key(Qt::Key_Space);
  EXPECT_EQ(Marked(), (std::vector<CalendarDate>{{2026, 5, 17}}));
}

TEST_F(YearKeyboard, SpaceAndReturnMarkTheRange) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    GoTo({2026, 5, 17});
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_TRUE(Marked().empty());
    Key(key);
    EXPECT_EQ(Marked(), DatesBetween({2026, 5, 17}, {2026, 5, 25}));
    EXPECT_TRUE(marks.Undo());
  }
}

TEST_F(YearKeyboard, ReturnAndEscapeAreTheWindowsOwnWithoutARange) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
    QKeyEvent event(QEvent::KeyPress, key, {});
    event.accept();
    QApplication::sendEvent(View(), &event);
    EXPECT_FALSE(event.isAccepted()) << key;
  }
  EXPECT_TRUE(Marked().empty());
}

TEST_F(YearKeyboard, DeleteErasesAndLeavesTheBrush) {
  Key(Qt::Key_Space);
  Key(Qt::Key_Delete);
  EXPECT_TRUE(Marked().empty());
  EXPECT_EQ(marks.CurrentBrush().text, L"Work");
}

TEST_F(YearKeyboard, DigitsChooseABrush) {
  QSignalSpy wanted(calendar.get(), &QVCalendar::BrushWanted);
  Key(Qt::Key_1);
  Key(Qt::Key_9);
  Key(Qt::Key_0);
  ASSERT_EQ(wanted.size(), 3);
  EXPECT_EQ(wanted[0][0].toInt(), 0);
  EXPECT_EQ(wanted[1][0].toInt(), 8);
  EXPECT_EQ(wanted[2][0].toInt(), -1);
}

TEST_F(YearKeyboard, UndoAndRedoHaveTheirKeys) {
  Key(Qt::Key_Space);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(Marked().empty());
  Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Marked().size(), 1U);
  Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Marked().size(), 1U);
}

TEST_F(YearKeyboard, UndoShowsTheYearInWhichItChangesDates) {
  Key(Qt::Key_Space);
  calendar->SetYear(2030);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(calendar->GetYear(), 2026);
}

TEST_F(YearKeyboard, TheMenuOffersWhatCanBeDone) {
  QMenu* menu = OpenMenu({2026, 3, 3});
  ASSERT_TRUE(menu);
  EXPECT_EQ(Lines(*menu), QStringList({"-[60072]", "-[60073]", "[60074]", "-[60075]", "[60076]",
                                       "-[60077]", "[60078]", "[60079]"}));
  menu->close();
  EXPECT_EQ(Cursor(), (CalendarDate{2026, 3, 3}));
}

TEST_F(YearKeyboard, TheMenuCopiesAndPastesAWeekAndAMonth) {
  marks.Apply({{2026, 3, 2}});  // a Monday
  Choose({2026, 3, 3}, Text::CopyWeek);
  Choose({2026, 4, 8}, Text::PasteWeek);
  EXPECT_EQ(At({2026, 4, 6}), L"Work");
  Choose({2026, 3, 3}, Text::CopyMonth);
  Choose({2026, 7, 8}, Text::PasteMonth);
  EXPECT_EQ(At({2026, 7, 2}), L"Work");
  Choose({2026, 7, 8}, Text::YearUndo);
  EXPECT_EQ(At({2026, 7, 2}), L"-");
  Choose({2026, 7, 8}, Text::YearRedo);
  EXPECT_EQ(At({2026, 7, 2}), L"Work");
}

TEST_F(YearKeyboard, TheMenuRepeatsTheYearAndShowsTheNext) {
  marks.Apply({{2026, 3, 2}});
  Choose({2026, 3, 3}, Text::RepeatByDate);
  EXPECT_EQ(At({2027, 3, 2}), L"Work");
  EXPECT_EQ(calendar->GetYear(), 2027);
  calendar->SetYear(2026);
  Choose({2026, 3, 3}, Text::RepeatByWeekday);
  EXPECT_EQ(At({2027, 3, 2}), L"-");
  EXPECT_EQ(At({2027, 3, 1}), L"Work");
}

TEST_F(YearKeyboard, TheMenuKeyOpensItAtTheCursor) {
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
  QApplication::sendEvent(View(), &event);
  QWidget* menu = QApplication::activePopupWidget();
  ASSERT_TRUE(menu);
  EXPECT_EQ(Cursor(), (CalendarDate{2026, 5, 17}));
  EXPECT_TRUE(View()->rect().contains(View()->mapFromGlobal(menu->pos())));
  menu->close();
}

TEST_F(YearKeyboard, WithoutTextsThereIsNoMenu) {
  host->loadString.additions.clear();
  EXPECT_FALSE(OpenMenu({2026, 3, 3}));
}

}  // namespace
}  // namespace qv
