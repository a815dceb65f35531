#include "timestructure/DayTypeForm.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <tuple>

#include "tests/support/Saving.h"
#include "tests/support/ScriptedPrompter.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

constexpr EditorEnd cancelled{false, true};
constexpr EditorEnd confirmed{true, false};
constexpr EditorEnd confirmedWithChange{true, true};

/// A document of this text.
std::unique_ptr<XmlNode> Parsed(const char* text) {
  XmlDocument document;
  EXPECT_TRUE(document.Parse(text));
  return std::make_unique<XmlNode>(*document.Root());
}

/// The day types "work", red, with two slots, and "feast", blue; a form of the first.
class DayTypeFormTest : public testing::Test {
 protected:
  DayTypeFormTest() { form.Fill(); }

  XmlNode& Day(const wchar_t* name) { return *days->NodeV(L"day?name=%s?", name); }

  /// An editor that gives the slot an hour type and a start, and makes an hour type of its own.
  static DayTypeForm::RunSlotEditor Writing(EditorEnd end) {
    return [=](XmlNode& slot, HourTypes hourTypes) {
      hourTypes.Node().NewChild(L"hour", nullptr)->SetValue(L"id", L"new");
      slot.SetValue(L"id", L"new");
      slot.SetValue(L"from", L"05:00");
      return end;
    };
  }

  std::unique_ptr<XmlNode> days = Parsed(
      "<dayTypes><day><id>1</id><name>work</name><color>0000FF</color>"
      "<slot><id>h</id><from>00:00</from><to>12:00</to></slot>"
      "<slot><id>h</id><from>12:00</from><to>24:00</to></slot></day>"
      "<day><id>2</id><name>feast</name><color>FF0000</color></day></dayTypes>");
  std::unique_ptr<XmlNode> hours =
      Parsed("<hourTypes><hour><id>h</id><name>Peak</name></hour></hourTypes>");
  const XmlNode daysBefore{*days};
  const XmlNode hoursBefore{*hours};
  ScriptedPrompter prompter;
  DayTypeForm form{Day(L"work"), DayTypes(*days), HourTypes(*hours), prompter};
};

TEST_F(DayTypeFormTest, ReadsNameColourAndSlots) {
  EXPECT_EQ(form.Identity().OpenedName(), L"work");
  EXPECT_EQ(form.Identity().CurrentColour(), 0x0000FFU);
  EXPECT_EQ(form.Rows().size(), 2U);
  EXPECT_FALSE(form.IsModified());
}

TEST_F(DayTypeFormTest, SaveWritesNameAndColourAlways) {
  EXPECT_TRUE(Told(prompter, form.Save(L"work")));
  EXPECT_EQ(*days, daysBefore);
  EXPECT_FALSE(form.IsModified());
  EXPECT_TRUE(form.Identity().ChooseColour(0x00FF00));
  EXPECT_TRUE(Told(prompter, form.Save(L"office")));
  EXPECT_EQ(Day(L"office").Value(L"color"), L"00FF00");
  EXPECT_TRUE(form.IsModified());
}

TEST_F(DayTypeFormTest, EachRefusalHasItsText) {
  const std::vector<std::pair<const wchar_t*, Text>> refusals = {
      {L"", Text::DayTypeNameMissing},
      {L"a.b", Text::NameNotAllowed},
      {L"a,b", Text::DayTypeNameForbidden},
      {L"feast", Text::TypeNameTaken},
  };
  for (const auto& [name, text] : refusals) {
    prompter.ExpectShow(text);
    EXPECT_FALSE(Told(prompter, form.Save(name)));
    EXPECT_FALSE(form.IsModified());
  }
  form.Identity().ChooseColour(0xFF0000);
  prompter.ExpectAsk(Text::TypeColourTaken, false);
  EXPECT_FALSE(Told(prompter, form.Save(L"work")));
  EXPECT_EQ(*days, daysBefore);
}

TEST_F(DayTypeFormTest, AChangedNameCountsEvenIfTheSlotsAreRefused) {
  std::ignore = form.OnRemove(0);
  DayTypeForm other(Day(L"work"), DayTypes(*days), HourTypes(*hours), prompter);
  other.Fill();
  prompter.ExpectAsk(Text::DayNotCoveredQuestion, false);
  EXPECT_FALSE(Told(prompter, other.Save(L"office")));
  EXPECT_TRUE(other.IsModified());
  EXPECT_EQ(Day(L"work").Value(L"name"), L"work");
}

TEST_F(DayTypeFormTest, TheSlotsAreCheckedAfterNameAndColour) {
  std::ignore = form.OnRemove(0);
  form.Identity().ChooseColour(0xFF0000);
  prompter.ExpectAsk(Text::TypeColourTaken, true);
  prompter.ExpectAsk(Text::DayNotCoveredQuestion, true);
  EXPECT_TRUE(Told(prompter, form.Save(L"work")));
}

TEST_F(DayTypeFormTest, ReportingAsksNothing) {
  std::ignore = form.OnRemove(0);
  EXPECT_EQ(form.FaultOfSlots(), std::nullopt);
  Day(L"work").Node(L"slot")->SetValue(L"to", L"11:00");
  form.Fill();
  const auto fault = form.FaultOfSlots();
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->text, Text::SlotStartAfterEnd);
  EXPECT_EQ(fault->addition, (Addition{{Text::SlotTold, {L"Peak", L"12:00", L"11:00"}}}));
  EXPECT_EQ(fault->row, 0);
  EXPECT_EQ(fault->field, std::nullopt);
}

TEST_F(DayTypeFormTest, AnOverlapTellsBothSlotsAndIsAboutTheLaterRow) {
  hours->NewChild(L"hour", nullptr)->SetValue(L"id", L"v");
  hours->NodeV(L"hour?id=%s?", L"v")->SetValue(L"name", L"Valley");
  XmlNode& later = **std::prev(Day(L"work").ChildsEnd());
  later.SetValue(L"id", L"v");
  later.SetValue(L"from", L"11:59");
  form.Fill();
  const SaveEnd end = form.Save(L"work");
  ASSERT_TRUE(end.refusal);
  EXPECT_EQ(end.refusal->text, Text::SlotsOverlap);
  EXPECT_EQ(end.refusal->addition, (Addition{{Text::SlotTold, {L"Peak", L"00:00", L"12:00"}},
                                             {Text::SlotTold, {L"Valley", L"11:59", L"24:00"}}}));
  EXPECT_EQ(end.refusal->row, 1);
}

TEST_F(DayTypeFormTest, TheQuestionTellsTheFirstFiveGaps) {
  XmlNode& feast = Day(L"feast");
  for (const wchar_t* hour : {L"01", L"03", L"05", L"07", L"09"}) {
    XmlNode* slot = feast.NewChild(L"slot", nullptr);
    slot->SetValue(L"id", L"h");
    slot->SetValue(L"from", QVWideString(hour) + L":00");
    slot->SetValue(L"to", QVWideString(hour) + L":30");
  }
  DayTypeForm other(feast, DayTypes(*days), HourTypes(*hours), prompter);
  other.Fill();
  prompter.ExpectAsk(Text::DayNotCoveredQuestion, true);
  EXPECT_TRUE(Told(prompter, other.Save(L"feast")));
  EXPECT_EQ(prompter.Heard().back().addition, (Addition{{Text::GapTold, {L"00:00", L"01:00"}},
                                                        {Text::GapTold, {L"01:30", L"03:00"}},
                                                        {Text::GapTold, {L"03:30", L"05:00"}},
                                                        {Text::GapTold, {L"05:30", L"07:00"}},
                                                        {Text::GapTold, {L"07:30", L"09:00"}},
                                                        {Text::AndMore, {L"1"}}}));
}

TEST_F(DayTypeFormTest, TheUserAcceptsGapsOrStays) {
  std::ignore = form.OnRemove(0);
  for (const bool answer : {false, true}) {
    prompter.ExpectAsk(Text::DayNotCoveredQuestion, answer);
    const SaveEnd end = form.Save(L"work");
    EXPECT_EQ(end.IsDone(), answer);
    EXPECT_FALSE(end.refusal) << "the question has said it";
  }
}

TEST_F(DayTypeFormTest, ASaveTellsWhetherSomethingChanged) {
  EXPECT_EQ(form.Save(L"work").outcome, SaveOutcome::Unchanged);
  EXPECT_EQ(form.Save(L"office").outcome, SaveOutcome::Saved);
  EXPECT_EQ(form.Save(L""), (SaveEnd{SaveOutcome::Refused, Refused(Text::DayTypeNameMissing)}));
}

TEST_F(DayTypeFormTest, AddAppendsASlotAndTakesTheHourTypesOver) {
  const auto end = form.OnAdd([&](XmlNode& slot, HourTypes hourTypes) {
    EXPECT_EQ(&slot, *std::prev(Day(L"work").ChildsEnd()));
    EXPECT_EQ(slot.Value(L"id", L"?"), L"");
    EXPECT_EQ(slot.Value(L"from"), L"00:00");
    EXPECT_EQ(slot.Value(L"to"), L"00:00");
    EXPECT_NE(&hourTypes.Node(), hours.get());
    return Writing(confirmed)(slot, hourTypes);
  });
  EXPECT_EQ(end, (ListEnd{true, std::nullopt, 2}));
  EXPECT_EQ(form.Rows().size(), 3U);
  EXPECT_EQ(form.Rows()[2].from, L"05:00");
  EXPECT_TRUE(hours->NodeV(L"hour?id=%s?", L"new"));
  EXPECT_TRUE(form.IsModified());
}

TEST_F(DayTypeFormTest, ACancelledEditorLeavesEverythingAsItWas) {
  EXPECT_EQ(form.OnAdd(Writing(cancelled)), ListEnd());
  EXPECT_EQ(form.OnModify(0, Writing(cancelled)), ListEnd());
  EXPECT_EQ(*days, daysBefore);
  EXPECT_EQ(*hours, hoursBefore);
  EXPECT_FALSE(form.IsModified());
}

TEST_F(DayTypeFormTest, AnEditorThatThrowsLeavesEverythingAsItWas) {
  const DayTypeForm::RunSlotEditor throwing = [](XmlNode& slot, HourTypes hourTypes) -> EditorEnd {
    hourTypes.Node().Reset();
    slot.Reset();
    throw std::runtime_error("editor");
  };
  EXPECT_THROW(std::ignore = form.OnAdd(throwing), std::runtime_error);
  EXPECT_THROW(std::ignore = form.OnModify(1, throwing), std::runtime_error);
  EXPECT_EQ(*days, daysBefore);
  EXPECT_EQ(*hours, hoursBefore);
}

TEST_F(DayTypeFormTest, ModifyWorksOnCopiesAndSelectsNothingAfterwards) {
  EXPECT_EQ(form.OnModify(1,
                          [&](XmlNode& slot, HourTypes hourTypes) {
                            EXPECT_EQ(slot.Value(L"from"), L"12:00");
                            const auto end = Writing(confirmedWithChange)(slot, hourTypes);
                            EXPECT_EQ(*days, daysBefore);
                            return end;
                          }),
            (ListEnd{true, std::nullopt, 1}));
  EXPECT_EQ(form.Rows()[1].from, L"05:00");
  EXPECT_TRUE(form.IsModified());
}

TEST_F(DayTypeFormTest, TheCurrentRowIsTheLastOneIfTheChangedOneIsGone) {
  const auto end = form.OnModify(1, [](XmlNode& slot, HourTypes) {
    slot.SetValue(L"id", L"no hour type");
    return confirmed;
  });
  EXPECT_EQ(end, (ListEnd{true, std::nullopt, 0}));
  std::ignore = form.OnRemove(0);
  EXPECT_EQ(form.OnAdd([](XmlNode&, HourTypes) { return confirmed; }), (ListEnd{true}))
      << "a slot without an hour type leaves no row";
}

TEST_F(DayTypeFormTest, AConfirmedModifyWithoutAChangeIsStillTakenOver) {
  std::ignore = form.OnModify(0, Writing(confirmed));
  EXPECT_EQ(form.Rows()[0].from, L"05:00");
  EXPECT_TRUE(hours->NodeV(L"hour?id=%s?", L"new"));
  EXPECT_FALSE(form.IsModified());
}

TEST_F(DayTypeFormTest, WithoutARowNothingHappens) {
  EXPECT_EQ(form.OnModify(std::nullopt, Writing(confirmed)), ListEnd());
  EXPECT_EQ(form.OnModify(2, Writing(confirmed)), ListEnd());
  EXPECT_EQ(form.OnRemove(std::nullopt), ListEnd());
  EXPECT_EQ(form.OnRemove(2), ListEnd());
  EXPECT_EQ(*days, daysBefore);
}

TEST_F(DayTypeFormTest, RemoveKeepsTheSelectionAtItsPlace) {
  EXPECT_EQ(form.OnRemove(0), (ListEnd{true, 0}));
  EXPECT_EQ(form.Rows()[0].from, L"12:00");
  EXPECT_EQ(form.OnRemove(0), (ListEnd{true, std::nullopt}));
  EXPECT_TRUE(form.Rows().empty());
  EXPECT_TRUE(form.IsModified());
}

TEST_F(DayTypeFormTest, RemovingTheLastRowSelectsTheNewLastOne) {
  EXPECT_EQ(form.OnRemove(1), (ListEnd{true, 0}));
}

TEST_F(DayTypeFormTest, ADayWithoutSlotsIsSavedIfTheUserAcceptsIt) {
  DayTypeForm feast(Day(L"feast"), DayTypes(*days), HourTypes(*hours), prompter);
  feast.Fill();
  prompter.ExpectAsk(Text::DayNotCoveredQuestion, true);
  EXPECT_TRUE(Told(prompter, feast.Save(L"feast")));
  EXPECT_FALSE(Day(L"feast").Node(L"slot"));
  EXPECT_FALSE(feast.IsModified());
}

TEST_F(DayTypeFormTest, AnyFaultOfTheSlotsLeavesAChangedNameAChange) {
  Day(L"work").Node(L"slot")->SetValue(L"to", L"12:01");
  form.Fill();
  prompter.ExpectShow(Text::SlotsOverlap);
  EXPECT_FALSE(Told(prompter, form.Save(L"office")));
  EXPECT_TRUE(form.IsModified());
}

TEST_F(DayTypeFormTest, DroppingDeadSlotsIsNoChange) {
  hours->Reset();
  form.Fill();
  EXPECT_TRUE(form.Rows().empty());
  EXPECT_FALSE(Day(L"work").Node(L"slot"));
  EXPECT_FALSE(form.IsModified());
}

TEST_F(DayTypeFormTest, AColourChangedBackIsStillAChange) {
  form.Identity().ChooseColour(0);
  form.Identity().ChooseColour(0x0000FF);
  EXPECT_TRUE(Told(prompter, form.Save(L"work")));
  EXPECT_TRUE(form.IsModified());
}

}  // namespace
}  // namespace qv
