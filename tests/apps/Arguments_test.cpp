#include "apps/configurator/Arguments.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/TemporaryDirectory.h"

namespace configurator {
namespace {

using commandline::EarlyEnd;
using testing::HasSubstr;

std::variant<Arguments, EarlyEnd> Read(const std::vector<std::string>& words) {
  std::vector<const char*> arguments = {"configurator"};
  for (const std::string& word : words) {
    arguments.push_back(word.c_str());
  }
  return ReadArguments(static_cast<int>(arguments.size()), arguments.data());
}

Arguments Good(const std::vector<std::string>& words) {
  const auto read = Read(words);
  const auto* end = std::get_if<EarlyEnd>(&read);
  EXPECT_FALSE(end) << end->error;
  return end ? Arguments() : std::get<Arguments>(read);
}

EarlyEnd Ended(const std::vector<std::string>& words) {
  const auto read = Read(words);
  const auto* end = std::get_if<EarlyEnd>(&read);
  EXPECT_TRUE(end) << "the call was taken";
  return end ? *end : EarlyEnd();
}

TEST(Arguments, AnInstallationAloneShowsTheMainWindowAsTheSystemDoes) {
  const Arguments read = Good({"--installation", "."});
  EXPECT_EQ(read.installation, ".");
  EXPECT_EQ(read.show, ShownWindow::Main);
  EXPECT_EQ(read.language, std::nullopt);
  EXPECT_EQ(read.theme, std::nullopt);
  EXPECT_EQ(read.size, std::nullopt);
  EXPECT_EQ(read.picture, std::nullopt);
  EXPECT_FALSE(read.list);
  EXPECT_FALSE(read.EndsByItself());
}

TEST(Arguments, EachOptionIsTakenOver) {
  const Arguments read =
      Good({"--installation", ".", "--language", "es", "--show", "discriminators", "--picture",
            "a.png", "--theme", "dark", "--size", "640x480", "--list"});
  EXPECT_EQ(read.language, qv::Language::Spanish);
  EXPECT_EQ(read.show, ShownWindow::Discriminators);
  EXPECT_EQ(read.picture, "a.png");
  EXPECT_EQ(read.theme, Theme::Dark);
  EXPECT_EQ(read.size, (WindowSize{640, 480}));
  EXPECT_TRUE(read.list);
  EXPECT_TRUE(read.EndsByItself());
}

TEST(Arguments, TheOtherChoicesAreTakenOver) {
  const Arguments read =
      Good({"--installation", ".", "--language", "en", "--show", "main", "--theme", "light"});
  EXPECT_EQ(read.language, qv::Language::English);
  EXPECT_EQ(read.show, ShownWindow::Main);
  EXPECT_EQ(read.theme, Theme::Light);
}

TEST(Arguments, TheLastOfARepeatedOptionCounts) {
  const qv::TemporaryDirectory directory;
  const std::string installation = directory.Path().string();
  const Arguments read =
      Good({"--installation", ".",          "--language", "es",     "--show",         "main",
            "--picture",      "a.png",      "--theme",    "dark",   "--size",         "640x480",
            "--list",         "--language", "en",         "--show", "discriminators", "--picture",
            "b.png",          "--theme",    "light",      "--size", "800x600",        "--list",
            "--installation", installation});
  EXPECT_EQ(read.installation, installation);
  EXPECT_EQ(read.language, qv::Language::English);
  EXPECT_EQ(read.show, ShownWindow::Discriminators);
  EXPECT_EQ(read.picture, "b.png");
  EXPECT_EQ(read.theme, Theme::Light);
  EXPECT_EQ(read.size, (WindowSize{800, 600}));
  EXPECT_TRUE(read.list);
}

/// Calls from a directory of its own, with the environment as it was afterwards.
class Surrounded : public testing::Test {
 protected:
  Surrounded() {
    std::filesystem::current_path(directory.Path());
    unsetenv("QVDISC_INSTALLATION");
  }
  ~Surrounded() override {
    std::filesystem::current_path(before);
    unsetenv("QVDISC_INSTALLATION");
  }

  const std::filesystem::path before = std::filesystem::current_path();
  const qv::TemporaryDirectory directory;
};

TEST_F(Surrounded, NoInstallationNeedBeNamed) {
  EXPECT_EQ(Good({}).installation, "");
  EXPECT_FALSE(Good({}).settings);
  EXPECT_EQ(Good({"--settings", "a.ini"}).settings, "a.ini");
}

TEST_F(Surrounded, TheInstallationIsNamedByTheCallOrTheEnvironmentOrWhereOneIs) {
  std::filesystem::create_directory("called");
  std::filesystem::create_directory("[set,b]");
  std::ofstream("configuration.xml") << "<configuration/>";
  EXPECT_EQ(Good({}).installation, ".");
  setenv("QVDISC_INSTALLATION", "", 1);
  EXPECT_EQ(Good({}).installation, ".");
  setenv("QVDISC_INSTALLATION", "[set,b]", 1);
  EXPECT_EQ(Good({}).installation, "[set,b]");
  EXPECT_EQ(Good({"--installation", "called"}).installation, "called");
}

TEST_F(Surrounded, AnEnvironmentThatNamesNoDirectoryIsRefusedByItsName) {
  setenv("QVDISC_INSTALLATION", "nowhere", 1);
  const EarlyEnd end = Ended({});
  EXPECT_EQ(end.status, 2);
  EXPECT_THAT(end.error, HasSubstr("QVDISC_INSTALLATION: Directory does not exist: nowhere"));
  EXPECT_EQ(Good({"--installation", "."}).installation, ".");
}

TEST(Arguments, EveryWindowOfTheTableCanBeShown) {
  for (const WindowName& known : windowNames) {
    EXPECT_EQ(Good({"--installation", ".", "--show", known.name}).show, known.window) << known.name;
  }
}

TEST(Arguments, APictureOrAListAloneEndsByItself) {
  EXPECT_TRUE(Good({"--installation", ".", "--picture", "a.png"}).EndsByItself());
  EXPECT_TRUE(Good({"--installation", ".", "--show", "discriminators", "--list"}).EndsByItself());
}

TEST(Arguments, HelpNamesEveryOptionWindowAndLanguage) {
  const EarlyEnd end = Ended({"--help"});
  EXPECT_EQ(end.status, 0);
  EXPECT_EQ(end.error, "");
  for (const char* word :
       {"--installation", "--language", "es|en", "--show", "main", "discriminators", "--picture",
        "--theme", "light|dark", "--size", "WxH", "--list", "--settings", "QVDISC_INSTALLATION",
        "--help", "--version", "Examples:", "Exit status:"}) {
    EXPECT_THAT(end.output, HasSubstr(word));
  }
}

TEST(Arguments, TheLinesOfTheHelpFitATerminal) {
  std::istringstream help(Ended({"--help"}).output);
  int lines = 0;
  for (std::string line; std::getline(help, line); ++lines) {
    EXPECT_LE(line.size(), 100U) << line;
  }
  EXPECT_GT(lines, 10);
}

TEST(Arguments, TheVersionIsThatOfTheProject) {
  const EarlyEnd end = Ended({"--version"});
  EXPECT_EQ(end.status, 0);
  EXPECT_EQ(end.output, "configurator " CONFIGURATOR_VERSION "\n");
  EXPECT_EQ(end.error, "");
}

struct BadCall {
  const char* name;
  std::vector<std::string> words;
  const char* reason;
};

void PrintTo(const BadCall& call, std::ostream* out) { *out << call.name; }

class BadCalls : public testing::TestWithParam<BadCall> {};

TEST_P(BadCalls, GiveTheReasonAndStatus2) {
  const EarlyEnd end = Ended(GetParam().words);
  EXPECT_EQ(end.status, 2);
  EXPECT_EQ(end.output, "");
  EXPECT_THAT(end.error, HasSubstr(GetParam().reason));
  EXPECT_THAT(end.error, testing::StartsWith("configurator: "));
  EXPECT_THAT(end.error, HasSubstr("--help"));
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, BadCalls,
    testing::Values(
        BadCall{"MissingDirectory", {"--installation", "nowhere"}, "does not exist: nowhere"},
        BadCall{"EmptyDirectory", {"--installation", ""}, "does not exist"},
        BadCall{"DirectoryWithoutValue", {"--installation"}, "--installation: 1 required DIR"},
        BadCall{"UnknownLanguage",
                {"--installation", ".", "--language", "fr"},
                "fr is none of: es, en"},
        BadCall{"UnknownWindow",
                {"--installation", ".", "--show", "dial"},
                "dial is none of: main, discriminators, fast-selection, wizard, start"},
        BadCall{"UnknownLanguageBeforeAGoodOne",
                {"--installation", ".", "--language", "fr", "--language", "es"},
                "fr is none of: es, en"},
        BadCall{"UnknownTheme",
                {"--installation", ".", "--theme", "blue"},
                "blue is none of: light, dark"},
        BadCall{"EmptyPicture", {"--installation", ".", "--picture", ""}, "is empty"},
        BadCall{"ListWithoutWindow", {"--installation", ".", "--list"}, "--list requires --show"},
        BadCall{"ListOfTheMainWindow",
                {"--installation", ".", "--show", "main", "--list"},
                "main lists no rows"},
        BadCall{"UnknownOption", {"--installation", ".", "--colour"}, "not expected: --colour"},
        BadCall{"StrayWord", {"--installation", ".", "stray"}, "not expected: stray"}),
    [](const auto& call) { return std::string(call.param.name); });

TEST(Arguments, WhatLooksLikeAListIsOneName) {
  const qv::TemporaryDirectory directory;
  const std::string list = (directory.Path() / "[a,b]").string();
  std::filesystem::create_directory(list);
  EXPECT_EQ(Good({"--installation", list, "--picture", "[a,b]"}).picture, "[a,b]");
  EXPECT_EQ(Good({"--installation", list}).installation, list);
  EXPECT_THAT(Ended({"--installation", "[a,b]"}).error, HasSubstr("does not exist: [a,b]\n"));
  EXPECT_THAT(Ended({"--installation", ".", "--theme", "[light]"}).error,
              HasSubstr("--theme: [light] is none of: light, dark\n"));
}

TEST(Arguments, AFileIsNoInstallation) {
  const qv::TemporaryDirectory directory;
  const auto file = directory.Path() / "file";
  std::ofstream(file) << "x";
  const EarlyEnd end = Ended({"--installation", file.string()});
  EXPECT_EQ(end.status, 2);
  EXPECT_THAT(end.error, HasSubstr("is actually a file"));
}

TEST(Arguments, ADirectoryWhoseNameIsNotUtf8IsRefused) {
  const qv::TemporaryDirectory directory;
  const auto odd = directory.Path() / "caf\xE9";
  if (!std::filesystem::create_directory(odd)) {
    // Some file systems hold names in Unicode only, and then no directory can be called so.
    GTEST_SKIP() << "the file system doesn't take such names";
  }
  const EarlyEnd end = Ended({"--installation", odd.string()});
  EXPECT_EQ(end.status, 2);
  EXPECT_THAT(end.error, HasSubstr("not UTF-8"));
}

TEST(Arguments, OnlyTwoNumbersInRangeAreASize) {
  for (const char* size : {"", "x", "3", "3x", "x3", "0x3", "3x0", "-3x3", "3x-3", "3x3x3", "3X3",
                           " 3x3", "3x3 ", "16385x3", "3x16385", "99999999999x3"}) {
    const EarlyEnd end = Ended({"--installation", ".", "--size", size});
    EXPECT_EQ(end.status, 2) << size;
    EXPECT_THAT(end.error, HasSubstr("--size: ")) << size;
  }
  EXPECT_EQ(Good({"--installation", ".", "--size", "1x16384"}).size, (WindowSize{1, 16384}));
}

}  // namespace
}  // namespace configurator
