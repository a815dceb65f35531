#include "calendar/ui/YearKeys.h"

#include <Qt>

namespace qv {

std::optional<CursorKey> CursorKeyOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return CursorKey::Left;
    case Qt::Key_Right:
      return CursorKey::Right;
    case Qt::Key_Up:
      return CursorKey::Up;
    case Qt::Key_Down:
      return CursorKey::Down;
    case Qt::Key_Home:
      return CursorKey::Home;
    case Qt::Key_End:
      return CursorKey::End;
    case Qt::Key_PageUp:
      return CursorKey::PageUp;
    case Qt::Key_PageDown:
      return CursorKey::PageDown;
    default:
      return std::nullopt;
  }
}

std::optional<int> BrushKeyOf(int key) {
  const bool isDigit = key >= Qt::Key_0 && key <= Qt::Key_9;
  return isDigit ? std::optional(key - Qt::Key_1) : std::nullopt;
}

}  // namespace qv
