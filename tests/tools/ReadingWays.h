#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "tools/XmlNode.h"
#include "tools/XmlReader.h"

namespace qv {

/// What a reader made of a text.
struct Reading {
  std::unique_ptr<XmlNode> root;
  XmlError error;
};

/// What the reader makes of `text` that comes in pieces of `pieceSize` bytes.
Reading ReadInPieces(std::string_view text, std::size_t pieceSize);

/// What the reader makes of `text`. Feeds it whole, in pieces of 1 to 5 bytes and as a file that is
/// read in such pieces, and fails the test if any of these gives another tree or another error.
Reading ReadEveryWay(const std::string& text);

/// `text`, which is ASCII and Latin-1 alone, in UTF-16 with a byte order mark.
std::string Utf16(std::string_view text, bool bigEndian);

}  // namespace qv
