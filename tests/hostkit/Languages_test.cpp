#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "hostkit/LanguageFile.h"
#include "tests/hostkit/TextHeader.h"
#include "tests/support/TemporaryDirectory.h"
#include "tools/Utf8.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

/// The lines of a language file that aren't empty and no comment.
std::vector<std::string> EntryLines(const std::string& content) {
  std::istringstream stream(content);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) {
    if (!line.empty() && line.front() != '#') {
      lines.push_back(line);
    }
  }
  return lines;
}

/// A language by the name of its file.
class Language : public testing::TestWithParam<const char*> {
 protected:
  Language() : path(ProjectFile("languages") / (std::string(GetParam()) + ".txt")) {
    EXPECT_TRUE(language.Load(FromUtf8(path.string())));
  }

  std::string TextOf(unsigned number) const {
    QVWideString text;
    return ToUtf8(language(number, text).ToView()).value_or("");
  }

  fs::path path;
  LanguageFile language;
};

TEST_P(Language, HasEveryText) {
  for (const auto& [number, enumerator] : ReadEnum()) {
    EXPECT_TRUE(language.Has(number)) << number << " " << enumerator.name;
  }
}

TEST_P(Language, HasTextsThatAreNotEmpty) {
  for (const auto& [number, enumerator] : ReadEnum()) {
    EXPECT_NE(TextOf(number).find_first_not_of(" \t\n"), std::string::npos)
        << number << " " << enumerator.name;
  }
}

TEST_P(Language, HasThePlaceholdersThatTheHeaderNames) {
  for (const auto& [number, enumerator] : ReadEnum()) {
    EXPECT_EQ(Placeholders(TextOf(number)), Placeholders(enumerator.comment))
        << number << " " << enumerator.name;
  }
}

TEST_P(Language, HasEachNumberOnceInOrderAndNoOther) {
  const auto texts = ReadEnum();
  unsigned before = 0;
  for (const std::string& line : EntryLines(FileBytes(path))) {
    unsigned number = 0;
    const auto result = std::from_chars(line.data(), line.data() + line.size(), number);
    ASSERT_EQ(result.ec, std::errc()) << line;
    EXPECT_TRUE(texts.contains(number)) << "not in the enumeration: " << line;
    EXPECT_LT(before, number) << "twice, or out of order: " << line;
    before = number;
  }
}

TEST_P(Language, HasNoBlanksAroundATextAndNoUnknownEscape) {
  static const std::regex entry(R"(\d+ [^\s\\]([^\\]|\\[nt\\])*)");
  for (const std::string& line : EntryLines(FileBytes(path))) {
    EXPECT_TRUE(std::regex_match(line, entry) && line.back() != ' ') << line;
  }
}

INSTANTIATE_TEST_SUITE_P(Files, Language, testing::Values("es", "en"),
                         [](const auto& test) { return std::string(test.param); });

TEST(Languages, AreAllTested) {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(ProjectFile("languages"))) {
    if (entry.path().extension() == ".txt") {
      names.insert(entry.path().stem().string());
    }
  }
  EXPECT_EQ(names, (std::set<std::string>{"en", "es"}));
}

/// Whether a source asks for a text by a bare number, in place of an enumerator.
bool CallsWithBareNumber(const std::string& source) {
  static const std::string blanks = " \t\r\n";
  static const std::string name = "oadString";
  for (std::size_t at = source.find(name); at != std::string::npos; at = source.find(name, at)) {
    at += name.size();
    const std::size_t parenthesis = source.find_first_not_of(blanks, at);
    if (parenthesis == std::string::npos || source[parenthesis] != '(') {
      continue;
    }
    const std::size_t argument = source.find_first_not_of(blanks, parenthesis + 1);
    if (argument != std::string::npos && source[argument] >= '0' && source[argument] <= '9') {
      return true;
    }
  }
  return false;
}

TEST(BareNumbers, AreRecognised) {
  EXPECT_TRUE(CallsWithBareNumber("m_host.loadString(355, text)"));
  EXPECT_TRUE(CallsWithBareNumber("QVLoadString (\n    355, text)"));
  EXPECT_TRUE(CallsWithBareNumber("loadString(Number(Text::Name), a); loadString(355, b);"));
  EXPECT_FALSE(CallsWithBareNumber("loadString(Number(Text::Name), text)"));
  EXPECT_FALSE(CallsWithBareNumber("loadString.Load(Text::Name), 355"));
  EXPECT_FALSE(CallsWithBareNumber("loadString(id355, text) loadString("));
}

/// The folders of the library: those with a build file, but the tests and what belongs to a host.
std::vector<fs::path> LibraryFolders() {
  static const std::set<std::string> others = {"tests", "bench", "hostkit", "apps"};
  std::vector<fs::path> folders;
  for (const auto& entry : fs::directory_iterator(QV_PROJECT_DIR)) {
    const bool isOther = others.contains(entry.path().filename().string());
    if (!isOther && fs::exists(entry.path() / "CMakeLists.txt")) {
      folders.push_back(entry.path());
    }
  }
  return folders;
}

std::vector<fs::path> LibrarySources() {
  std::vector<fs::path> sources;
  for (const fs::path& folder : LibraryFolders()) {
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      const fs::path extension = entry.path().extension();
      if (extension == ".cpp" || extension == ".h") {
        sources.push_back(entry.path().lexically_relative(QV_PROJECT_DIR));
      }
    }
  }
  return sources;
}

TEST(BareNumbers, StandInNoSourceOfTheLibrary) {
  const auto sources = LibrarySources();
  for (const char* known : {"host/QVLoadString.h", "manager/DiscriminatorList.cpp"}) {
    EXPECT_NE(std::find(sources.begin(), sources.end(), known), sources.end()) << known;
  }
  for (const fs::path& source : sources) {
    EXPECT_FALSE(CallsWithBareNumber(FileBytes(fs::path(QV_PROJECT_DIR) / source))) << source;
  }
}

}  // namespace
}  // namespace qv
