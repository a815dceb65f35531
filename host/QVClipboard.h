#pragma once

#include <memory>

#include "host/HostService.h"

class QVClipboard;
extern template class QVHOST_EXPORT HostService<QVClipboard>;

/// The system's clipboard as blocks of bytes by format.
class QVHOST_EXPORT QVClipboard : public HostService<QVClipboard> {
 public:
  /// Plain 8-bit text, in UTF-8. Its blocks end in a zero, which counts in their size.
  static constexpr int TextFormat = 1;

  virtual ~QVClipboard() = default;

  /// Replaces the clipboard's content by a copy of the bytes. The callers ignore the result.
  virtual bool PutToClipboard(const char* bytes, int size, int format) = 0;

  /// Fills `bytes` with a zero-terminated copy of the clipboard's block of that format and returns
  /// its size; 0 or less, and `bytes` as it was, if there is none.
  virtual int GetFromClipboard(std::unique_ptr<char[]>& bytes, int format) const = 0;
};
