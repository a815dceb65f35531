#include "calendar/CalendarMarks.h"

#include <gmock/gmock.h>

#include "tests/calendar/Printing.h"

namespace qv {
namespace {

using testing::ElementsAre;

const Brush work{0x0000FF, L"Work"};
const Brush rest{0x00FF00, L"Rest"};

class CalendarMarksTest : public testing::Test {
 protected:
  /// The text of the brush that marked the date; "-" for none.
  std::wstring At(CalendarDate date) const {
    const Brush* brush = marks.BrushOf(date);
    return brush ? std::wstring(brush->text.ToView()) : L"-";
  }

  void Select(const Brush& brush, CalendarDate date) {
    marks.SetBrush(brush);
    EXPECT_TRUE(marks.Select(ToDateTime(date)));
  }

  bool Apply(const Brush& brush, const std::vector<CalendarDate>& dates) {
    marks.SetBrush(brush);
    return marks.Apply(dates);
  }

  CalendarMarks marks;
};

TEST_F(CalendarMarksTest, BeginWithoutMarksAndWithTheEraser) {
  EXPECT_TRUE(marks.CurrentBrush().IsEraser());
  EXPECT_FALSE(marks.First());
  EXPECT_FALSE(marks.Last());
  EXPECT_FALSE(marks.CanUndo());
  EXPECT_FALSE(marks.Undo());
  EXPECT_FALSE(marks.Redo());
  EXPECT_EQ(At({2026, 1, 1}), L"-");
}

TEST_F(CalendarMarksTest, TheLatestBrushOfADateWins) {
  Select(work, {2026, 1, 1});
  Select(rest, {2026, 1, 1});
  EXPECT_EQ(At({2026, 1, 1}), L"Rest");
  EXPECT_EQ(marks.BrushOf({2026, 1, 1})->colour, 0x00FF00U);
}

TEST_F(CalendarMarksTest, TheEraserTakesAMarkAway) {
  Select(work, {2026, 1, 1});
  Select({}, {2026, 1, 1});
  EXPECT_EQ(At({2026, 1, 1}), L"-");
  EXPECT_FALSE(marks.First());
}

TEST_F(CalendarMarksTest, OnlyWhiteWithoutATextErases) {
  EXPECT_TRUE((Brush{0xFFFFFF, L""}).IsEraser());
  EXPECT_FALSE((Brush{0xFFFFFF, L"White"}).IsEraser());
  EXPECT_FALSE((Brush{0x1FFFFFF, L""}).IsEraser());
  Select({0x0000FF, L""}, {2026, 1, 1});
  EXPECT_EQ(At({2026, 1, 1}), L"");
}

TEST_F(CalendarMarksTest, FirstAndLastAreByDateNotByTheOrderOfMarking) {
  Select(work, {2026, 3, 1});
  Select(work, {-5, 12, 31});
  Select(work, {2026, 2, 28});
  EXPECT_EQ(marks.First(), (CalendarDate{-5, 12, 31}));
  EXPECT_EQ(marks.Last(), (CalendarDate{2026, 3, 1}));
}

TEST_F(CalendarMarksTest, ADateThatDoesNotExistTakesNoMark) {
  marks.SetBrush(work);
  for (const CalendarDate date : {CalendarDate{2026, 2, 29}, CalendarDate{2026, 13, 1},
                                  CalendarDate{40000, 1, 1}, CalendarDate{2026, 1, 0}}) {
    EXPECT_FALSE(marks.Select(ToDateTime(date)));
    EXPECT_FALSE(marks.Apply({date}));
    EXPECT_EQ(At(date), L"-");
  }
  EXPECT_TRUE(marks.Select(ToDateTime({2024, 2, 29})));
}

TEST_F(CalendarMarksTest, AStrokeIsOneStepThatCanBeUndoneAndDoneAgain) {
  Select(rest, {2026, 1, 2});
  EXPECT_TRUE(Apply(work, {{2026, 1, 1}, {2026, 1, 2}, {2026, 1, 3}}));
  ASSERT_TRUE(marks.Undo());
  EXPECT_THAT((std::vector{At({2026, 1, 1}), At({2026, 1, 2}), At({2026, 1, 3})}),
              ElementsAre(L"-", L"Rest", L"-"));
  EXPECT_FALSE(marks.CanUndo());
  ASSERT_TRUE(marks.Redo());
  EXPECT_THAT((std::vector{At({2026, 1, 1}), At({2026, 1, 2}), At({2026, 1, 3})}),
              ElementsAre(L"Work", L"Work", L"Work"));
  EXPECT_FALSE(marks.CanRedo());
}

TEST_F(CalendarMarksTest, ADateThatAStrokeMeetsTwiceGoesBackToWhatItWas) {
  EXPECT_TRUE(Apply(work, {{2026, 1, 1}, {2026, 1, 1}}));
  ASSERT_TRUE(marks.Undo());
  EXPECT_EQ(At({2026, 1, 1}), L"-");
}

TEST_F(CalendarMarksTest, AStrokeThatChangesNothingIsNoStep) {
  Select(work, {2026, 1, 1});
  EXPECT_FALSE(Apply(work, {{2026, 1, 1}}));
  EXPECT_FALSE(Apply({}, {{2026, 1, 2}}));
  EXPECT_FALSE(Apply(work, {}));
  EXPECT_FALSE(marks.CanUndo());
}

TEST_F(CalendarMarksTest, ANewStrokeForgetsWhatWasTakenBack) {
  EXPECT_TRUE(Apply(work, {{2026, 1, 1}}));
  EXPECT_TRUE(marks.Undo());
  EXPECT_FALSE(Apply({}, {{2026, 1, 1}}));
  EXPECT_TRUE(marks.CanRedo());
  EXPECT_TRUE(Apply(rest, {{2026, 1, 2}}));
  EXPECT_FALSE(marks.CanRedo());
}

TEST_F(CalendarMarksTest, UndoDoesNotNeedTheBrushOfItsStroke) {
  EXPECT_TRUE(Apply(work, {{2026, 1, 1}}));
  EXPECT_TRUE(Apply({}, {{2026, 1, 1}}));
  marks.SetBrush(rest);
  EXPECT_TRUE(marks.Undo());
  EXPECT_EQ(At({2026, 1, 1}), L"Work");
  EXPECT_EQ(marks.CurrentBrush(), rest);
}

TEST_F(CalendarMarksTest, AStepMayMarkEachDateDifferently) {
  Select(work, {2026, 1, 3});
  marks.SetBrush(work);
  EXPECT_TRUE(marks.ApplyEach({{{2026, 1, 1}, rest}, {{2026, 1, 2}, work}, {{2026, 1, 3}, {}}}));
  EXPECT_EQ(At({2026, 1, 1}), L"Rest");
  EXPECT_EQ(At({2026, 1, 2}), L"Work");
  EXPECT_EQ(At({2026, 1, 3}), L"-");
  EXPECT_EQ(marks.CurrentBrush(), work);
  EXPECT_EQ(marks.DatesToUndo().size(), 3U);
  ASSERT_TRUE(marks.Undo());
  EXPECT_EQ(At({2026, 1, 1}), L"-");
  EXPECT_EQ(At({2026, 1, 3}), L"Work");
  EXPECT_FALSE(marks.CanUndo());
  EXPECT_TRUE(marks.DatesToUndo().empty());
  EXPECT_EQ(marks.DatesToRedo().size(), 3U);
}

TEST_F(CalendarMarksTest, ADateThatAStepMarksTwiceGoesBackToWhatItWas) {
  EXPECT_TRUE(marks.ApplyEach({{{2026, 1, 1}, rest}, {{2026, 1, 1}, work}}));
  EXPECT_EQ(At({2026, 1, 1}), L"Work");
  ASSERT_TRUE(marks.Undo());
  EXPECT_EQ(At({2026, 1, 1}), L"-");
  ASSERT_TRUE(marks.Redo());
  EXPECT_EQ(At({2026, 1, 1}), L"Work");
}

TEST_F(CalendarMarksTest, ABrushFoundKeepsItsPlaceWhileOthersMark) {
  Select(work, {2026, 1, 1});
  const Brush* brush = marks.BrushOf({2026, 1, 1});
  for (int day = 2; day <= 31; ++day) {
    Select({static_cast<Colour>(day), L"Other"}, {2026, 1, day});
  }
  EXPECT_EQ(brush, marks.BrushOf({2026, 1, 1}));
  EXPECT_EQ(brush->text, L"Work");
}

TEST_F(CalendarMarksTest, ForEachVisitsTheMarksByDate) {
  Select(work, {2026, 2, 1});
  Select(rest, {2026, 1, 31});
  std::vector<std::wstring> visited;
  marks.ForEach([&](const CalendarMarks::Mark& mark) {
    visited.push_back(std::to_wstring(mark.date.month) + std::wstring(mark.brush.text.ToView()));
  });
  EXPECT_THAT(visited, ElementsAre(L"1Rest", L"2Work"));
}

}  // namespace
}  // namespace qv
