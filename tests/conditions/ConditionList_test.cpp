#include "conditions/ConditionList.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <tuple>

#include "tests/support/Parsed.h"
#include "tests/support/ScriptedPrompter.h"
#include "tools/Nodes.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr EditorEnd cancelled{false, true};
constexpr EditorEnd confirmed{true, true};

/// The conditions A to D under the ids 1 to 4, and children of other tags between them.
class ConditionListTest : public testing::Test {
 protected:
  /// Id, name and expression of each condition of the document, such as "1Aa".
  std::vector<std::wstring> Content() const {
    std::vector<std::wstring> content;
    for (const XmlNode& node : ChildrenWithTag(conditions.get(), L"condition")) {
      content.push_back(FieldOf(node, L"id") + FieldOf(node, L"name") + FieldOf(node, L"exp"));
    }
    return content;
  }

  /// Name and expression of each row, such as "Aa".
  std::vector<std::wstring> Rows() const {
    std::vector<std::wstring> rows;
    for (const ConditionRow& row : list.Rows()) {
      rows.push_back(std::wstring(row.name.ToView()) + std::wstring(row.expression.ToView()));
    }
    return rows;
  }

  /// An editor that writes a name and an expression.
  static RunEditor Writing(const wchar_t* name, const wchar_t* expression, EditorEnd end) {
    return [=](XmlNode& condition) {
      condition.SetValue(L"name", name);
      condition.SetValue(L"exp", expression);
      return end;
    };
  }

  void ExpectOthersAreThere() const {
    EXPECT_EQ(conditions->Value(L"first"), L"1");
    EXPECT_TRUE(conditions->NodeV(L"other?name=%s?", L"A"));
  }

  ScriptedPrompter prompter;
  std::unique_ptr<XmlNode> conditions = Parsed(
      "<conditions><first>1</first>"
      "<condition><id>1</id><name>A</name><exp>a</exp></condition>"
      "<condition><id>2</id><name>B</name><exp>b</exp></condition>"
      "<other><name>A</name></other>"
      "<condition><id>3</id><name>C</name><exp>c</exp></condition>"
      "<condition><id>4</id><name>D</name><exp>d</exp></condition></conditions>");
  const XmlNode before{*conditions};
  ConditionList list{OrderedConditions(*conditions), prompter};
};

TEST_F(ConditionListTest, ListsTheConditionsInTheirOrder) {
  EXPECT_THAT(Rows(), ElementsAre(L"Aa", L"Bb", L"Cc", L"Dd"));
  EXPECT_EQ(list.Rows()[2].node, conditions->NodeV(L"condition?id=%s?", L"3"));
  EXPECT_FALSE(list.IsModified());
}

TEST_F(ConditionListTest, WithoutANamelessConditionTheFirstRowIsSelectedOnOpening) {
  EXPECT_EQ(list.RowToSelect(L""), 0);
}

TEST(ConditionList, ANamelessConditionIsSelectedOnOpening) {
  ScriptedPrompter prompter;
  const auto nameless = Parsed(
      "<conditions><condition><name>A</name></condition><condition><exp>x</exp></condition>"
      "<condition><name>B</name></condition></conditions>");
  const ConditionList list(OrderedConditions(*nameless), prompter);
  EXPECT_EQ(list.RowToSelect(L""), 1);
}

TEST(ConditionList, OfTwoWantedNamesTheLastIsSelected) {
  ScriptedPrompter prompter;
  const auto twins = Parsed(
      "<conditions><condition><name>A</name></condition><condition><name>B</name></condition>"
      "<condition><name>A</name></condition><condition><name>a</name></condition></conditions>");
  const ConditionList list(OrderedConditions(*twins), prompter);
  EXPECT_EQ(list.RowToSelect(L"A"), 2);
  EXPECT_EQ(list.RowToSelect(L"none"), 0);
}

TEST(ConditionList, AnEmptyListHasNothingToDo) {
  ScriptedPrompter prompter;
  XmlNode empty(L"conditions");
  ConditionList list(OrderedConditions(empty), prompter);
  EXPECT_EQ(list.RowToSelect(L""), std::nullopt);
  EXPECT_EQ(list.OnRemove({}), ListEnd());
  EXPECT_EQ(list.OnUp(std::nullopt), ListEnd());
  EXPECT_EQ(list.OnDown(0), ListEnd());
  EXPECT_FALSE(list.OnModify(0, [](XmlNode&) { return confirmed; }));
  EXPECT_FALSE(list.IsModified());
}

TEST_F(ConditionListTest, AddRunsItsEditorOnAScratchConditionWithAnId) {
  QVWideString id;
  EXPECT_TRUE(list.OnAdd([&](XmlNode& condition) {
    EXPECT_EQ(*conditions, before);
    EXPECT_EQ(condition.Tag(), L"condition");
    id = condition.Value(L"id");
    EXPECT_EQ(id.Length(), 36U);
    EXPECT_EQ(std::distance(condition.ChildsBegin(), condition.ChildsEnd()), 1);
    return Writing(L"E", L"e", confirmed)(condition);
  }));
  EXPECT_EQ(Content().back(), std::wstring(id.ToView()) + L"Ee");
  EXPECT_EQ(Rows().back(), L"Ee");
  EXPECT_EQ(list.Rows().back().node, *std::prev(conditions->ChildsEnd()));
  EXPECT_TRUE(list.IsModified());
  ExpectOthersAreThere();
}

TEST_F(ConditionListTest, EachNewConditionHasAnIdOfItsOwn) {
  EXPECT_TRUE(list.OnAdd(Writing(L"E", L"e", confirmed)));
  EXPECT_TRUE(list.OnAdd(Writing(L"F", L"f", confirmed)));
  EXPECT_NE(list.Rows()[4].node->Value(L"id"), list.Rows()[5].node->Value(L"id"));
}

TEST_F(ConditionListTest, ACancelledAddLeavesAllAsItWas) {
  EXPECT_FALSE(list.OnAdd(Writing(L"E", L"e", cancelled)));
  EXPECT_EQ(*conditions, before);
  EXPECT_EQ(list.Rows().size(), 4U);
  EXPECT_FALSE(list.IsModified());
}

TEST_F(ConditionListTest, ModifyRunsItsEditorOnTheConditionItself) {
  EXPECT_TRUE(list.OnModify(1, [&](XmlNode& condition) {
    EXPECT_EQ(&condition, list.Rows()[1].node);
    return Writing(L"N", L"n", confirmed)(condition);
  }));
  EXPECT_THAT(Content(), ElementsAre(L"1Aa", L"2Nn", L"3Cc", L"4Dd"));
  EXPECT_THAT(Rows(), ElementsAre(L"Aa", L"Nn", L"Cc", L"Dd"));
  EXPECT_TRUE(list.IsModified());
  ExpectOthersAreThere();
}

TEST_F(ConditionListTest, ACancelledModifyLeavesAllAsItWas) {
  EXPECT_FALSE(list.OnModify(1, Writing(L"N", L"n", cancelled)));
  EXPECT_FALSE(list.OnModify(std::nullopt, Writing(L"N", L"n", confirmed)));
  EXPECT_FALSE(list.OnModify(4, Writing(L"N", L"n", confirmed)));
  EXPECT_FALSE(list.OnModify(-1, Writing(L"N", L"n", confirmed)));
  EXPECT_EQ(*conditions, before);
  EXPECT_THAT(Rows(), ElementsAre(L"Aa", L"Bb", L"Cc", L"Dd"));
  EXPECT_FALSE(list.IsModified());
}

TEST_F(ConditionListTest, AnEditorThatThrowsLeavesAllAsItWas) {
  const RunEditor throwing = [](XmlNode& condition) -> EditorEnd {
    condition.SetValue(L"name", L"half");
    throw std::runtime_error("editor");
  };
  EXPECT_THROW(std::ignore = list.OnAdd(throwing), std::runtime_error);
  EXPECT_THROW(std::ignore = list.OnModify(0, throwing), std::runtime_error);
  EXPECT_EQ(*conditions, before);
  EXPECT_THAT(Rows(), ElementsAre(L"Aa", L"Bb", L"Cc", L"Dd"));
  EXPECT_FALSE(list.IsModified());
}

TEST_F(ConditionListTest, RemovingNothingAsksNothing) {
  EXPECT_EQ(list.OnRemove({}), ListEnd());
  EXPECT_THAT(prompter.Heard(), IsEmpty());
}

TEST_F(ConditionListTest, OneQuestionIsAskedForManyAndNamesThem) {
  list.Rows()[2].node->SetValue(L"name", L"");
  ConditionList reread(OrderedConditions(*conditions), prompter);
  prompter.ExpectAsk(Text::RemoveConditionsQuestion, true);
  std::ignore = reread.OnRemove({0, 2});
  EXPECT_EQ(prompter.Heard().front().addition,
            (Addition{{Text::ItemToRemove, {L"A"}}, {Text::ItemToRemove, {L"c"}}}));
  EXPECT_THAT(Content(), ElementsAre(L"2Bb", L"4Dd"));
}

TEST_F(ConditionListTest, ANoChangesNothing) {
  prompter.ExpectAsk(Text::RemoveConditionsQuestion, false);
  EXPECT_EQ(list.OnRemove({0, 1}), ListEnd());
  EXPECT_EQ(*conditions, before);
  EXPECT_EQ(list.Rows().size(), 4U);
  EXPECT_FALSE(list.IsModified());
}

struct RemovalCase {
  std::vector<int> rows;
  std::optional<int> selected;
};

TEST_F(ConditionListTest, AfterARemovalTheRowAtThePlaceOfTheLastIsSelectedOrTheNewLast) {
  const RemovalCase cases[] = {
      {{0}, 0},    {{1}, 1},    {{3}, 2},       {{0, 1}, 0}, {{0, 2}, 1},
      {{1, 3}, 1}, {{2, 3}, 1}, {{0, 1, 2}, 0}, {{1, 2}, 1}, {{0, 1, 2, 3}, std::nullopt}};
  for (const auto& [rows, selected] : cases) {
    XmlNode copy(before);
    ScriptedPrompter yes{{Text::RemoveConditionsQuestion, true}};
    ConditionList removed(OrderedConditions(copy), yes);
    EXPECT_EQ(removed.OnRemove(rows), (ListEnd{true, selected})) << rows.front() << rows.back();
    EXPECT_EQ(removed.Rows().size(), 4 - rows.size());
    EXPECT_TRUE(removed.IsModified());
    EXPECT_EQ(copy.Value(L"first"), L"1");
  }
}

TEST_F(ConditionListTest, UpExchangesNamesAndExpressionsButNoIds) {
  EXPECT_EQ(list.OnUp(2), (ListEnd{true, 1}));
  EXPECT_THAT(Content(), ElementsAre(L"1Aa", L"2Cc", L"3Bb", L"4Dd"));
  EXPECT_THAT(Rows(), ElementsAre(L"Aa", L"Cc", L"Bb", L"Dd"));
  EXPECT_FALSE(list.IsModified());
  ExpectOthersAreThere();
}

TEST_F(ConditionListTest, DownExchangesNamesAndExpressionsButNoIds) {
  EXPECT_EQ(list.OnDown(0), (ListEnd{true, 1}));
  EXPECT_EQ(list.OnDown(1), (ListEnd{true, 2}));
  EXPECT_THAT(Content(), ElementsAre(L"1Bb", L"2Cc", L"3Aa", L"4Dd"));
  EXPECT_FALSE(list.IsModified());
}

TEST_F(ConditionListTest, AMoveBeyondTheEndsDoesNothing) {
  EXPECT_EQ(list.OnUp(0), ListEnd());
  EXPECT_EQ(list.OnDown(3), ListEnd());
  EXPECT_EQ(list.OnUp(std::nullopt), ListEnd());
  EXPECT_EQ(list.OnDown(std::nullopt), ListEnd());
  EXPECT_EQ(list.OnUp(4), ListEnd());
  EXPECT_EQ(list.OnDown(-1), ListEnd());
  EXPECT_EQ(*conditions, before);
}

TEST_F(ConditionListTest, UpAndDownAgainGiveTheSameDocument) {
  std::ignore = list.OnUp(3);
  std::ignore = list.OnDown(2);
  EXPECT_EQ(*conditions, before);
}

TEST_F(ConditionListTest, OfTwinsAMoveSelectsTheLast) {
  list.Rows()[3].node->SetValue(L"name", L"A");
  ConditionList reread(OrderedConditions(*conditions), prompter);
  EXPECT_EQ(reread.OnDown(0), (ListEnd{true, 3}));
}

TEST_F(ConditionListTest, AMoveWritesFieldsThatWereMissing) {
  const auto bare = Parsed(
      "<conditions><condition><id>1</id></condition>"
      "<condition><id>2</id><name>B</name><exp>b</exp></condition></conditions>");
  ConditionList two(OrderedConditions(*bare), prompter);
  EXPECT_EQ(two.OnUp(1), (ListEnd{true, 0}));
  EXPECT_EQ(*bare, *Parsed("<conditions><condition><id>1</id><exp>b</exp><name>B</name></condition>"
                           "<condition><id>2</id><name></name><exp></exp></condition>"
                           "</conditions>"));
}

TEST_F(ConditionListTest, AMoveLeavesAFlagThatIsSetAlone) {
  EXPECT_TRUE(list.OnModify(0, Writing(L"N", L"n", confirmed)));
  std::ignore = list.OnDown(0);
  EXPECT_TRUE(list.IsModified());
}

}  // namespace
}  // namespace qv
