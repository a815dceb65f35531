// What comes together when a year is used: focus, scrolled months, strokes and undo.
#include <QPaintEvent>
#include <QScrollBar>
#include <QSpinBox>
#include <utility>

#include "calendar/YearDates.h"
#include "calendar/ui/LegendView.h"
#include "tests/calendar/ui/CalendarOnScreen.h"

namespace qv {
namespace {

class YearInUse : public CalendarOnScreen {
 protected:
  QSpinBox* Year() const { return calendar->findChild<QSpinBox*>(); }

  /// Turns the wheel over a place of a widget, by eighths of a degree.
  static void Turn(QWidget* over, QPoint place, int eighths) {
    QWheelEvent event(place, over->mapToGlobal(place), {}, {0, eighths}, {}, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(over, &event);
  }
};

/// What of a widget is painted while it lives.
class PaintedRegion : public QObject {
 public:
  explicit PaintedRegion(QWidget* widget) { widget->installEventFilter(this); }

  QRegion Take() {
    QApplication::processEvents();
    return std::exchange(m_region, {});
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      m_region += static_cast<QPaintEvent*>(event)->region();
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QRegion m_region;
};

TEST_F(YearInUse, ARepaintTouchesWhatChanged) {
  PaintedRegion painted(View());
  painted.Take();
  const QRect before = View()->CellOf(Cursor());
  Key(Qt::Key_Left);
  const QRegion region = painted.Take();
  EXPECT_TRUE(region.contains(before));
  EXPECT_TRUE(region.contains(View()->CellOf(Cursor())));
  EXPECT_FALSE(region.intersects(View()->CellOf({2026, 1, 1})));
  calendar->SetYear(2027);
  EXPECT_TRUE(painted.Take().contains(View()->rect()));
}

TEST_F(YearInUse, UndoAndRedoAreSeen) {
  PaintedRegion painted(View());
  const QImage before = Picture();
  Key(Qt::Key_Space);
  const QImage marked = Picture();
  EXPECT_NE(marked, before);
  painted.Take();
  View()->Undo();
  EXPECT_TRUE(painted.Take().contains(View()->CellOf(Cursor())));
  EXPECT_EQ(Picture(), before);
  View()->Redo();
  EXPECT_EQ(Picture(), marked);
}

TEST_F(YearInUse, TheMonthsStandClearOfTheHeader) {
  EXPECT_GE(View()->y(), Year()->geometry().bottom() + Year()->height() / 4);
}

/// A calendar with less room than a year takes, whose cursor is in January.
class ScrolledYear : public YearInUse {
 protected:
  ScrolledYear() {
    calendar->resize(320, 300);
    Key(Qt::Key_Home, Qt::ControlModifier);
    View()->SetFirstMonth(9);
    EXPECT_FALSE(View()->Geometry().Shows(1));
  }
};

TEST_F(ScrolledYear, AClickThatBringsTheFocusMarksTheDateUnderIt) {
  Year()->setFocus();
  EXPECT_EQ(View()->Geometry().FirstMonth(), 9);
  const QPoint place = PlaceOf({2026, 9, 15});
  View()->setFocus(Qt::MouseFocusReason);
  QTest::mouseClick(View(), Qt::LeftButton, {}, place);
  EXPECT_EQ(Marked(), (std::vector<CalendarDate>{{2026, 9, 15}}));
}

TEST_F(ScrolledYear, TheTabKeyShowsTheCursor) {
  Year()->setFocus();
  View()->setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(View()->Geometry().Shows(1));
}

TEST_F(ScrolledYear, APageOfTheScrollBarIsWhatIsOnShow) {
  EXPECT_EQ(calendar->findChild<QScrollBar*>()->pageStep(), View()->Geometry().MonthsShown());
}

TEST_F(ScrolledYear, AnotherYearKeepsTheMonthsOnShow) {
  calendar->SetYear(2027);
  EXPECT_EQ(View()->Geometry().FirstMonth(), 9);
}

TEST_F(ScrolledYear, UndoShowsTheMonthInWhichItChangesDates) {
  EXPECT_TRUE(marks.Apply({{2026, 2, 1}}));
  View()->Undo();
  EXPECT_TRUE(View()->Geometry().Shows(2));
}

TEST_F(ScrolledYear, ShiftAndF10OpenTheMenuAtTheCursor) {
  QPoint place;
  // In place of the menu, which would wait for its user.
  QObject::disconnect(View(), &YearView::MenuWanted, nullptr, nullptr);
  QObject::connect(View(), &YearView::MenuWanted, calendar.get(),
                   [&](const QPoint& wanted) { place = View()->mapFromGlobal(wanted); });
  Key(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(place, PlaceOf({2026, 1, 1}));
}

TEST_F(ScrolledYear, PartsOfANotchOfTheWheelAddUp) {
  View()->SetFirstMonth(3);
  for (int part = 0; part < 7; ++part) {
    Turn(View(), {10, 10}, -15);
  }
  EXPECT_EQ(View()->Geometry().FirstMonth(), 3);
  Turn(View(), {10, 10}, -15);
  EXPECT_EQ(View()->Geometry().FirstMonth(), 4);
}

TEST_F(YearInUse, TheWheelOverTheYearLeavesTheKeyboardWhereItIs) {
  EXPECT_FALSE(Year()->focusPolicy() & 0x4) << "not by the wheel";
  Turn(calendar.get(), {5, 5}, 60);
  EXPECT_EQ(calendar->GetYear(), 2026);
  Turn(calendar.get(), {5, 5}, 60);
  EXPECT_EQ(calendar->GetYear(), 2027);
  EXPECT_TRUE(View()->hasFocus());
}

TEST_F(YearInUse, ControlCountsWhenTheButtonIsLetGo) {
  Press(PlaceOf({2026, 6, 1}));
  MoveTo(PlaceOf({2026, 6, 17}));
  Release(PlaceOf({2026, 6, 17}), Qt::ControlModifier);
  EXPECT_EQ(Marked().size(), 9U);
}

TEST_F(YearInUse, UndoWaitsUntilAStrokeEnds) {
  EXPECT_TRUE(marks.Apply({{2026, 6, 1}}));
  Press(PlaceOf({2026, 7, 1}));
  View()->Undo();
  EXPECT_EQ(Marked().size(), 1U);
  Release(PlaceOf({2026, 7, 1}));
  EXPECT_EQ(Marked().size(), 2U);
  View()->Undo();
  View()->Undo();
  EXPECT_TRUE(Marked().empty());
}

TEST_F(YearInUse, ABlockMarksOnlyDatesOfTheYearOnShow) {
  Drag({2026, 1, 1}, {2026, 1, 13}, Qt::ControlModifier);
  for (const CalendarDate date : Marked()) {
    EXPECT_EQ(date.year, 2026);
  }
  EXPECT_EQ(At({2026, 1, 6}), L"Work");
}

TEST_F(YearInUse, RedoGoesToAYearThatIsOnOfferNoMore) {
  EXPECT_TRUE(marks.Apply({{20000, 5, 1}}));
  marks.SetBrush({});
  EXPECT_TRUE(marks.Apply({{20000, 5, 1}}));
  calendar->ShowMarks();
  View()->Undo();
  EXPECT_EQ(calendar->GetYear(), 20000);
  calendar->SetYear(2026);
  View()->Redo();
  EXPECT_EQ(calendar->GetYear(), 20000);
}

TEST_F(YearInUse, ManyDayTypesLeaveTheYearItsRoom) {
  std::vector<ColouredType> types;
  for (int i = 0; i < 60; ++i) {
    types.push_back({nullptr, L"A day type with a long name", static_cast<Colour>(i)});
  }
  calendar->SetDayTypes(types);
  for (const QSize size : {QSize(320, 240), QSize(900, 650)}) {
    calendar->resize(size);
    EXPECT_GE(View()->height(), size.height() * 4 / 10);
    EXPECT_LE(calendar->findChild<LegendView*>()->height(), size.height() / 3);
  }
}

TEST_F(YearInUse, EveryPartHasAName) {
  calendar->resize(320, 300);
  for (const QWidget* part : calendar->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    EXPECT_FALSE(part->accessibleName().isEmpty()) << part->metaObject()->className();
  }
}

TEST_F(YearInUse, KeysWithAltAreTheWindowsOwn) {
  const CalendarDate before = Cursor();
  Key(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Cursor(), before);
}

}  // namespace
}  // namespace qv
