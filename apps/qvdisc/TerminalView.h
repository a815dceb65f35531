#pragma once

#include "apps/qvdisc/ProgressLine.h"
#include "manager/DiscriminatorListView.h"

namespace qvdisc {

/// Shows of a list how far its reading is; its rows are told at the end of the call.
class TerminalView : public qv::DiscriminatorListView {
 public:
  /// `terminal` outlives the view and the progress that it gives.
  TerminalView(const Terminal& terminal, qv::Language language)
      : m_terminal(terminal), m_language(language) {}

  std::unique_ptr<qv::Progress> NewProgress() override {
    return std::make_unique<ProgressLine>(m_terminal, m_language);
  }

 private:
  const Terminal& m_terminal;
  qv::Language m_language;
};

}  // namespace qvdisc
