#pragma once

#include "host/Export.h"

/// Where one service of the host is installed. The registry is in a shared library of its own, so
/// that host and dialogs see the same one. It is reached from the user-interface thread only.
template <class Service>
class HostService {
 public:
  HostService(const HostService&) = delete;
  HostService& operator=(const HostService&) = delete;

  /// The installed service, or null.
  static Service* Get();

  /// Installs `service` (null for none) and returns the one before. The host keeps owning it and
  /// has to take it out, by installing another or null, before it dies.
  static Service* Install(Service* service);

 protected:
  HostService() = default;
  ~HostService() = default;
};
