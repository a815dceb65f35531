#pragma once

#include <iosfwd>
#include <string>

#include "host/QVClipboard.h"

namespace qvdisc {

/// Standard input and output in the place of the clipboard.
class StreamClipboard : public QVClipboard {
 public:
  /// `in` outlives the clipboard.
  explicit StreamClipboard(std::istream& in) : m_in(in) {}

  bool PutToClipboard(const char* bytes, int size, int format) override;
  /// Reads the stream to its end, or to what no payload is longer than. Gives the payload in it,
  /// whatever stands around that, or all that was read if there is none.
  int GetFromClipboard(std::unique_ptr<char[]>& bytes, int format) const override;

  /// What was put, without its terminator.
  const std::string& Put() const { return m_put; }

 private:
  std::istream& m_in;
  std::string m_put;
};

}  // namespace qvdisc
