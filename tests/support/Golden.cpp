#include "tests/support/Golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include "tests/support/TemporaryDirectory.h"

namespace qv {
namespace {

using Lines = std::vector<std::string>;

Lines LinesOf(const std::filesystem::path& file) {
  std::istringstream stream(FileBytes(file));
  Lines lines;
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

void Write(const std::filesystem::path& file, const Lines& lines) {
  std::ofstream stream(file);
  for (const auto& line : lines) {
    stream << line << '\n';
  }
}

/// The lines of `some` that `others` lack, each behind a mark.
std::string Beyond(Lines some, Lines others, const char* mark) {
  std::sort(some.begin(), some.end());
  std::sort(others.begin(), others.end());
  Lines beyond;
  std::set_difference(some.begin(), some.end(), others.begin(), others.end(),
                      std::back_inserter(beyond));
  std::string text;
  for (const auto& line : beyond) {
    text += mark + line + '\n';
  }
  return text;
}

}  // namespace

void ExpectGolden(const std::filesystem::path& file, const Lines& lines) {
  if (std::getenv("QV_WRITE_GOLDEN")) {
    Write(file, lines);
  }
  const Lines expected = LinesOf(file);
  EXPECT_TRUE(lines == expected) << file.string() << " (- the file, + what is now)\n"
                                 << Beyond(expected, lines, "- ") << Beyond(lines, expected, "+ ")
                                 << "If that is meant: cmake --build build/release --target golden";
}

}  // namespace qv
