#pragma once

#include <memory>
#include <string_view>

#include "tools/XmlNode.h"

namespace qv {

/// The tree that `xml` writes; throws if it is no XML.
std::unique_ptr<XmlNode> Parsed(std::string_view xml);

}  // namespace qv
