#include "tests/support/ScriptedPrompter.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <optional>

namespace qv {
namespace {

TEST(ScriptedPrompter, FollowedScriptAnswersAndPasses) {
  ScriptedPrompter prompter{{Text::TypeColourTaken, true}, {Text::NoHourType}};
  prompter.ExpectAsk(Text::DayNotCoveredQuestion, false);
  prompter.ExpectShow(Text::SlotsOverlap);
  prompter.ExpectText(L"free words");
  EXPECT_TRUE(prompter.Ask(Text::TypeColourTaken));
  prompter.Show(Text::NoHourType);
  EXPECT_FALSE(prompter.Ask(Text::DayNotCoveredQuestion));
  prompter.Show(Text::SlotsOverlap);
  prompter.ShowText(L"free words");
}

TEST(ScriptedPrompter, HearsEverythingInOrderWithItsArguments) {
  ScriptedPrompter prompter{{Text::VariablesAtMost}, {Text::TypeColourTaken, true}};
  prompter.ExpectText(L"free words");
  prompter.Show(Text::VariablesAtMost, {5, L"five"});
  prompter.Ask(Text::TypeColourTaken);
  prompter.ShowText(L"free words");
  const std::vector<ScriptedPrompter::Said> expected = {
      {Text::VariablesAtMost, false, {L"5", L"five"}, L""},
      {Text::TypeColourTaken, true, {}, L""},
      {std::nullopt, false, {}, L"free words"}};
  EXPECT_EQ(prompter.Heard(), expected);
}

TEST(ScriptedPrompter, UnexpectedMessageFails) {
  ScriptedPrompter prompter;
  EXPECT_NONFATAL_FAILURE(prompter.Show(Text::NoHourType), "beyond the script: the message 480");
  EXPECT_EQ(prompter.Heard().size(), 1U);
}

TEST(ScriptedPrompter, UnexpectedQuestionFailsAndIsAnsweredNo) {
  ScriptedPrompter prompter;
  bool answer = true;
  EXPECT_NONFATAL_FAILURE(answer = prompter.Ask(Text::TypeColourTaken), "the question 465");
  EXPECT_FALSE(answer);
}

TEST(ScriptedPrompter, OtherNumberFails) {
  ScriptedPrompter prompter{{Text::SlotsOverlap}};
  EXPECT_NONFATAL_FAILURE(prompter.Show(Text::NoHourType),
                          "expected the message 470, heard the message 480");
}

TEST(ScriptedPrompter, MessageInPlaceOfAQuestionFails) {
  ScriptedPrompter prompter{{Text::TypeColourTaken, true}};
  EXPECT_NONFATAL_FAILURE(prompter.Show(Text::TypeColourTaken),
                          "expected the question 465, heard the message 465");
}

TEST(ScriptedPrompter, QuestionInPlaceOfAMessageFailsAndIsAnsweredNo) {
  ScriptedPrompter prompter{{Text::TypeColourTaken}};
  bool answer = true;
  EXPECT_NONFATAL_FAILURE(answer = prompter.Ask(Text::TypeColourTaken),
                          "expected the message 465, heard the question 465");
  EXPECT_FALSE(answer);
}

TEST(ScriptedPrompter, OtherWordsFail) {
  ScriptedPrompter prompter;
  prompter.ExpectText(L"año");
  EXPECT_NONFATAL_FAILURE(prompter.ShowText(L"day"),
                          "expected the text \"año\", heard the text \"day\"");
}

TEST(ScriptedPrompter, RestOfTheScriptFailsAtTheEnd) {
  auto prompter = std::make_optional<ScriptedPrompter>();
  prompter->ExpectShow(Text::SlotsOverlap);
  EXPECT_NONFATAL_FAILURE(prompter.reset(), "never said: the message 470");
}

}  // namespace
}  // namespace qv
