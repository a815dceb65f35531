#include "calendar/YearGestures.h"

#include <gtest/gtest.h>

#include "calendar/YearDates.h"
#include "tests/calendar/Printing.h"

namespace qv {
namespace {

const Brush work{0x0000FF, L"Work"};
const Brush rest{0x00FF00, L"Rest"};

class YearGesturesTest : public testing::Test {
 protected:
  YearGesturesTest() { marks.SetBrush(work); }

  std::vector<CalendarDate> Marked() const {
    std::vector<CalendarDate> dates;
    marks.ForEach([&](const CalendarMarks::Mark& mark) { dates.push_back(mark.date); });
    return dates;
  }

  CalendarMarks marks;
  YearGestures gestures{marks, {2026, 5, 17}};
};

TEST_F(YearGesturesTest, APressAndReleaseMarksItsDate) {
  gestures.Press({2026, 6, 1});
  EXPECT_TRUE(gestures.IsDrawing());
  EXPECT_EQ(gestures.Covered(), (std::vector<CalendarDate>{{2026, 6, 1}}));
  EXPECT_TRUE(Marked().empty()) << "not before the release";
  EXPECT_TRUE(gestures.Release());
  EXPECT_FALSE(gestures.IsDrawing());
  EXPECT_TRUE(gestures.Covered().empty());
  EXPECT_EQ(Marked(), (std::vector<CalendarDate>{{2026, 6, 1}}));
}

TEST_F(YearGesturesTest, ADragMarksAllBetweenAsOneStep) {
  gestures.Press({2026, 6, 1});
  EXPECT_TRUE(gestures.DragTo({2026, 5, 30}));
  EXPECT_FALSE(gestures.DragTo({2026, 5, 30}));
  EXPECT_TRUE(gestures.DragTo({2026, 6, 3}));
  EXPECT_TRUE(gestures.Release());
  EXPECT_EQ(Marked(), DatesBetween({2026, 6, 1}, {2026, 6, 3}));
  EXPECT_EQ(gestures.Cursor().Date(), (CalendarDate{2026, 6, 3}));
  EXPECT_TRUE(marks.Undo());
  EXPECT_TRUE(Marked().empty());
}

TEST_F(YearGesturesTest, ABlockMarksTheSameWeekdays) {
  gestures.Press({2026, 6, 1});
  EXPECT_TRUE(gestures.DragTo({2026, 6, 16}, true));
  EXPECT_EQ(gestures.Covered(), BlockBetween({2026, 6, 1}, {2026, 6, 16}));
  EXPECT_TRUE(gestures.DragTo({2026, 6, 16}, false)) << "the key may be let go on the way";
  EXPECT_EQ(gestures.Covered(), DatesBetween({2026, 6, 1}, {2026, 6, 16}));
}

TEST_F(YearGesturesTest, ACancelledDragChangesNothing) {
  gestures.Press({2026, 6, 1});
  gestures.DragTo({2026, 6, 9});
  gestures.Cancel();
  EXPECT_FALSE(gestures.IsDrawing());
  EXPECT_EQ(gestures.Cursor().Date(), (CalendarDate{2026, 5, 17}));
  EXPECT_FALSE(gestures.DragTo({2026, 6, 10}));
  EXPECT_FALSE(gestures.Release());
  EXPECT_TRUE(Marked().empty());
  EXPECT_FALSE(marks.CanUndo());
}

TEST_F(YearGesturesTest, AnExtendingPressRunsFromTheLastDate) {
  gestures.Press({2026, 6, 1});
  gestures.Release();
  gestures.Press({2026, 6, 4}, true);
  EXPECT_EQ(gestures.Covered(), DatesBetween({2026, 6, 1}, {2026, 6, 4}));
  EXPECT_TRUE(gestures.DragTo({2026, 6, 5}));
  EXPECT_TRUE(gestures.Release());
  EXPECT_EQ(Marked(), DatesBetween({2026, 6, 1}, {2026, 6, 5}));
}

TEST_F(YearGesturesTest, TheSelectedRangeIsMarkedAndLetGo) {
  gestures.Cursor().Move(CursorKey::Down, false, true);
  EXPECT_TRUE(gestures.MarkSelected());
  EXPECT_EQ(Marked(), DatesBetween({2026, 5, 17}, {2026, 5, 24}));
  EXPECT_FALSE(gestures.Cursor().HasRange());
  EXPECT_EQ(gestures.Cursor().Date(), (CalendarDate{2026, 5, 24}));
}

TEST_F(YearGesturesTest, ErasingTakesMarksAwayAndKeepsTheBrush) {
  gestures.Mark(DatesOfMonth(2026, 5));
  gestures.Cursor().GoTo({2026, 5, 2});
  gestures.Cursor().GoTo({2026, 5, 30}, true);
  EXPECT_TRUE(gestures.EraseSelected());
  EXPECT_EQ(Marked(), (std::vector<CalendarDate>{{2026, 5, 1}, {2026, 5, 31}}));
  EXPECT_EQ(marks.CurrentBrush(), work);
  EXPECT_FALSE(gestures.EraseSelected());
}

TEST_F(YearGesturesTest, CopiesFollowTheCursor) {
  marks.Apply({{2026, 5, 11}});  // the Monday of its week
  gestures.CopyWeek();
  gestures.CopyMonth();
  gestures.Cursor().GoTo({2026, 6, 17});
  EXPECT_TRUE(gestures.PasteWeek());
  EXPECT_EQ(Marked().back(), (CalendarDate{2026, 6, 15}));
  EXPECT_TRUE(gestures.PasteMonth());
  EXPECT_EQ(Marked().back(), (CalendarDate{2026, 6, 11}));
  EXPECT_TRUE(gestures.RepeatYear(RepeatBy::Date));
  EXPECT_EQ(Marked().back(), (CalendarDate{2027, 6, 11}));
  EXPECT_FALSE(gestures.RepeatYear(RepeatBy::Date));
}

}  // namespace
}  // namespace qv
