#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path root(PROJECT_FOLDER);

std::string Content(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<fs::path> Pages() {
  std::vector<fs::path> pages = {root / "README.md", root / "CONTRIBUTING.md"};
  for (const auto& entry : fs::directory_iterator(root / "docs")) {
    if (entry.path().extension() == ".md") {
      pages.push_back(entry.path());
    }
  }
  return pages;
}

/// What `pattern` finds in the text, its first group each.
std::vector<std::string> Found(const std::string& text, const std::regex& pattern) {
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match) {
    found.push_back((*match)[1]);
  }
  return found;
}

/// The page without its blocks of code.
std::string Prose(const fs::path& page) {
  return std::regex_replace(Content(page), std::regex("```[^`]*```"), "");
}

TEST(Documentation, EveryLinkToAFileLeadsSomewhere) {
  int links = 0;
  for (const auto& page : Pages()) {
    for (const auto& target : Found(Prose(page), std::regex(R"(\]\(([^)#:]+)(#[^)]*)?\))"))) {
      ++links;
      EXPECT_TRUE(fs::exists(page.parent_path() / target)) << page << " links to " << target;
    }
  }
  EXPECT_GT(links, 10);
}

TEST(Documentation, EverySampleIsTheFileThatIsCompiled) {
  const std::string open = "<!-- sample: ";
  int samples = 0;
  for (const auto& page : Pages()) {
    const std::string text = Content(page);
    for (auto at = text.find(open); at != std::string::npos; at = text.find(open, at + 1)) {
      const auto nameStart = at + open.size();
      const auto name = text.substr(nameStart, text.find(" -->", at) - nameStart);
      const auto code = text.find('\n', text.find("```", at)) + 1;
      EXPECT_EQ(text.substr(code, text.find("```\n", code) - code), Content(root / name)) << page;
      ++samples;
    }
  }
  EXPECT_GT(samples, 0);
}

}  // namespace
