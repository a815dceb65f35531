#include "host/QVLoadString.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// A host that gives texts and doesn't say which it has.
class PlainTexts : public QVLoadString {
 public:
  QVWideString& operator()(unsigned id, QVWideString& text) const override {
    return text.Assign(L"text " + std::to_wstring(id));
  }
};

TEST(QVLoadString, HostThatDoesNotAnswerHasNoAdditions) {
  const PlainTexts texts;
  for (const Text text : {Text::ReadingDiscriminators, Text::MessageYes, Text::Name}) {
    EXPECT_FALSE(texts.Has(Number(text))) << Number(text);
  }
}

TEST(QVLoadString, LoadGivesTheTextOfTheNumber) {
  const PlainTexts texts;
  EXPECT_EQ(texts.Load(Text::Name), L"text 355");
}

TEST(QVLoadString, CallReplacesTheTextAndReturnsIt) {
  const PlainTexts texts;
  QVWideString text = L"before";
  EXPECT_EQ(&texts(Number(Text::Add), text), &text);
  EXPECT_EQ(text, L"text 415");
}

}  // namespace
