#pragma once

#include "host/EditorEnd.h"
#include "toolkit/EditingFrame.h"

namespace qv {

/// Runs a dialog that edits something.
[[nodiscard]] inline EditorEnd RunDialog(EditingFrame& dialog) {
  const bool confirmed = dialog.DoModal() == IDOK;
  return {confirmed, dialog.m_modified};
}

}  // namespace qv
