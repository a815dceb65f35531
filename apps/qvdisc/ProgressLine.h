#pragma once

#include "apps/qvdisc/Terminal.h"
#include "host/Progress.h"
#include "hostkit/Language.h"

namespace qvdisc {

/// Tells a user who sees the errors how far a reading is, every so often, on one line that goes
/// with the object.
class ProgressLine : public qv::Progress {
 public:
  /// `terminal` outlives the line.
  ProgressLine(const Terminal& terminal, qv::Language language)
      : m_terminal(terminal), m_language(language) {}
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  ~ProgressLine() override;

  /// Never asks to stop.
  bool Advance(std::size_t done, std::size_t total) override;

 private:
  const Terminal& m_terminal;
  qv::Language m_language;
  bool m_isShown = false;
};

}  // namespace qvdisc
