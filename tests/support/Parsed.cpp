#include "tests/support/Parsed.h"

#include <stdexcept>

#include "tools/XmlReader.h"

namespace qv {

std::unique_ptr<XmlNode> Parsed(std::string_view xml) {
  XmlReader reader;
  reader.Feed(xml);
  auto root = reader.Finish();
  if (!root) {
    throw std::invalid_argument("no XML: " + reader.Error().reason);
  }
  return root;
}

}  // namespace qv
