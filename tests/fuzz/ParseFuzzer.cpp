// Reads the input as XML, whole and in pieces, and writes what was read: the pieces must make no
// difference, and what is written must come back.

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string_view>

#include "tests/fuzz/Demand.h"
#include "tools/XmlReader.h"
#include "tools/XmlWriter.h"

namespace {

using Root = std::unique_ptr<qv::XmlNode>;

Root ReadWhole(std::string_view text, qv::XmlError* error) {
  qv::XmlReader reader;
  reader.Feed(text);
  auto root = reader.Finish();
  *error = reader.Error();
  return root;
}

/// Reads in pieces of 1 to 7 bytes, as the bytes at their starts would have it.
Root ReadInPieces(std::string_view text, qv::XmlError* error) {
  qv::XmlReader reader;
  while (!text.empty()) {
    const std::size_t size = 1 + static_cast<unsigned char>(text.front()) % 7;
    reader.Feed(text.substr(0, size));
    text.remove_prefix(std::min(size, text.size()));
  }
  auto root = reader.Finish();
  *error = reader.Error();
  return root;
}

void DemandRoundTrip(const qv::XmlNode& root, qv::Declaration declaration) {
  const auto first = qv::WriteXml(root, declaration);
  Demand(first.has_value(), "what was read can be written");
  qv::XmlError error;
  const Root again = ReadWhole(*first, &error);
  Demand(again != nullptr, "what was written can be read");
  Demand(*again == root, "what is read again is equal");
  Demand(qv::WriteXml(*again, declaration) == first, "the second write gives the same bytes");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  qv::XmlError error;
  qv::XmlError errorOfPieces;
  const Root whole = ReadWhole(text, &error);
  const Root pieces = ReadInPieces(text, &errorOfPieces);
  Demand((whole == nullptr) == (pieces == nullptr), "pieces are accepted like the whole");
  Demand((whole == nullptr) == !error.reason.empty(), "a refusal has a reason");
  Demand((pieces == nullptr) == !errorOfPieces.reason.empty(), "one of pieces has a reason");
  if (whole) {
    Demand(*whole == *pieces, "pieces give the same tree");
    DemandRoundTrip(*whole, qv::Declaration::No);
    DemandRoundTrip(*whole, qv::Declaration::Yes);
  }
  return 0;
}
