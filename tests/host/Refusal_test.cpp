#include "host/Refusal.h"

#include <gtest/gtest.h>

#include "host/SaveEnd.h"
#include "tests/support/ScriptedPrompter.h"

namespace qv {
namespace {

TEST(Refusal, IsToldByItsTextWithItsArguments) {
  ScriptedPrompter prompter({{Text::VariablesAtMost}});
  Tell(prompter, {.text = Text::VariablesAtMost, .arguments = {L"12"}});
  ASSERT_EQ(prompter.Heard().size(), 1U);
  EXPECT_EQ(prompter.Heard()[0].arguments, std::vector<std::wstring>{L"12"});
}

TEST(Refusal, WithoutATextIsToldByItsWords) {
  ScriptedPrompter prompter;
  prompter.ExpectText(L"division by zero");
  Tell(prompter, {.text = {}, .words = L"division by zero"});
}

TEST(Refusal, IsToldWithWhatIsAddedToIt) {
  const Addition addition = {{Text::FailedFile, {L"/a"}}};
  ScriptedPrompter prompter({{Text::DiscriminatorNotSaved}});
  Tell(prompter, Refused(Text::DiscriminatorNotSaved, addition));
  ASSERT_EQ(prompter.Heard().size(), 1U);
  EXPECT_EQ(prompter.Heard()[0].addition, addition);
}

TEST(SaveEnd, IsDoneIfItWasSavedOrThereWasNothingToSave) {
  EXPECT_TRUE((SaveEnd{SaveOutcome::Saved, {}}).IsDone());
  EXPECT_TRUE((SaveEnd{SaveOutcome::Unchanged, {}}).IsDone());
  EXPECT_FALSE((SaveEnd{SaveOutcome::Refused, {}}).IsDone());
  EXPECT_FALSE((SaveEnd{SaveOutcome::NotWritten, {}}).IsDone());
  EXPECT_EQ(SavedOrUnchanged(true).outcome, SaveOutcome::Saved);
  EXPECT_EQ(SavedOrUnchanged(false).outcome, SaveOutcome::Unchanged);
}

}  // namespace
}  // namespace qv
