#include "apps/commandline/CommandLine.h"

#include <gmock/gmock.h>

#include <CLI/CLI.hpp>

namespace commandline {
namespace {

using testing::ElementsAre;

std::string Line(std::string_view reason) { return ErrorLine("program", reason); }

std::string NoneOfThem(const std::string& value, const std::vector<std::string>& choices) {
  return value + " isn't " + Joined(choices, " or ");
}

/// A program with an option of each kind.
class CommandLineTest : public testing::Test {
 protected:
  CommandLineTest() {
    app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    AddHelp(app);
    AddVersion(app, "1.2");
    AddPage(
        app, "--page", [] { return std::string("a page"); }, "Print a page");
    Check(AddText(app, "--text", text, "A text"),
          [](const std::string& value) { return NotUtf8("text", value); });
    Restrict(AddText(app, "--one", one, "One of them"), {"a", "b"}, NoneOfThem);
    AddTexts(app, "TEXT", texts, "Texts")->multi_option_policy(CLI::MultiOptionPolicy::Throw);
    app.callback([this] { ++callbacks; });
  }

  std::optional<EarlyEnd> Parse(const std::vector<std::string>& words) {
    std::vector<const char*> arguments = {"called/as/this"};
    for (const std::string& word : words) {
      arguments.push_back(word.c_str());
    }
    return Read(app, static_cast<int>(arguments.size()), arguments.data(), Line);
  }

  /// The end of a call that isn't carried out.
  EarlyEnd Ended(const std::vector<std::string>& words) {
    const auto end = Parse(words);
    EXPECT_TRUE(end) << "the call was taken";
    EXPECT_EQ(callbacks, 0);
    return end.value_or(EarlyEnd());
  }

  void ExpectError(const std::vector<std::string>& words, const std::string& reason) {
    const EarlyEnd end = Ended(words);
    EXPECT_EQ(end.status, badCall);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "program: " + reason + "\nTry program --help.\n");
  }

  CLI::App app{"Does nothing.", "program"};
  std::string text;
  std::string one;
  std::vector<std::string> texts;
  int callbacks = 0;
};

TEST_F(CommandLineTest, AGoodCallIsTakenOver) {
  EXPECT_FALSE(Parse({"x", "--text", "t", "--one=b", "y"}));
  EXPECT_EQ(callbacks, 1);
  EXPECT_EQ(text, "t");
  EXPECT_EQ(one, "b");
  EXPECT_THAT(texts, ElementsAre("x", "y"));
}

TEST_F(CommandLineTest, WhatLooksLikeAListIsOneText) {
  EXPECT_FALSE(Parse({"[a,b]", "--text", "[c,d]", "[]", "\x1f[e]", "["}));
  EXPECT_EQ(text, "[c,d]");
  EXPECT_THAT(texts, ElementsAre("[a,b]", "[]", "\x1f[e]", "["));
}

TEST_F(CommandLineTest, HelpVersionAndPagesEndTheProgram) {
  EXPECT_THAT(Ended({"--help", "x"}).output, testing::HasSubstr("--one a|b"));
  EXPECT_EQ(Ended({"--version"}).output, "program 1.2\n");
  const EarlyEnd page = Ended({"--page", "--version"});
  EXPECT_EQ(page.output, "program 1.2\n") << "the first that was described counts";
  EXPECT_EQ(page.status, 0);
  EXPECT_EQ(page.error, "");
  EXPECT_EQ(Ended({"--page"}).output, "a page");
}

TEST_F(CommandLineTest, AWrongCallGivesItsReason) {
  ExpectError({"--colour"}, "The following argument was not expected: --colour");
  ExpectError({"--one", "c"}, "--one: c isn't a or b");
  ExpectError({"--one", "a", "--one", ""}, "--one:  isn't a or b");
  ExpectError({"--text", "\xff"}, "--text: This text is not UTF-8: \xff");
}

TEST_F(CommandLineTest, AReasonQuotesTheArgumentAsItWasWritten) {
  ExpectError({"--one", "[a]"}, "--one: [a] isn't a or b");
  ExpectError({"--text", "[\xff"}, "--text: This text is not UTF-8: [\xff");
  for (const std::string argument : {"[a,b]", "\x1f", "\x1f[", "a[\x1f"}) {
    CLI::App none("Takes nothing.", "program");
    const char* const call[] = {"program", argument.c_str()};
    const auto end = Read(none, 2, call, Line);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->error, "program: The following argument was not expected: " + argument +
                              "\nTry program --help.\n");
  }
}

TEST_F(CommandLineTest, ACallWithoutEvenItsNameIsRead) {
  EXPECT_FALSE(Read(app, 0, nullptr, Line));
  EXPECT_EQ(callbacks, 1);
}

TEST(CommandLineWords, AreJoinedAndListed) {
  EXPECT_EQ(Joined({}, ", "), "");
  EXPECT_EQ(Joined({"a", "b", "c"}, ", "), "a, b, c");
  EXPECT_THAT(LanguageCodes(), ElementsAre("es", "en"));
  EXPECT_EQ(NotUtf8("name", "\xC3\xB1"), "");
}

}  // namespace
}  // namespace commandline
