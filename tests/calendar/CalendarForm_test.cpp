#include "calendar/CalendarForm.h"

#include <gmock/gmock.h>

#include "tests/support/Parsed.h"

namespace qv {
namespace {

class CalendarFormTest : public testing::Test {
 protected:
  /// The name that marks the date; "-" for none.
  std::wstring At(CalendarDate date) {
    const Brush* brush = form.Marks().BrushOf(date);
    return brush ? std::wstring(brush->text.ToView()) : L"-";
  }

  static CalendarForm::RunFastSelection Choosing(int dayType, FastSelection rule) {
    return [=] { return FastSelectionChoice{dayType, rule}; };
  }

  std::unique_ptr<XmlNode> calendar =
      Parsed("<calendar><year><year>2026</year><month6><day1>w</day1></month6></year></calendar>");
  std::unique_ptr<XmlNode> dayTypes = Parsed(
      "<dayTypes><day><id>w</id><name>work</name><color>0000FF</color></day>"
      "<day><id>r</id><name>Rest</name><color>00FF00</color></day></dayTypes>");
  CalendarForm form{Calendar(*calendar), DayTypes(*dayTypes)};
};

TEST_F(CalendarFormTest, OpensWithRowsByNameTheMarksAndTheEraser) {
  ASSERT_EQ(form.Rows().size(), 2U);
  EXPECT_EQ(form.Rows()[0].name, L"Rest");
  EXPECT_EQ(form.Rows()[1].name, L"work");
  EXPECT_EQ(At({2026, 6, 1}), L"work");
  EXPECT_TRUE(form.Marks().CurrentBrush().IsEraser());
  EXPECT_FALSE(form.IsModified());
}

TEST_F(CalendarFormTest, TheSelectedRowIsTheBrush) {
  form.SelectRow(0);
  EXPECT_EQ(form.Marks().CurrentBrush(), (Brush{0x00FF00, L"Rest"}));
  form.SelectRow(std::nullopt);
  EXPECT_TRUE(form.Marks().CurrentBrush().IsEraser());
}

TEST_F(CalendarFormTest, FastSelectionMarksWhatMatchesAndLeavesTheRest) {
  form.SelectRow(1);
  // Tuesdays of June.
  form.OnFastSelection(2026, Choosing(0, {0x02, 0x020}));
  EXPECT_EQ(At({2026, 6, 1}), L"work");
  EXPECT_EQ(At({2026, 6, 2}), L"Rest");
  EXPECT_EQ(At({2026, 6, 30}), L"Rest");
  EXPECT_EQ(At({2026, 7, 7}), L"-");
  EXPECT_EQ(At({2025, 6, 3}), L"-");
  EXPECT_TRUE(form.IsModified());
}

TEST_F(CalendarFormTest, FastSelectionOverwritesOtherDayTypes) {
  form.OnFastSelection(2026, Choosing(0, {0x01, 0x020}));
  EXPECT_EQ(At({2026, 6, 1}), L"Rest");
}

TEST_F(CalendarFormTest, FastSelectionPutsTheBrushBack) {
  form.SelectRow(1);
  form.OnFastSelection(2026, Choosing(0, {0x7F, 0xFFF}));
  EXPECT_EQ(form.Marks().CurrentBrush().text, L"work");
  form.SelectRow(std::nullopt);
  form.OnFastSelection(2026, Choosing(0, {0x7F, 0xFFF}));
  EXPECT_TRUE(form.Marks().CurrentBrush().IsEraser());
}

TEST_F(CalendarFormTest, FastSelectionWithoutAMatchIsAChangeAllTheSame) {
  form.OnFastSelection(2026, Choosing(0, {}));
  EXPECT_TRUE(form.IsModified());
  EXPECT_FALSE(form.Marks().CanUndo());
}

TEST_F(CalendarFormTest, FastSelectionIsOneStepThatCanBeUndone) {
  form.OnFastSelection(2026, Choosing(0, {0x7F, 0xFFF}));
  EXPECT_TRUE(form.Marks().Undo());
  EXPECT_EQ(At({2026, 6, 1}), L"work");
  EXPECT_EQ(At({2026, 6, 2}), L"-");
  EXPECT_FALSE(form.Marks().CanUndo());
}

TEST_F(CalendarFormTest, FastSelectionThatIsLeftChangesNothing) {
  form.OnFastSelection(2026, [] { return std::nullopt; });
  EXPECT_FALSE(form.IsModified());
  EXPECT_EQ(At({2026, 6, 1}), L"work");
}

TEST_F(CalendarFormTest, WithoutDayTypesTheFastSelectionRunsButChangesNothing) {
  const auto none = Parsed("<dayTypes/>");
  CalendarForm empty{Calendar(*calendar), DayTypes(*none)};
  bool hasRun = false;
  empty.OnFastSelection(2026, [&] {
    hasRun = true;
    return FastSelectionChoice{-1, {0x7F, 0xFFF}};
  });
  EXPECT_TRUE(hasRun);
  EXPECT_FALSE(empty.IsModified());
}

TEST_F(CalendarFormTest, EverySaveIsAChange) {
  const XmlNode before(*calendar);
  EXPECT_EQ(form.Save().outcome, SaveOutcome::Saved);
  EXPECT_TRUE(form.IsModified());
  EXPECT_EQ(*calendar, before);
}

TEST_F(CalendarFormTest, NothingIsWrittenBeforeTheSave) {
  const XmlNode before(*calendar);
  const XmlNode types(*dayTypes);
  form.OnFastSelection(2026, Choosing(0, {0x7F, 0xFFF}));
  EXPECT_EQ(*calendar, before);
  EXPECT_TRUE(form.Save().IsDone());
  EXPECT_EQ(calendar->Node(L"year?year=2026?")->Value(L"month6"), L"");
  EXPECT_EQ(calendar->Node(L"year?year=2026?")->Node(L"month6")->Value(L"day1"), L"r");
  EXPECT_EQ(*dayTypes, types);
}

}  // namespace
}  // namespace qv
