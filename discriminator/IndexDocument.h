#pragma once

#include <memory>

#include "tools/XmlDocument.h"

namespace qv {

/// The document of an index file: a copy of `hourTypes` without the fields `id` and `color` of its
/// children, of each the first.
std::unique_ptr<XmlDocument> MakeIndexDocument(const XmlNode& hourTypes);

}  // namespace qv
