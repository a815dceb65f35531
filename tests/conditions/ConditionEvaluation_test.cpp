#include "conditions/ConditionEvaluation.h"

#include <gmock/gmock.h>

#include "tests/support/NamedCase.h"
#include "tests/support/ScriptedExpressions.h"

namespace qv {
namespace {

using testing::ElementsAre;

struct EvaluationCase : NamedCase {
  ScriptedExpression says;
  ConditionEvaluation expected;
  bool isCondition;
};

const ExpressionFault fault{{2, 3}, L"a bracket is missing"};

const EvaluationCase cases[] = {
    {{"NotWellFormed"}, {.analysis = 0}, {ConditionState::Invalid}, false},
    {{"AnalysisOfAnotherCode"}, {.analysis = 2}, {ConditionState::Invalid}, false},
    {{"FaultIsTold"},
     {.analysis = 0, .fault = fault},
     {ConditionState::Invalid, L"", fault},
     false},
    {{"True"}, {.value = 1}, {ConditionState::True}, true},
    {{"False"}, {.value = 0}, {ConditionState::False}, true},
    {{"Number"}, {.type = 0}, {ConditionState::NotLogical}, false},
    {{"ValueMissing"}, {.code = 62}, {ConditionState::NoValue}, true},
    {{"ValueOfNumberMissing"}, {.code = 62, .type = 2}, {ConditionState::NotLogical}, false},
    {{"Module"}, {.code = 1, .type = 0, .hasModule = true}, {ConditionState::UsesModule}, true},
    {{"UnreadableWithoutModule"}, {.code = 1}, {ConditionState::Failed, L"unreadable"}, false},
    {{"FailedWithModule"}, {.code = 7, .hasModule = true}, {ConditionState::Failed, L"7"}, false},
    {{"FailedWithoutWords"}, {.code = 8}, {ConditionState::Failed, L""}, false},
};

class ConditionEvaluationTest : public testing::TestWithParam<EvaluationCase> {};

TEST_P(ConditionEvaluationTest, StateFollowsFromWhatTheEvaluatorSays) {
  ScriptedDriverSupport drivers;
  drivers.words = {{1, L"unreadable"}, {7, L"7"}, {62, L"no value"}};
  drivers.script[L"exp"] = GetParam().says;
  EXPECT_EQ(EvaluateCondition(drivers, L"exp"), GetParam().expected);
  EXPECT_EQ(IsCondition(GetParam().expected.state), GetParam().isCondition);
}

INSTANTIATE_TEST_SUITE_P(Outcomes, ConditionEvaluationTest, testing::ValuesIn(cases),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST(ConditionEvaluation, EachTimeANewEvaluatorIsSetUpAndAsked) {
  ScriptedDriverSupport drivers;
  drivers.script[L"a"] = {};
  EvaluateCondition(drivers, L"a");
  EXPECT_THAT(drivers.calls, ElementsAre(L"new a", L"SetFlags 4 -1", L"EnableDiscriminators false",
                                         L"AnalizeExpression", L"Evaluate"));
}

TEST(ConditionEvaluation, WhatIsNotWellFormedIsNotEvaluated) {
  ScriptedDriverSupport drivers;
  EvaluateCondition(drivers, L"");
  EXPECT_THAT(drivers.calls, ElementsAre(L"new ", L"SetFlags 4 -1", L"EnableDiscriminators false",
                                         L"AnalizeExpression"));
}

}  // namespace
}  // namespace qv
