#pragma once

#include <stdexcept>

/// The exception of this layer. Ordinary failure is told by results; nothing here throws it.
class StdRuntimeException : public std::runtime_error {
 public:
  /// `message` may be null, which counts as empty.
  explicit StdRuntimeException(const char* message) : std::runtime_error(message ? message : "") {}
};
