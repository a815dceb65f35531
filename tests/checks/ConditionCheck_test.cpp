#include "checks/ConditionCheck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "checks/DocumentCheck.h"
#include "discriminator/Fields.h"
#include "tests/checks/Printing.h"
#include "tests/support/ScriptedExpressions.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ConditionCheckTest : public testing::Test {
 protected:
  ConditionCheckTest() {
    document.Create(L"main");
    drivers.script = {{L"good", {}},
                      {L"number", {.type = 2}},
                      {L"no value", {.code = QVEvaluator::CodeNoValue}},
                      {L"module", {.code = QVEvaluator::CodeUnreadable, .hasModule = true}},
                      {L"unknown", {.code = 7}},
                      {L"placed", {.code = 7, .fault = ExpressionFault{{3, 2}, L"No device X"}}}};
    drivers.words[7] = L"An unknown name";
    container = document.Root()->NewChild(tag::Conditions, nullptr);
  }

  void Add(const wchar_t* name, const std::wstring& expression) {
    XmlNode* condition = container->NewChild(tag::Condition, nullptr);
    condition->SetValue(tag::Id, name);
    condition->SetValue(tag::Name, name);
    condition->SetValue(tag::Expression, expression.c_str());
  }

  Findings Found() const { return CheckDocument(*document.Root(), &drivers); }

  static Finding Of(FindingKind kind, std::wstring place, std::wstring value = {}) {
    return {.kind = kind, .place = std::move(place), .value = std::move(value)};
  }

  XmlDocument document;
  ScriptedDriverSupport drivers;
  XmlNode* container;
};

TEST_F(ConditionCheckTest, GoodOnesAreNotTold) {
  Add(L"A", L"good");
  Add(L"B", L"no value");
  Add(L"C", L"module");
  EXPECT_THAT(Found(), IsEmpty());
}

TEST_F(ConditionCheckTest, OnesThatTheirEditorWouldRefuseAreTold) {
  Add(L"A", L"(");
  Add(L"B", L"");
  Add(L"C", L"number");
  Add(L"D", L"unknown");
  Add(L"E", L"placed");
  EXPECT_THAT(Found(),
              ElementsAre(Of(FindingKind::ConditionMalformed, L"conditions/A"),
                          Of(FindingKind::ConditionMissing, L"conditions/B"),
                          Of(FindingKind::ConditionNotLogical, L"conditions/C"),
                          Of(FindingKind::ConditionFails, L"conditions/D", L"An unknown name"),
                          Of(FindingKind::ConditionFails, L"conditions/E", L"No device X")));
  EXPECT_TRUE(Found().front().IsFault());
}

TEST_F(ConditionCheckTest, TheSecondOfTwoAlikeIsNoted) {
  Add(L"A", L"good");
  Add(L"B", L"no value");
  Add(L"C", L"good");
  Add(L"D", L"good");
  const Findings found = Found();
  EXPECT_THAT(found, ElementsAre(Of(FindingKind::ConditionsAlike, L"conditions/C", L"A"),
                                 Of(FindingKind::ConditionsAlike, L"conditions/D", L"A")));
  EXPECT_FALSE(found.front().IsFault());
}

TEST_F(ConditionCheckTest, OnesWithoutExpressionAreNotAlike) {
  Add(L"A", L"");
  Add(L"B", L"");
  EXPECT_THAT(Found(), ElementsAre(Of(FindingKind::ConditionMissing, L"conditions/A"),
                                   Of(FindingKind::ConditionMissing, L"conditions/B")));
}

TEST_F(ConditionCheckTest, ANumberWithoutAValueIsToldAsANumber) {
  drivers.script[L"absent"] = {
      .code = QVEvaluator::CodeNoValue, .type = 2, .fault = ExpressionFault{{0, 6}, L"No value"}};
  Add(L"A", L"absent");
  EXPECT_THAT(Found(), ElementsAre(Of(FindingKind::ConditionNotLogical, L"conditions/A")));
}

TEST_F(ConditionCheckTest, OnesThatWouldBeCutAreNoted) {
  const std::wstring longest(64, L'x');
  const std::wstring tooLong(65, L'x');
  drivers.script[longest] = {};
  drivers.script[tooLong] = {};
  Add(L"A", longest);
  Add(L"B", tooLong);
  const Findings found = Found();
  EXPECT_THAT(found, ElementsAre(Of(FindingKind::ConditionTooLong, L"conditions/B", L"65")));
  EXPECT_FALSE(found.front().IsFault());
}

TEST_F(ConditionCheckTest, WithoutAnEvaluatorOrAContainerNothingIsTold) {
  Add(L"A", L"(");
  EXPECT_THAT(CheckDocument(*document.Root()), IsEmpty());
  Findings findings;
  CheckConditions(nullptr, drivers, findings);
  EXPECT_THAT(findings, IsEmpty());
}

}  // namespace
}  // namespace qv
