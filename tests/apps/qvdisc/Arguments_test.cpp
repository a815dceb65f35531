#include "apps/qvdisc/Arguments.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "tests/apps/qvdisc/CommandLine.h"
#include "tests/support/TemporaryDirectory.h"

namespace qvdisc {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(Arguments, AWrongCallGivesItsReasonAndStatus2) {
  const std::string here = "--installation=.";
  const std::vector<std::vector<std::string>> calls = {
      {},
      {"frobnicate"},
      {"list"},
      {"list", "--installation", "nowhere"},
      {"list", "--installation", "/dev/null"},
      {"list", here, "stem"},
      {"list", here, "--name", "x"},
      {"list", here, "--nonsense"},
      {"list", here, "--language", "de"},
      {"list", here, "--language", "\xff"},
      {"list", "--installation", "\xff\xfe"},
      {"list", here, "--yes"},
      {"show", here},
      {"show", here, "a", "b"},
      {"show", here, "\xc3"},
      {"copy", here},
      {"remove", here},
      {"remove", here, "a", "--yes", "--no"},
      {"modify", here},
      {"modify", here, "a", "--type", "slots"},
      {"modify", here, "a", "--zero-outside", "maybe"},
      {"modify", here, "a", "--description", "bell\a"},
      {"add", here},
      {"add", here, "--name", std::string(81, 'x')},
      {"add", here, "--name", "\x01"},
      {"add", here, "--name"},
  };
  for (const auto& call : calls) {
    const Ended ended = Call(call);
    EXPECT_EQ(ended.status, 2) << testing::PrintToString(call);
    EXPECT_EQ(ended.output, "") << testing::PrintToString(call);
    EXPECT_THAT(ended.errors, StartsWith("qvdisc: ")) << testing::PrintToString(call);
  }
}

TEST(Arguments, ANameMayHave80CharactersOfAnyLength) {
  const char* const call[] = {"qvdisc", "add", "--installation", ".", "--name"};
  std::vector<const char*> words(std::begin(call), std::end(call));
  std::string name;
  for (int i = 0; i < 80; ++i) {
    name += "\xC3\xB1";
  }
  words.push_back(name.c_str());
  const auto read = ReadArguments(static_cast<int>(words.size()), words.data());
  ASSERT_TRUE(std::holds_alternative<Arguments>(read));
  EXPECT_EQ(std::get<Arguments>(read).changes.name, std::wstring(80, L'\u00f1'));
}

TEST(Arguments, FieldsThatAreNotGivenStayAsTheyAre) {
  const char* const call[] = {"qvdisc", "modify", "--installation", ".", "s", "--description", ""};
  const auto read = ReadArguments(static_cast<int>(std::size(call)), call);
  ASSERT_TRUE(std::holds_alternative<Arguments>(read));
  FieldChanges expected;
  expected.description = L"";
  EXPECT_EQ(std::get<Arguments>(read).changes, expected);
  EXPECT_EQ(std::get<Arguments>(read).stems, std::vector<std::wstring>{L"s"});
}

TEST(Arguments, AnEmptyValueSwallowsNoOtherArgument) {
  const char* const call[] = {"qvdisc", "modify", "--installation=.", "--description=", "s"};
  const auto read = ReadArguments(static_cast<int>(std::size(call)), call);
  ASSERT_TRUE(std::holds_alternative<Arguments>(read));
  EXPECT_EQ(std::get<Arguments>(read).changes.description, L"");
  EXPECT_EQ(std::get<Arguments>(read).stems, std::vector<std::wstring>{L"s"});
  EXPECT_EQ(Call({"add", "--installation=.", "--name="}).status, 1) << "the rules refuse it";
}

/// Calls from a directory of its own, with the environment as it was afterwards.
class Surrounded : public testing::Test {
 protected:
  Surrounded() { std::filesystem::current_path(directory.Path()); }
  ~Surrounded() override {
    std::filesystem::current_path(before);
    unsetenv("QVDISC_INSTALLATION");
  }

  static std::wstring InstallationOf(std::initializer_list<const char*> call) {
    const std::vector<const char*> words(call);
    const auto read = ReadArguments(static_cast<int>(words.size()), words.data());
    return std::holds_alternative<Arguments>(read) ? std::get<Arguments>(read).installation
                                                   : L"refused";
  }

  const std::filesystem::path before = std::filesystem::current_path();
  const qv::TemporaryDirectory directory;
};

TEST_F(Surrounded, TheInstallationIsNamedByTheCallOrTheEnvironment) {
  std::filesystem::create_directory("called");
  std::filesystem::create_directory("set");
  EXPECT_EQ(InstallationOf({"qvdisc", "list"}), L"refused");
  setenv("QVDISC_INSTALLATION", "set", 1);
  EXPECT_EQ(InstallationOf({"qvdisc", "list"}), L"set");
  EXPECT_EQ(InstallationOf({"qvdisc", "list", "--installation", "called"}), L"called");
  setenv("QVDISC_INSTALLATION", "nowhere", 1);
  EXPECT_EQ(InstallationOf({"qvdisc", "list"}), L"refused");
}

TEST_F(Surrounded, TheWorkingDirectoryIsOneIfItHasAConfiguration) {
  std::ofstream("configuration.xml") << "<main/>";
  EXPECT_EQ(InstallationOf({"qvdisc", "list"}), L".");
  std::filesystem::remove("configuration.xml");
  const Ended ended = Call({"list"});
  EXPECT_EQ(ended.status, 2);
  EXPECT_THAT(ended.errors, HasSubstr("QVDISC_INSTALLATION"));
}

}  // namespace
}  // namespace qvdisc
