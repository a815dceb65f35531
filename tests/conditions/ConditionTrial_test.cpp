#include "conditions/ConditionTrial.h"

#include <gmock/gmock.h>

#include "tests/support/Parsed.h"
#include "tests/support/ScriptedExpressions.h"

namespace qv {
namespace {

class ConditionTrialTest : public testing::Test {
 protected:
  ConditionTrialTest() {
    drivers.script[L"no"] = {.value = 0};
    drivers.script[L"yes"] = {.value = 1};
    drivers.script[L"later"] = {.code = 62};
    drivers.script[L"odd"] = {.code = 9};
    drivers.words[9] = L"nine";
  }

  std::vector<TriedCondition> Tried(const char* xml) {
    const auto conditions = Parsed(xml);
    return TryConditions(OrderedConditions(*conditions), drivers);
  }

  ScriptedDriverSupport drivers;
};

TEST_F(ConditionTrialTest, EachConditionIsTriedInItsOrder) {
  const auto tried = Tried(
      "<conditions><condition><name>A</name><exp>no</exp></condition><other><exp>yes</exp></other>"
      "<condition><name>B</name><exp>odd</exp></condition>"
      "<condition><name>C</name><exp>yes</exp></condition>"
      "<condition><name>D</name><exp>yes</exp></condition></conditions>");
  EXPECT_EQ(tried, (std::vector<TriedCondition>{
                       {L"A", L"no", {ConditionState::False}},
                       {L"B", L"odd", {ConditionState::Failed, L"nine"}},
                       {L"C", L"yes", {ConditionState::True}},
                       {L"D", L"yes", {ConditionState::True}},
                   }));
  EXPECT_EQ(FirstTrue(tried), 2);
}

TEST_F(ConditionTrialTest, NoneMayBeTrue) {
  EXPECT_EQ(FirstTrue(Tried("<conditions/>")), std::nullopt);
  EXPECT_EQ(FirstTrue(Tried("<conditions><condition><exp>later</exp></condition>"
                            "<condition><exp>no</exp></condition></conditions>")),
            std::nullopt);
}

TEST_F(ConditionTrialTest, AConditionWithoutExpressionIsNotEvaluated) {
  const auto tried = Tried("<conditions><condition><name>A</name></condition></conditions>");
  EXPECT_EQ(tried.front().result.state, ConditionState::Missing);
  EXPECT_TRUE(drivers.calls.empty());
}

TEST_F(ConditionTrialTest, AllOfAStoredExpressionCounts) {
  const std::string longer(600, '1');
  drivers.script[std::wstring(600, L'1')] = {};
  const auto tried =
      Tried(("<conditions><condition><exp>" + longer + "</exp></condition></conditions>").c_str());
  EXPECT_EQ(tried.front().result.state, ConditionState::True);
}

}  // namespace
}  // namespace qv
