#pragma once

#include <memory>

#include "host/QVClipboard.h"

namespace qv {

/// The clipboard of the running application, of which it serves plain text.
class QtClipboard : public QVClipboard {
 public:
  /// False for another format than text.
  bool PutToClipboard(const char* bytes, int size, int format) override;
  int GetFromClipboard(std::unique_ptr<char[]>& bytes, int format) const override;
};

}  // namespace qv
