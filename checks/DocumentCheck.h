#pragma once

#include "checks/Finding.h"
#include "host/QVDriverSupport.h"
#include "tools/XmlNode.h"

namespace qv {

/// What is wrong within the document of a discriminator: parts that come twice, links that lead
/// nowhere, slots that make no day, and conditions that are none. `drivers` evaluates these; null
/// leaves them alone. The findings have no file.
[[nodiscard]] Findings CheckDocument(const XmlNode& root, const QVDriverSupport* drivers = nullptr);

}  // namespace qv
