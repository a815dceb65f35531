#pragma once

#include "host/Export.h"
#include "tools/XmlDocument.h"
#include "tools/XmlNode.h"

namespace qv {

/// The driver of the device that marks an embedded installation.
inline constexpr wchar_t embeddedDriver[] = L"KORVAXEMBEDDED";

/// Whether `node`, a child of `commSystem`, marks an embedded installation: a `device` whose
/// `driver` is exactly that one.
QVHOST_EXPORT bool IsEmbeddedDevice(const XmlNode& node);

/// Whether the installation is an embedded one: `commSystem` of the main configuration has a
/// device that marks it so. An empty configuration is none.
QVHOST_EXPORT bool IsEmbedded(const XmlDocument& mainCfg);

}  // namespace qv
