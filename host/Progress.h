#pragma once

#include <cstddef>

#include "host/Export.h"

namespace qv {

/// Watches long work.
class QVHOST_EXPORT Progress {
 public:
  virtual ~Progress() = default;
  /// `done` of `total` steps are done. False asks the work to stop.
  virtual bool Advance(std::size_t done, std::size_t total) = 0;
};

}  // namespace qv
