#include "hostkit/ExpressionSyntax.h"
#include "tests/hostkit/ExpressionTest.h"

namespace qv {
namespace {

using Code = ExpressionCode;

std::wstring Repeated(std::wstring_view piece, int times) {
  std::wstring text;
  for (int i = 0; i < times; ++i) {
    text += piece;
  }
  return text;
}

std::wstring Nested(std::wstring_view opening, int depth) {
  return Repeated(opening, depth) + L"1" + Repeated(L")", depth);
}

using ExpressionBounds = ExpressionTest;

TEST_F(ExpressionBounds, BracketsMayBeDeep) {
  EXPECT_EQ(Evaluate(Nested(L"(", deepestBrackets)).code, Code::Evaluated);
  EXPECT_EQ(Evaluate(Nested(L"abs(", 200)).code, Code::Evaluated);
  EXPECT_EQ(Evaluate(Nested(L"min(2,", 200)).value, 1);
}

TEST_F(ExpressionBounds, BracketsThatAreTooDeepAreNotParsed) {
  const std::wstring expression = Nested(L"(", deepestBrackets + 1);
  const Evaluation result = Evaluate(expression);
  EXPECT_EQ(result.code, Code::TooLarge);
  EXPECT_EQ(result.fault->place, (ExpressionPlace{deepestBrackets, 1}));
  EXPECT_FALSE(IsWellFormed(expression));
  EXPECT_EQ(Evaluate(std::wstring(512, L'(')).code, Code::TooLarge);
  EXPECT_EQ(Evaluate(Nested(L"abs(", 600)).code, Code::TooLarge);
}

TEST_F(ExpressionBounds, ExpressionsThatAreTooLongAreNotParsed) {
  const std::wstring longest = L"1" + Repeated(L" ", longestExpression - 2) + L" ";
  EXPECT_EQ(Evaluate(longest).code, Code::Evaluated);
  const Evaluation result = Evaluate(longest + L"  ");
  EXPECT_EQ(result.code, Code::TooLarge);
  EXPECT_EQ(result.fault->place, (ExpressionPlace{longestExpression, 2}));
  EXPECT_EQ(Evaluate(std::wstring(20'000, L'(')).code, Code::TooLarge);
  EXPECT_TRUE(Evaluator(std::wstring(20'000, L'a'))->ProposalsAt(100).proposals.empty());
}

TEST_F(ExpressionBounds, LongChainsAreEvaluated) {
  EXPECT_EQ(Evaluate(L"1" + Repeated(L"+1", 999)).value, 1000);
  EXPECT_EQ(Evaluate(L"2" + Repeated(L"^1", 999)).value, 2);
  EXPECT_EQ(Evaluate(L"true" + Repeated(L" and true", 200)).value, 1);
  EXPECT_EQ(Evaluate(L"min(5" + Repeated(L",5", 990) + L")").value, 5);
  EXPECT_EQ(Evaluate(L"9" + Repeated(L"^9", 200)).code, Code::NotFinite);
  EXPECT_EQ(Evaluate(L"2" + Repeated(L"^-1", 601)).value, 0.5);
}

TEST_F(ExpressionBounds, TheMostOperandsFitIntoWhatIsComputed) {
  EXPECT_EQ(Evaluate(Repeated(L"1+", longestExpression / 2 - 1) + L"1").value,
            longestExpression / 2);
  EXPECT_EQ(Evaluate(L"min(" + Repeated(L"1,", longestExpression / 2 - 4) + L"1)").value, 1);
}

TEST_F(ExpressionBounds, LongNumbersAreNumbers) {
  EXPECT_EQ(Evaluate(L"0." + std::wstring(500, L'3')).code, Code::Evaluated);
  EXPECT_EQ(Evaluate(std::wstring(500, L'9')).code, Code::NotFinite);
  EXPECT_EQ(Evaluate(std::wstring(500, L'0') + L"1").value, 1);
}

TEST_F(ExpressionBounds, AFaultLeavesTheNextEvaluationAlone) {
  for (const wchar_t* faulty : {L"1 + (2 and 3)", L"max(1, true)", L"1/0", L"(", L"true + 1"}) {
    EXPECT_NE(Evaluate(faulty).code, Code::Evaluated) << faulty;
    EXPECT_EQ(Evaluate(L"1 + 2 * 3").value, 7) << faulty;
  }
}

}  // namespace
}  // namespace qv
