#include "tests/tools/ReadingWays.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "tests/support/ScriptedFiles.h"
#include "tests/tools/Trees.h"

namespace qv {
namespace {

Reading ReadAsFile(const std::string& text, std::size_t pieceSize) {
  ScriptedFiles files;
  files.contents[L"/file"] = text;
  files.pieceSize = pieceSize;
  Reading reading;
  reading.error = {"of an earlier file", 1, 1};
  reading.root = ReadXmlFile(L"/file", files, &reading.error);
  return reading;
}

void ExpectSame(const Reading& expected, const Reading& actual, std::size_t pieceSize) {
  SCOPED_TRACE(testing::Message() << "in pieces of " << pieceSize);
  EXPECT_EQ(actual.error.reason, expected.error.reason);
  EXPECT_EQ(actual.error.line, expected.error.line);
  EXPECT_EQ(actual.error.column, expected.error.column);
  ASSERT_EQ(actual.root != nullptr, expected.root != nullptr);
  if (expected.root) {
    EXPECT_EQ(*actual.root, *expected.root);
  }
}

}  // namespace

Reading ReadInPieces(std::string_view text, std::size_t pieceSize) {
  XmlReader reader;
  while (!text.empty() && reader.Feed(text.substr(0, pieceSize))) {
    text.remove_prefix(std::min(pieceSize, text.size()));
  }
  auto root = reader.Finish();
  return {std::move(root), reader.Error()};
}

Reading ReadEveryWay(const std::string& text) {
  Reading whole = ReadInPieces(text, text.size());
  EXPECT_EQ(whole.root == nullptr, !whole.error.reason.empty());
  ExpectSame(whole, ReadAsFile(text, 0), text.size());
  for (std::size_t pieceSize = 1; pieceSize <= 5; ++pieceSize) {
    ExpectSame(whole, ReadInPieces(text, pieceSize), pieceSize);
    ExpectSame(whole, ReadAsFile(text, pieceSize), pieceSize);
  }
  return whole;
}

std::string Utf16(std::string_view text, bool bigEndian) {
  std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char character : text) {
    bytes += bigEndian ? std::string{'\0', character} : std::string{character, '\0'};
  }
  return bytes;
}

}  // namespace qv
