#pragma once

#include <optional>

#include "calendar/CalendarCursor.h"

namespace qv {

/// Where a key of the keyboard, a `Qt::Key`, leads the cursor, if anywhere.
std::optional<CursorKey> CursorKeyOf(int key);

/// The row of the legend that a digit chooses, from 0 for "1"; -1 for "0", the eraser.
std::optional<int> BrushKeyOf(int key);

}  // namespace qv
