// What the parts of a discriminator, and words of any kind, are after a save.
#include <gtest/gtest.h>

#include "tests/editor/FormFixture.h"
#include "tests/support/Parsed.h"

namespace qv {
namespace {

constexpr char parts[] =
    "<main><id>1</id><name>old</name><description/><setZeroOutsideSlot>T</setZeroOutsideSlot>"
    "<type>SLOTS</type><hourTypes><hour><id>h</id></hour></hourTypes>"
    "<dayTypes><day><id>d</id><slot><id>h</id><from>00:00</from><to>24:00</to></slot></day>"
    "</dayTypes><calendar><year><id>2026</id><date><value>d</value></date></year></calendar>"
    "<revision>r</revision></main>";

class PartsThroughASave : public FormTest {
 protected:
  /// Whether a part is in the file what it is in `parts`.
  bool IsStoredAsBefore(const wchar_t* part) {
    XmlDocument document;
    EXPECT_TRUE(document.Load(L"/cfg/1.old.xdct", files));
    const XmlNode* stored = document.Root()->Node(part);
    return stored && *stored == *Parsed(parts)->Node(part);
  }

  void SaveDescription(DiscriminatorForm& form, const wchar_t* description) {
    EXPECT_TRUE(Told(prompter, form.Save(Named(L"old", description))));
  }

  void Save(DiscriminatorForm& form) { SaveDescription(form, L""); }
};

TEST_F(PartsThroughASave, TheDatesOfARemovedDayTypeStay) {
  auto form = OpenContent(parts);
  form->OnDayTypes([](DayTypes dayTypes, Calendar, HourTypes) {
    dayTypes.Node().RemoveChild(dayTypes.Node().Node(L"day"));
    return EditorEnd{true, true};
  });
  Save(*form);
  EXPECT_TRUE(IsStoredAsBefore(L"calendar"));
  EXPECT_FALSE(IsStoredAsBefore(L"dayTypes"));
}

TEST_F(PartsThroughASave, TheSlotsOfARemovedHourTypeStay) {
  auto form = OpenContent(parts);
  form->OnHourTypes([](HourTypes hourTypes, DayTypes) {
    hourTypes.Node().RemoveChild(hourTypes.Node().Node(L"hour"));
    return EditorEnd{true, true};
  });
  Save(*form);
  EXPECT_TRUE(IsStoredAsBefore(L"dayTypes"));
  EXPECT_FALSE(IsStoredAsBefore(L"hourTypes"));
}

TEST_F(PartsThroughASave, AChangeOnceReportedIsNotLostByALaterDialogWithoutOne) {
  auto form = OpenContent(parts);
  const auto end = [](bool modified) { return EditorEnd{true, modified}; };
  form->OnHourTypes([&](HourTypes, DayTypes) { return end(true); });
  form->OnDayTypes([&](DayTypes, Calendar, HourTypes) { return end(false); });
  form->OnHourTypes([&](HourTypes, DayTypes) { return end(false); });
  EXPECT_TRUE(form->IsModified());
  Save(*form);
  EXPECT_NE(Stored(L"/cfg/1.old.xdct", L"revision"), L"r");
}

TEST_F(PartsThroughASave, AFileWithoutIdIsNotChangedByBeingOpened) {
  auto form = OpenContent(
      "<main><name>old</name><description/><setZeroOutsideSlot>T</setZeroOutsideSlot>"
      "<type>SLOTS</type><revision>r</revision></main>",
      L"/cfg/.old.xdct");
  EXPECT_FALSE(form->IsModified());
  EXPECT_EQ(form->Save(Named(L"old")).outcome, SaveOutcome::Unchanged);
  EXPECT_EQ(form->Root().Value(L"revision"), L"r");
}

TEST_F(PartsThroughASave, ADescriptionMayHoldAnyCharacterButAQuote) {
  constexpr wchar_t special[] = L"a\\b, c&d <e> 'f'; g/h: *i? |j| [k] %s \u00e9";
  auto form = OpenContent(parts);
  SaveDescription(*form, special);
  EXPECT_EQ(Stored(L"/cfg/1.old.xdct", L"description"), special);
}

TEST_F(PartsThroughASave, ATypePickedAfterAnUnknownWordTakesItsPlace) {
  const std::string content =
      "<main><id>1</id><name>old</name><type>SEASONS</type><hourTypes/><conditions/></main>";
  auto slots = OpenContent(content);
  slots->SelectType(DiscriminatorType::Slots);
  Save(*slots);
  EXPECT_EQ(Stored(L"/cfg/1.old.xdct", L"type"), L"SLOTS");
  EXPECT_FALSE(slots->Root().Node(L"conditions"));
  EXPECT_TRUE(slots->Root().Node(L"hourTypes"));

  auto conditions = OpenContent(content);
  conditions->SelectType(DiscriminatorType::Conditions);
  Save(*conditions);
  EXPECT_EQ(Stored(L"/cfg/1.old.xdct", L"type"), L"CONDITIONS");
  EXPECT_TRUE(conditions->Root().Node(L"conditions"));
  EXPECT_FALSE(conditions->Root().Node(L"hourTypes"));
}

}  // namespace
}  // namespace qv
