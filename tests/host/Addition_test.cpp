#include "host/Addition.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "tests/support/FakeHost.h"
#include "tools/SystemWords.h"

namespace qv {
namespace {

/// Lines of one argument each: "1", "2", ...
Addition Lines(int count) {
  Addition lines;
  for (int i = 1; i <= count; ++i) {
    lines.push_back({Text::ItemToRemove, {std::to_wstring(i)}});
  }
  return lines;
}

TEST(Addition, FiveLinesAreToldWhole) {
  EXPECT_EQ(Shortened({}), Addition());
  EXPECT_EQ(Shortened(Lines(5)), Lines(5));
}

TEST(Addition, OfMoreLinesTheFirstFiveAreToldAndHowManyFollow) {
  for (const int more : {1, 20}) {
    Addition expected = Lines(5);
    expected.push_back({Text::AndMore, {std::to_wstring(more)}});
    EXPECT_EQ(Shortened(Lines(5 + more)), expected);
  }
}

TEST(Addition, AFileIsToldWithTheReasonIfThereIsOne) {
  const std::error_code full(ENOSPC, std::generic_category());
  EXPECT_EQ(AboutFile(L"/a", full),
            (Addition{{Text::FailedFile, {L"/a"}}, {Text::FailureReason, {SystemWords(full)}}}));
  EXPECT_EQ(AboutFile(L"/a", {}), (Addition{{Text::FailedFile, {L"/a"}}}));
}

/// Texts with a place for an argument.
class Forms : public NumberTexts {
 public:
  QVWideString& operator()(unsigned id, QVWideString& text) const override {
    return text.Assign(std::to_wstring(id) + L": %s %d");
  }
};

TEST(Addition, WhatCanNotBeReadHasAReasonOrAPlaceOrIsBadAsAWhole) {
  const auto denied = std::make_error_code(std::errc::permission_denied);
  EXPECT_EQ(WhyUnreadable(denied, {"", 3, 4}),
            (Addition{{Text::FailureReason, {SystemWords(denied)}}}));
  EXPECT_EQ(WhyUnreadable({}, {"", 3, 4}),
            (Addition{{Text::DiscriminatorDamagedAt, {L"3", L"4"}}}));
  EXPECT_EQ(WhyUnreadable({}, {"", 0, 0}), Addition{{Text::DiscriminatorDamaged}});
}

TEST(Addition, LinesAreWordedOneBelowTheOther) {
  Forms texts;
  texts.additions = {Text::ItemToRemove, Text::AndMore};
  EXPECT_EQ(InWords({{Text::ItemToRemove, {L"100 %s", L"b"}}, {Text::AndMore, {L"3"}}}, texts),
            L"60030: 100 %s b\n60031: 3 %d");
}

TEST(Addition, ALineWhoseTextTheLanguageLacksIsLeftOut) {
  NumberTexts texts;
  EXPECT_EQ(InWords(Lines(2), texts), L"");
  texts.additions = {Text::AndMore};
  EXPECT_EQ(InWords({{Text::ItemToRemove, {L"a"}}, {Text::AndMore}}, texts), L"[60031]");
}

}  // namespace
}  // namespace qv
