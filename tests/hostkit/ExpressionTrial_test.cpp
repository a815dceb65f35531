#include "hostkit/ExpressionTrial.h"

#include <gtest/gtest.h>

#include "hostkit/ExpressionSupport.h"
#include "tests/support/FakeHost.h"

namespace qv {
namespace {

class ExpressionTrialTest : public testing::Test {
 protected:
  ExpressionTrialTest() {
    Device meter(L"M", L"");
    meter.Add({L"V", L"", L"V", ClassAlone(VariableClass::Voltage), false, DailyCurve({{0, 230}})});
    meter.Add({L"OUT", L"", L"", ClassAlone(VariableClass::Voltage), false, {}});
    meter.Add({L"FAR", L"", L"", ClassAlone(VariableClass::Voltage), true, {}});
    meter.Add(
        {L"T", L"", L"", ClassAlone(VariableClass::Temperature), false, DailyCurve({{0, 21.4}})});
    Device tariff(L"R$DISC_tariff", L"");
    tariff.Add({L"D", L"", L"", ClassAlone(VariableClass::Voltage), false, DailyCurve({{0, 1}})});
    model.Add(std::move(meter));
    model.Add(std::move(tariff));
  }

  ExpressionTrial Try(const wchar_t* expression) const {
    return TryExpression(support, texts, expression, demand);
  }

  DeviceModel model;
  NumberTexts texts;
  ExpressionSupport support{model, texts, [] { return 0; }};
  ExpressionDemand demand;
};

TEST_F(ExpressionTrialTest, AResultIsShownAsItIs) {
  EXPECT_EQ(Try(L"M.T"), (ExpressionTrial{L"21.4", {}}));
  EXPECT_EQ(Try(L"M.V > 200"), (ExpressionTrial{L"[60085]", {}}));
  EXPECT_EQ(Try(L"M.V < 200"), (ExpressionTrial{L"[60086]", {}}));
}

TEST_F(ExpressionTrialTest, AConditionWithANumberIsToldSo) {
  demand.isCondition = true;
  EXPECT_EQ(Try(L"M.T").words, L"[60177]");
  EXPECT_EQ(Try(L"M.T > 1").words, L"[60085]");
}

TEST_F(ExpressionTrialTest, WhatIsWrongIsToldWithItsPlace) {
  for (const wchar_t* expression : {L"M.V +", L"(M.V", L"M.X > 1", L"N.V > 1", L"1 and true"}) {
    const ExpressionTrial trial = Try(expression);
    EXPECT_TRUE(trial.wrong.has_value()) << expression;
    EXPECT_FALSE(trial.words.empty()) << expression;
  }
}

TEST_F(ExpressionTrialTest, WhatHasNoValueHereOrNowIsNotWrong) {
  for (const wchar_t* expression : {L"M.OUT > 1", L"M.FAR > 1"}) {
    const ExpressionTrial trial = Try(expression);
    EXPECT_FALSE(trial.wrong.has_value()) << expression;
    EXPECT_FALSE(trial.words.empty()) << expression;
  }
}

TEST_F(ExpressionTrialTest, OneClassOfThoseAllowedIsEnough) {
  demand.variables.classes = ClassAlone(VariableClass::Voltage) | ClassAlone(VariableClass::Spare);
  EXPECT_FALSE(Try(L"M.V > 1").wrong);
  EXPECT_TRUE(Try(L"M.T > 1").wrong);
  demand.variables.classes = ClassAlone(VariableClass::Present);
  EXPECT_TRUE(Try(L"M.V > 1").wrong);
}

TEST_F(ExpressionTrialTest, DiscriminatorsCountWhereTheyAreWanted) {
  EXPECT_FALSE(Try(L"R$DISC_tariff.D > 0").wrong);
  demand.variables.withDiscriminators = false;
  EXPECT_TRUE(Try(L"R$DISC_tariff.D > 0").wrong);
}

}  // namespace
}  // namespace qv
