#pragma once

#include <functional>

#include "host/QVVornelGuids.h"

namespace qv {

/// Hands each notice of a change to a listener.
class GuidNotices : public QVVornelGuids {
 public:
  using Listener = std::function<void(int id)>;

  /// `listener` may be empty.
  explicit GuidNotices(Listener listener);

  /// A call whose flag is false reports no change and isn't handed on.
  void invalidateGuid(int id, bool stale) override;

 private:
  Listener m_listener;
};

}  // namespace qv
