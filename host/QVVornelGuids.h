#pragma once

#include "host/HostService.h"

class QVVornelGuids;
extern template class QVHOST_EXPORT HostService<QVVornelGuids>;

/// Takes the notices that a part of the configuration has changed.
class QVHOST_EXPORT QVVornelGuids : public HostService<QVVornelGuids> {
 public:
  /// The `deviceGroups` node has changed.
  static constexpr int DeviceGroups = 5;
  /// The set of discriminator files has changed.
  static constexpr int Discriminators = 8;

  virtual ~QVVornelGuids() = default;

  /// The installed service, or null; the spelling that hosts know.
  static QVVornelGuids* get() { return Get(); }

  /// Whatever the host derives from the part `id` and stamps with a GUID is stale. The flag is true
  /// at every call.
  virtual void invalidateGuid(int id, bool stale) = 0;
};
