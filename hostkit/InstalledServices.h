#pragma once

#include "host/Host.h"

namespace qv {

/// Installs the services of a host for as long as this object lives, and takes them out again. The
/// services have to outlive it.
class InstalledServices {
 public:
  InstalledServices(QVVornelSetup& setup, QVMainCfg& mainCfg, QVVornelGuids& guids,
                    QVLoadString& loadString, CreateDiscriminatorIndex& createIndex,
                    QVClipboard& clipboard);
  InstalledServices(const InstalledServices&) = delete;
  InstalledServices& operator=(const InstalledServices&) = delete;
  ~InstalledServices();
};

}  // namespace qv
