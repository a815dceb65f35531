#include "tests/hostkit/TextHeader.h"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "tests/support/TemporaryDirectory.h"

namespace qv {

namespace fs = std::filesystem;

namespace {

/// The lines between the braces of `enum class Text`.
std::vector<std::string> EnumLines() {
  const std::string header = FileBytes(ProjectFile("host/Text.h"));
  const std::size_t head = header.find("enum class Text");
  const std::size_t begin = header.find("{\n", head) + 2;
  const std::size_t end = header.find("\n};", begin);
  std::istringstream body(header.substr(begin, end - begin));
  std::vector<std::string> lines;
  for (std::string line; std::getline(body, line);) {
    lines.push_back(line);
  }
  return lines;
}

}  // namespace

fs::path ProjectFile(const char* name) { return fs::path(QV_PROJECT_DIR) / name; }

std::vector<std::string> Placeholders(const std::string& text) {
  static const std::regex placeholder("%[0-9]*[sduX%]");
  return {std::sregex_token_iterator(text.begin(), text.end(), placeholder),
          std::sregex_token_iterator()};
}

std::map<unsigned, Enumerator> ReadEnum() {
  static const std::regex enumerator(R"(\s*(\w+)\s*=\s*(\d+),\s*///<\s*(\S.*))");
  static const std::regex heading(R"(\s*(//.*)?)");
  std::map<unsigned, Enumerator> found;
  for (const std::string& line : EnumLines()) {
    std::smatch parts;
    if (std::regex_match(line, parts, enumerator)) {
      const auto number = static_cast<unsigned>(std::stoul(parts[2]));
      EXPECT_TRUE(found.insert({number, {parts[1], parts[3]}}).second) << "twice: " << line;
    } else {
      EXPECT_TRUE(std::regex_match(line, heading)) << "not understood: " << line;
    }
  }
  return found;
}

}  // namespace qv
