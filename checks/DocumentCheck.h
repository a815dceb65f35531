#pragma once

#include "checks/Finding.h"
#include "tools/XmlNode.h"

namespace qv {

/// What is wrong within the document of a discriminator: parts that come twice, links that lead
/// nowhere, and slots that make no day. The findings have no file.
[[nodiscard]] Findings CheckDocument(const XmlNode& root);

}  // namespace qv
