// What the pointer does to a year.
#include "calendar/YearDates.h"
#include "tests/calendar/ui/CalendarOnScreen.h"

namespace qv {
namespace {

class YearPointer : public CalendarOnScreen {};

TEST_F(YearPointer, ADragMarksAllBetweenAndShowsItBefore) {
  const QImage before = Picture();
  Press(PlaceOf({2026, 5, 30}));
  MoveTo(PlaceOf({2026, 6, 2}));
  EXPECT_NE(Picture(), before);
  EXPECT_TRUE(Marked().empty());
  Release(PlaceOf({2026, 6, 2}));
  EXPECT_EQ(Marked(), DatesBetween({2026, 5, 30}, {2026, 6, 2}));
  EXPECT_TRUE(marks.Undo());
  EXPECT_TRUE(Marked().empty());
}

TEST_F(YearPointer, APictureOfChangesIsThatOfTheWholeYear) {
  Picture();
  Drag({2026, 5, 30}, {2026, 6, 20}, Qt::ControlModifier);
  Press(PlaceOf({2026, 8, 1}));
  MoveTo(PlaceOf({2026, 9, 9}));
  Picture();
  MoveTo(PlaceOf({2026, 7, 9}));
  const QImage inParts = Picture();
  View()->RepaintAll();
  EXPECT_EQ(Picture(), inParts);
}

TEST_F(YearPointer, ADragThatLeavesTheCellsTakesTheNearestDate) {
  Press(PlaceOf({2026, 12, 1}));
  const QPoint farAway(View()->width() + 500, View()->height() + 500);
  MoveTo(farAway);
  Release(farAway);
  EXPECT_EQ(Marked(), DatesBetween({2026, 12, 1}, Cursor()));
  EXPECT_GT(Cursor(), (CalendarDate{2026, 12, 20}));
}

TEST_F(YearPointer, EscapeTakesADragBackAndStaysInTheWindow) {
  const QImage before = Picture();
  Key(Qt::Key_Right);
  Key(Qt::Key_Left);
  Press(PlaceOf({2026, 5, 30}));
  MoveTo(PlaceOf({2026, 6, 2}));
  Key(Qt::Key_Escape);
  EXPECT_EQ(Picture(), before);
  MoveTo(PlaceOf({2026, 6, 3}));
  Release(PlaceOf({2026, 6, 3}));
  EXPECT_TRUE(Marked().empty());
  EXPECT_FALSE(marks.CanUndo());
}

TEST_F(YearPointer, AStrokeEndsWhenTheKeyboardIsTakenAway) {
  Press(PlaceOf({2026, 5, 30}));
  View()->clearFocus();
  EXPECT_FALSE(View()->Gestures().IsDrawing());
  Release(PlaceOf({2026, 5, 30}));
  EXPECT_TRUE(Marked().empty());
}

TEST_F(YearPointer, KeysWaitUntilAStrokeEnds) {
  Press(PlaceOf({2026, 5, 30}));
  Key(Qt::Key_Right);
  Key(Qt::Key_Space);
  EXPECT_EQ(Cursor(), (CalendarDate{2026, 5, 30}));
  EXPECT_TRUE(Marked().empty());
  Release(PlaceOf({2026, 5, 30}));
  EXPECT_EQ(Marked().size(), 1U);
}

TEST_F(YearPointer, ADragWithControlMarksABlock) {
  Drag({2026, 6, 1}, {2026, 6, 17}, Qt::ControlModifier);
  EXPECT_EQ(Marked(), BlockBetween({2026, 6, 1}, {2026, 6, 17}));
  EXPECT_EQ(Marked().size(), 9U);
}

TEST_F(YearPointer, APressWithShiftExtendsFromTheLastDate) {
  QTest::mouseClick(View(), Qt::LeftButton, {}, PlaceOf({2026, 2, 26}));
  QTest::mouseClick(View(), Qt::LeftButton, Qt::ShiftModifier, PlaceOf({2026, 3, 2}));
  EXPECT_EQ(Marked(), DatesBetween({2026, 2, 26}, {2026, 3, 2}));
  EXPECT_TRUE(marks.Undo());
  EXPECT_EQ(Marked().size(), 1U);
}

TEST_F(YearPointer, ADoubleClickOnAHeadMarksWhatItStandsFor) {
  const YearGeometry geometry = View()->Geometry();
  const auto doubleClick = [this](const Rect& place) {
    QTest::mouseDClick(View(), Qt::LeftButton, {}, Middle(place));
    const auto marked = Marked();
    EXPECT_TRUE(marks.Undo());
    EXPECT_FALSE(marks.CanUndo()) << "one step";
    return marked;
  };
  EXPECT_EQ(doubleClick(geometry.HeadOf(4, 6)), DatesOfWeekday(2026, 4, 6));
  EXPECT_EQ(doubleClick(geometry.NameOf(4)), DatesOfMonth(2026, 4));
  const auto week = geometry.WeekOf(4, 18);
  ASSERT_TRUE(week) << "there should be room for week numbers";
  EXPECT_EQ(doubleClick(*week), DatesOfWeek({2026, 5, 1}));
}

TEST_F(YearPointer, ASingleClickOnAHeadDoesNothing) {
  QTest::mouseClick(View(), Qt::LeftButton, {}, Middle(View()->Geometry().NameOf(4)));
  EXPECT_TRUE(Marked().empty());
  QTest::mouseDClick(View(), Qt::RightButton, {}, Middle(View()->Geometry().NameOf(4)));
  EXPECT_TRUE(Marked().empty());
}

TEST_F(YearPointer, ADoubleClickOnADateMarksItOnce) {
  const QPoint place = PlaceOf({2026, 2, 26});
  Press(place);
  Release(place);
  Send(QEvent::MouseButtonDblClick, place, Qt::LeftButton);
  Release(place);
  EXPECT_EQ(Marked().size(), 1U);
  EXPECT_TRUE(marks.Undo());
  EXPECT_FALSE(marks.CanUndo());
}

TEST_F(YearPointer, OtherButtonsMarkNothing) {
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    QTest::mouseClick(View(), button, {}, PlaceOf({2026, 2, 26}));
  }
  EXPECT_TRUE(Marked().empty());
}

/// A calendar with less room than a year takes.
class NarrowYear : public CalendarOnScreen {
 protected:
  NarrowYear() { calendar->resize(320, 260); }
};

TEST_F(NarrowYear, ScrollsByMonthWithTheWheel) {
  View()->SetFirstMonth(1);
  const int shown = View()->Geometry().MonthsShown();
  ASSERT_LT(shown, 12);
  const auto turn = [this](int eighths) {
    QWheelEvent event(QPointF(10, 10), View()->mapToGlobal(QPointF(10, 10)), {}, {0, eighths}, {},
                      {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(View(), &event);
  };
  turn(-120);
  EXPECT_EQ(View()->Geometry().FirstMonth(), 2);
  turn(120);
  turn(120);
  EXPECT_EQ(View()->Geometry().FirstMonth(), 1);
}

TEST_F(NarrowYear, FollowsTheCursor) {
  Key(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(View()->Geometry().FirstMonth(), 1);
  Key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_TRUE(View()->Geometry().Shows(12));
  EXPECT_FALSE(View()->CellOf({2026, 12, 31}).isEmpty());
  EXPECT_TRUE(View()->CellOf({2026, 1, 1}).isEmpty());
}

TEST_F(NarrowYear, ADragAcrossTheEdgeMovesOn) {
  View()->SetFirstMonth(1);
  const YearGeometry geometry = View()->Geometry();
  const CalendarDate first{2026, 1, 15};
  Press(PlaceOf(first));
  const QPoint below(View()->width() / 2, View()->height() + 20);
  MoveTo(below);
  EXPECT_EQ(View()->Geometry().FirstMonth(), 2);
  MoveTo(below + QPoint(0, 5));
  EXPECT_EQ(View()->Geometry().FirstMonth(), 2) << "once for each crossing";
  MoveTo(QPoint(View()->width() / 2, View()->height() / 2));
  MoveTo(below);
  EXPECT_EQ(View()->Geometry().FirstMonth(), 3);
  Release(below);
  EXPECT_EQ(Marked(), DatesBetween(first, Cursor()));
  EXPECT_GT(Cursor().month, geometry.MonthsShown()) << "one that wasn't on show";
}

}  // namespace
}  // namespace qv
