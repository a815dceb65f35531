#include "conditions/ConditionWords.h"

#include <gmock/gmock.h>

#include "tests/support/FakeHost.h"

namespace qv {
namespace {

struct WordsCase {
  ConditionEvaluation evaluation;
  const wchar_t* addition;
  const wchar_t* result;
};

const WordsCase cases[] = {
    {{ConditionState::Missing}, L" ([32449])", L"[32449]"},
    {{ConditionState::Invalid}, L" ([32446])", L"[32446]"},
    {{ConditionState::Invalid, L"", ExpressionFault{{0, 1}, L"why"}}, L" ([32446])", L"why"},
    {{ConditionState::NotLogical}, L" ([32485])", L"[32485]"},
    {{ConditionState::UsesModule}, L" ([37540])", L"[37540]"},
    {{ConditionState::Failed, L"nine"}, L" (nine)", L"nine"},
    {{ConditionState::Failed, L""}, L" ()", L""},
    {{ConditionState::NoValue}, L"", L"[60087]"},
    {{ConditionState::NoValue, L"", ExpressionFault{{0, 1}, L"M.V"}}, L"", L"M.V"},
    {{ConditionState::True}, L"", L"[60085]"},
    {{ConditionState::False}, L"", L"[60086]"},
};

TEST(ConditionWords, TellWhyAnExpressionIsNoCondition) {
  NumberTexts texts;
  texts.additions = {Text::ResultTrue, Text::ResultFalse, Text::ResultNoValue};
  for (const auto& [evaluation, addition, result] : cases) {
    EXPECT_EQ(CaptionAddition(evaluation, texts), addition);
    EXPECT_EQ(PresentResult(evaluation, texts), result);
  }
}

TEST(ConditionWords, OnlyAResultIsToldInASentence) {
  NumberTexts texts;
  texts.additions = {Text::ResultTrue, Text::PresentResult, Text::ResultNoValue};
  EXPECT_EQ(PresentResultTold({ConditionState::True}, texts), L"[60088]");
  EXPECT_EQ(PresentResultTold({ConditionState::NoValue}, texts), L"[60087]");
  EXPECT_EQ(PresentResultTold({ConditionState::Failed, L"nine"}, texts), L"nine");
}

TEST(ConditionWords, AreMuteWhereTheLanguageLacksThem) {
  const NumberTexts texts;
  EXPECT_EQ(PresentResultTold({ConditionState::True}, texts), L"");
  EXPECT_EQ(PresentResultTold({ConditionState::NoValue}, texts), L"");
  EXPECT_EQ(PresentResultTold({ConditionState::Invalid}, texts), L"[32446]");
}

}  // namespace
}  // namespace qv
