#pragma once

#include "toolkit/Types.h"

namespace qv {

/// Runs a dialog that tells by its `m_modified` whether the user changed something. `End` takes
/// whether it was confirmed, and that.
template <class End, class Dialog>
End RunDialog(Dialog& dialog) {
  const bool confirmed = dialog.DoModal() == IDOK;
  return End{confirmed, dialog.m_modified};
}

}  // namespace qv
