#pragma once

#include "host/Export.h"
#include "tools/XmlDocument.h"

namespace qv {

/// Whether the installation is an embedded one: `commSystem` of the main configuration has a
/// `device` whose `driver` is exactly "KORVAXEMBEDDED". An empty configuration is none.
QVHOST_EXPORT bool IsEmbedded(const XmlDocument& mainCfg);

}  // namespace qv
