#include <clocale>
#include <set>

#include "tests/hostkit/ExpressionTest.h"

namespace qv {
namespace {

using Code = ExpressionCode;
using ExpressionCodes = ExpressionTest;

constexpr Code allCodes[] = {
    Code::TooLarge,        Code::NotWellFormed, Code::DiscriminatorOff, Code::UnknownDevice,
    Code::UnknownVariable, Code::ClassMissing,  Code::TypesMixed,       Code::Unreadable,
    Code::NoValue,         Code::NotFinite,
};

TEST_F(ExpressionCodes, AreWordedInEachLanguage) {
  for (const wchar_t* file : {QV_LANGUAGES L"en.txt", QV_LANGUAGES L"es.txt"}) {
    ASSERT_TRUE(texts.Load(file));
    std::set<std::wstring> wordings;
    for (const Code code : allCodes) {
      QVWideString text;
      EXPECT_TRUE(support.ErrorMsg(static_cast<int>(code), text));
      EXPECT_TRUE(wordings.emplace(text.ToView()).second) << static_cast<const wchar_t*>(text);
    }
  }
}

TEST_F(ExpressionCodes, ThatAreNoneSayTheirNumber) {
  for (const int code : {0, -1, 10, 61, 63, 1000}) {
    QVWideString text;
    EXPECT_FALSE(support.ErrorMsg(code, text)) << code;
    EXPECT_EQ(text, L"[" + std::to_wstring(code) + L"]");
  }
}

TEST_F(ExpressionCodes, OfHostsKeepTheirNumbers) {
  EXPECT_EQ(static_cast<int>(Code::Evaluated), 0);
  EXPECT_EQ(static_cast<int>(Code::Unreadable), 1);
  EXPECT_EQ(static_cast<int>(Code::NoValue), 62);
  EXPECT_EQ(static_cast<int>(ExpressionType::Truth), 1);
}

TEST_F(ExpressionCodes, HaveAFixedOrder) {
  const std::pair<const wchar_t*, Code> cases[] = {
      {L"1 + (NO.A and", Code::NotWellFormed},        {L"NO.A and 1", Code::UnknownDevice},
      {L"TS1.NO + NO.A", Code::UnknownVariable},      {L"NO.A + TS1.NO", Code::UnknownDevice},
      {L"TS1.RELAY + TS1.SETUP", Code::ClassMissing}, {L"TS1.RELAY and TS1.NONE", Code::TypesMixed},
      {L"TS1.NONE + TS1.RELAY", Code::Unreadable},    {L"TS1.NONE + 1/0", Code::NoValue},
      {L"true or TS1.NONE > 1", Code::NoValue},
  };
  for (const auto& [expression, code] : cases) {
    EXPECT_EQ(Evaluate(expression).code, code) << expression;
  }
}

TEST_F(ExpressionCodes, WithoutAValueKeepTheType) {
  const std::pair<const wchar_t*, int> cases[] = {
      {L"TS1.NONE", number},
      {L"TS1.NONE > 1", truth},
      {L"not TS1.NONE > 1", truth},
      {L"1 > 2 and TS1.NONE > 1", truth},
      {L"TS1.NONE == TS1.NONE", truth},
      {L"if(TS1.NONE > 1, 1, 2)", number},
      {L"if(TS1.NONE > 1, true, false)", truth},
      {L"1/TS1.NONE + sqrt(TS1.NONE)", number},
      {L"min(TS1.NONE,1) <= 0", truth},
  };
  for (const auto& [expression, type] : cases) {
    const Evaluation result = Evaluate(expression);
    EXPECT_EQ(result.code, Code::NoValue) << expression;
    EXPECT_EQ(result.type, type) << expression;
  }
  EXPECT_EQ(Evaluate(L"TS1.RELAY > 0").type, truth);
}

TEST_F(ExpressionCodes, OfAModuleAreToldBeforehand) {
  EXPECT_TRUE(support.isThereAModuleInExpression(L"TS1.VL1 > 0 and [TS1.RELAY] > 0"));
  EXPECT_TRUE(support.isThereAModuleInExpression(L"TS1.RELAY and 1"));
  EXPECT_FALSE(support.isThereAModuleInExpression(L"TS1.VL1 > 0"));
  EXPECT_FALSE(support.isThereAModuleInExpression(L"TS1.RELAY >"));
  EXPECT_FALSE(support.isThereAModuleInExpression(L"NO.RELAY > 0"));
  EXPECT_FALSE(support.isThereAModuleInExpression(L""));
}

TEST_F(ExpressionCodes, FollowTheFlags) {
  const auto evaluator = support.NewEvaluator(L"TS1.SETUP");
  double value = 0;
  int type = 0;
  EXPECT_EQ(evaluator->Evaluate(value, type), 0);
  EXPECT_TRUE(evaluator->SetFlags(4, -1));
  EXPECT_EQ(evaluator->Evaluate(value, type), static_cast<int>(Code::ClassMissing));
  EXPECT_TRUE(evaluator->SetFlags(4, 31, -1));
  EXPECT_EQ(evaluator->Evaluate(value, type), 0);
  EXPECT_TRUE(evaluator->SetFlags(-1));
  EXPECT_EQ(evaluator->Evaluate(value, type), 0);
}

TEST_F(ExpressionCodes, FlagsThatAreNoClassChangeNothing) {
  const auto evaluator = Evaluator(L"TS1.SETUP");
  EXPECT_FALSE(evaluator->SetFlags(31, 34, -1));
  EXPECT_FALSE(evaluator->SetFlags(-2, -1));
  double value = 0;
  int type = 0;
  EXPECT_EQ(evaluator->Evaluate(value, type), static_cast<int>(Code::ClassMissing));
}

TEST_F(ExpressionCodes, DiscriminatorsCanBeEnabled) {
  const auto evaluator = Evaluator(L"R$DISC_Tariff.PEAK");
  double value = 0;
  int type = 0;
  EXPECT_EQ(evaluator->Evaluate(value, type), static_cast<int>(Code::DiscriminatorOff));
  evaluator->EnableDiscriminators(true);
  EXPECT_EQ(evaluator->Evaluate(value, type), 0);
  EXPECT_EQ(value, 1);
}

TEST_F(ExpressionCodes, FollowAModelThatIsReadAnew) {
  const auto evaluator = Evaluator(L"TS1.VL1");
  devices.Read(*Parsed("<configuration/>"));
  double value = 0;
  int type = 0;
  EXPECT_EQ(evaluator->Evaluate(value, type), static_cast<int>(Code::UnknownDevice));
}

TEST_F(ExpressionCodes, KeepTheExpressionAsItWas) {
  EXPECT_EQ(Evaluator(L" a=1 ")->Expr(), L" a=1 ");
}

}  // namespace
}  // namespace qv
