#pragma once

#include "toolkit/QVLayout.h"

namespace qv {

/// Adds the buttons OK and Cancel to a row, over its whole width.
void AddOkCancel(QVLayout& row);

/// Adds them with a tenth of the width free on both sides.
void AddNarrowOkCancel(QVLayout& row);

}  // namespace qv
