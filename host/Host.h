#pragma once

#include <optional>

#include "host/CreateDiscriminatorIndex.h"
#include "host/Export.h"
#include "host/QVClipboard.h"
#include "host/QVLoadString.h"
#include "host/QVMainCfg.h"
#include "host/QVVornelGuids.h"
#include "host/QVVornelSetup.h"

namespace qv {

/// The host's services as the rules take them: references to what the host has installed.
struct Host {
  const QVVornelSetup& setup;
  QVMainCfg& mainCfg;
  QVVornelGuids& guids;
  const QVLoadString& loadString;
  CreateDiscriminatorIndex& createIndex;
  QVClipboard& clipboard;
};

/// The installed services, or nothing if one of them is missing.
QVHOST_EXPORT std::optional<Host> InstalledHost();

}  // namespace qv
