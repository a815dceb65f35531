#include "conditions/ConditionForm.h"

#include <gmock/gmock.h>

#include "tests/support/Parsed.h"
#include "tests/support/Saving.h"
#include "tests/support/ScriptedExpressions.h"
#include "tests/support/ScriptedPrompter.h"
#include "tools/Nodes.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

QVWideString Times(wchar_t character, std::size_t count) {
  return QVWideString(std::wstring(count, character));
}

/// The conditions Day ("d"), Night ("n"), a child of another tag, and a scripted host to which "d",
/// "n" and "e" are good conditions.
class ConditionFormTest : public testing::Test {
 protected:
  ConditionFormTest() {
    for (const wchar_t* good : {L"d", L"n", L"e"}) {
      drivers.script[good] = {};
    }
    drivers.words[9] = L"nine";
  }

  static Refusal OfName(Text text, bool selectsAll) {
    return {.text = text, .field = Field::Name, .selectsAll = selectsAll};
  }
  static Refusal OfExpression(Addition addition = {}) {
    return {.text = Text::ExpressionInvalid,
            .field = Field::Expression,
            .selectsAll = true,
            .addition = std::move(addition)};
  }

  ScriptedDriverSupport drivers;
  std::unique_ptr<XmlNode> conditions = Parsed(
      "<conditions><condition><id>1</id><name>Day</name><exp>d</exp></condition>"
      "<other><name>Other</name></other>"
      "<condition><id>2</id><name>Night</name><exp>n</exp></condition></conditions>");
  const XmlNode before{*conditions};
  XmlNode& day = **conditions->ChildsBegin();
  ConditionForm form{day, conditions.get(), drivers};
};

TEST_F(ConditionFormTest, ShowsWhatTheNodeHas) {
  EXPECT_EQ(form.Name(), L"Day");
  EXPECT_EQ(form.Expression(), L"d");
  EXPECT_FALSE(form.IsModified());
}

TEST_F(ConditionFormTest, ANewConditionShowsNothing) {
  XmlNode scratch(L"condition");
  const ConditionForm added(scratch, conditions.get(), drivers);
  EXPECT_EQ(added.Name(), L"");
  EXPECT_EQ(added.Expression(), L"");
}

TEST_F(ConditionFormTest, AnEmptyNameComesFirst) {
  EXPECT_THAT(form.CheckCondition(L"", L"wrong"),
              Optional(OfName(Text::ConditionNameMissing, false)));
  EXPECT_THAT(drivers.calls, IsEmpty());
}

TEST_F(ConditionFormTest, TheExpressionComesBeforeATakenName) {
  EXPECT_THAT(form.CheckCondition(L"Night", L"wrong"), Optional(OfExpression()));
}

TEST_F(ConditionFormTest, AnEmptyExpressionIsCheckedAsAnyOther) {
  EXPECT_THAT(form.CheckCondition(L"Day", L""), Optional(OfExpression()));
  EXPECT_THAT(drivers.calls, ElementsAre(L"new ", L"SetFlags 4 -1", L"EnableDiscriminators false",
                                         L"AnalizeExpression"));
}

TEST_F(ConditionFormTest, WhatIsWrongIsToldBelowTheMessage) {
  drivers.script[L"d+"] = {.analysis = 0, .fault = ExpressionFault{{2, 0}, L"a value is missing"}};
  EXPECT_THAT(form.CheckCondition(L"Day", L"d+"),
              Optional(OfExpression({{Text::ExpressionFaultTold, {L"a value is missing"}}})));
}

TEST_F(ConditionFormTest, AResultOfAnotherTypeIsRefusedAsInvalid) {
  drivers.script[L"2+2"] = {.type = 0};
  drivers.script[L"later"] = {.code = 62, .type = 0};
  const Addition notLogical = {{Text::ResultNotLogicalTold}};
  EXPECT_THAT(form.CheckCondition(L"Day", L"2+2"), Optional(OfExpression(notLogical)));
  EXPECT_THAT(form.CheckCondition(L"Day", L"later"), Optional(OfExpression(notLogical)));
}

TEST_F(ConditionFormTest, AValueThatIsMissingAtTheMomentIsNoFault) {
  drivers.script[L"later"] = {.code = 62};
  EXPECT_EQ(form.CheckCondition(L"Day", L"later"), std::nullopt);
}

TEST_F(ConditionFormTest, AModuleThatCannotBeReadHereIsNoFault) {
  drivers.script[L"module"] = {.code = 1, .type = 0, .hasModule = true};
  EXPECT_EQ(form.CheckCondition(L"Day", L"module"), std::nullopt);
}

TEST_F(ConditionFormTest, AnyOtherCodeIsToldInTheWordsOfTheHost) {
  drivers.script[L"odd"] = {.code = 9, .hasModule = true};
  const Refusal expected{.words = L"nine", .field = Field::Expression, .selectsAll = true};
  EXPECT_THAT(form.CheckCondition(L"Day", L"odd"), Optional(expected));
}

TEST_F(ConditionFormTest, AFailedConditionNeedsAModuleToPassWithCodeOne) {
  drivers.script[L"odd"] = {.code = 1};
  drivers.words[1] = L"unreadable";
  const Refusal expected{.words = L"unreadable", .field = Field::Expression, .selectsAll = true};
  EXPECT_THAT(form.CheckCondition(L"Day", L"odd"), Optional(expected));
}

TEST_F(ConditionFormTest, TheHostsWordsAreShownAsTheyStand) {
  drivers.script[L"odd"] = {.code = 9};
  ScriptedPrompter prompter;
  prompter.ExpectText(L"nine");
  EXPECT_FALSE(Told(prompter, form.Save(L"Day", L"odd")));
}

TEST_F(ConditionFormTest, AnotherConditionOfTheNameIsRefused) {
  EXPECT_THAT(form.CheckCondition(L"Night", L"d"),
              Optional(OfName(Text::ConditionNameTaken, true)));
}

TEST_F(ConditionFormTest, NamesAreComparedWithCase) {
  EXPECT_EQ(form.CheckCondition(L"night", L"d"), std::nullopt);
}

TEST_F(ConditionFormTest, ChildrenWithOtherTagsTakeNoNames) {
  EXPECT_EQ(form.CheckCondition(L"Other", L"d"), std::nullopt);
}

TEST_F(ConditionFormTest, AConditionMayKeepItsOwnName) {
  EXPECT_EQ(form.CheckCondition(L"Day", L"e"), std::nullopt);
}

TEST_F(ConditionFormTest, ItsOwnNameIsTakenIfAnotherHasItToo) {
  conditions->NewChild(L"condition", nullptr)->SetValue(L"name", L"Day");
  EXPECT_THAT(form.CheckCondition(L"Day", L"d"), Optional(OfName(Text::ConditionNameTaken, true)));
}

TEST_F(ConditionFormTest, ANewConditionIsExemptFromNothing) {
  XmlNode scratch(day);
  const ConditionForm added(scratch, conditions.get(), drivers);
  EXPECT_THAT(added.CheckCondition(L"Day", L"d"), Optional(OfName(Text::ConditionNameTaken, true)));
}

TEST_F(ConditionFormTest, WithoutAListAnyNameIsFree) {
  const ConditionForm alone(day, nullptr, drivers);
  EXPECT_EQ(alone.CheckCondition(L"Night", L"d"), std::nullopt);
}

TEST_F(ConditionFormTest, ARefusedSaveWritesNothing) {
  EXPECT_EQ(form.Save(L"New", L"wrong"), (SaveEnd{SaveOutcome::Refused, OfExpression()}));
  EXPECT_EQ(form.Save(L"", L"e").outcome, SaveOutcome::Refused);
  EXPECT_EQ(form.Save(L"Night", L"e").outcome, SaveOutcome::Refused);
  EXPECT_EQ(*conditions, before);
  EXPECT_FALSE(form.IsModified());
}

TEST_F(ConditionFormTest, AnUnchangedSaveWritesNothing) {
  EXPECT_EQ(form.Save(L"Day", L"d"), (SaveEnd{SaveOutcome::Unchanged, {}}));
  EXPECT_EQ(*conditions, before);
  EXPECT_FALSE(form.IsModified());
}

TEST_F(ConditionFormTest, AnUnchangedConditionIsCheckedAllTheSame) {
  drivers.script.erase(L"d");
  EXPECT_EQ(form.Save(L"Day", L"d").outcome, SaveOutcome::Refused);
}

TEST_F(ConditionFormTest, EitherChangeIsSaved) {
  EXPECT_EQ(form.Save(L"day", L"d"), (SaveEnd{SaveOutcome::Saved, {}}));
  EXPECT_EQ(day.Value(L"name"), L"day");
  EXPECT_TRUE(form.IsModified());
  EXPECT_EQ(form.Save(L"day", L"e"), (SaveEnd{SaveOutcome::Saved, {}}));
  EXPECT_EQ(day.Value(L"exp"), L"e");
  EXPECT_EQ(day.Value(L"id"), L"1");
}

TEST_F(ConditionFormTest, ChangesAreSeenWithCaseAndBlanks) {
  EXPECT_FALSE(form.HasChanged(L"Day", L"d"));
  EXPECT_TRUE(form.HasChanged(L"DAY", L"d"));
  EXPECT_TRUE(form.HasChanged(L"Day", L"D"));
  EXPECT_TRUE(form.HasChanged(L"Day", L"d "));
}

TEST_F(ConditionFormTest, ANewConditionGetsItsFieldsBehindItsId) {
  XmlNode scratch(L"condition");
  scratch.SetValue(L"id", L"3");
  ConditionForm added(scratch, conditions.get(), drivers);
  EXPECT_TRUE(added.Save(L"New", L"e").IsDone());
  EXPECT_EQ(scratch, *Parsed("<condition><id>3</id><name>New</name><exp>e</exp></condition>"));
}

TEST_F(ConditionFormTest, ANameIsCutAtSixtyFourCharacters) {
  EXPECT_TRUE(form.Save(Times(L'n', 70), L"d").IsDone());
  EXPECT_EQ(day.Value(L"name"), Times(L'n', 64));
}

TEST_F(ConditionFormTest, TheCutNameIsWhatIsTaken) {
  (*std::prev(conditions->ChildsEnd()))->SetValue(L"name", Times(L'n', 64));
  EXPECT_EQ(form.Save(Times(L'n', 70), L"d"),
            (SaveEnd{SaveOutcome::Refused, OfName(Text::ConditionNameTaken, true)}));
}

TEST_F(ConditionFormTest, CharactersBeyondTheBasicPlaneCountAsOne) {
  const std::wstring emoji(70, L'\U0001F319');
  EXPECT_EQ(ConditionForm::Kept(QVWideString(emoji)).Length(), 64U);
}

TEST_F(ConditionFormTest, AnExpressionIsCutBeforeItIsCheckedAndStored) {
  drivers.script[std::wstring(64, L'1')] = {};
  EXPECT_TRUE(form.Save(L"Day", Times(L'1', 100)).IsDone());
  EXPECT_EQ(day.Value(L"exp"), Times(L'1', 64));
  EXPECT_EQ(drivers.calls.front(), L"new " + std::wstring(64, L'1'));
}

TEST_F(ConditionFormTest, WhatIsLeftOfACutExpressionIsToldIfItIsRefused) {
  const std::wstring kept(64, L'1');
  const Addition told = {{Text::ExpressionKept, {L"64", kept}}};
  EXPECT_EQ(form.Save(L"Day", Times(L'1', 65)),
            (SaveEnd{SaveOutcome::Refused, OfExpression(told)}));
  EXPECT_EQ(form.Save(L"Day", Times(L'1', 64)), (SaveEnd{SaveOutcome::Refused, OfExpression()}));
}

TEST_F(ConditionFormTest, WhatIsLeftOfACutExpressionIsToldInTheWordsOfTheHostAsWell) {
  const std::wstring kept(64, L'1');
  drivers.script[kept] = {.code = 9, .fault = ExpressionFault{{0, 1}, L"no device"}};
  const Refusal told{.words = L"nine",
                     .field = Field::Expression,
                     .selectsAll = true,
                     .addition = {{Text::ExpressionFaultTold, {L"no device"}},
                                  {Text::ExpressionKept, {L"64", kept}}}};
  EXPECT_EQ(form.Save(L"Day", Times(L'1', 65)), (SaveEnd{SaveOutcome::Refused, told}));
}

TEST_F(ConditionFormTest, AnExpressionThatIsOnlyTooLongIsSavedWhenItsBeginningIsStoredAlready) {
  const std::wstring kept(64, L'1');
  drivers.script[kept] = {};
  day.SetValue(L"exp", kept.c_str());
  EXPECT_EQ(form.Save(L"Day", Times(L'1', 80)).outcome, SaveOutcome::Unchanged);
}

TEST_F(ConditionFormTest, AStoredExpressionThatIsTooLongIsCutByAnyOk) {
  day.SetValue(L"exp", std::wstring(80, L'1').c_str());
  drivers.script[std::wstring(64, L'1')] = {};
  EXPECT_EQ(form.Save(L"Day", form.Expression()).outcome, SaveOutcome::Saved);
  EXPECT_EQ(day.Value(L"exp"), Times(L'1', 64));
}

TEST_F(ConditionFormTest, TheStatusOfNoExpressionAsksNobody) {
  EXPECT_EQ(form.Status(L""), ConditionEvaluation{});
  EXPECT_THAT(drivers.calls, IsEmpty());
}

TEST_F(ConditionFormTest, TheStatusTellsAResultOfAnotherTypeApart) {
  drivers.script[L"2+2"] = {.type = 0};
  EXPECT_EQ(form.Status(L"2+2").state, ConditionState::NotLogical);
  EXPECT_EQ(form.Status(L"d").state, ConditionState::True);
  EXPECT_EQ(form.Status(L"wrong").state, ConditionState::Invalid);
}

TEST_F(ConditionFormTest, TheStatusSeesTheFirst511Characters) {
  drivers.script[std::wstring(511, L'1')] = {};
  EXPECT_EQ(form.Status(Times(L'1', 512)).state, ConditionState::True);
  EXPECT_EQ(form.Status(Times(L'1', 511)).state, ConditionState::True);
  EXPECT_EQ(form.Status(Times(L'1', 510)).state, ConditionState::Invalid);
}

}  // namespace
}  // namespace qv
