#pragma once

#ifdef _WIN32
#include <windows.h>
#else

/// A rectangle on the screen; right and bottom lie just outside.
struct RECT {
  int left;
  int top;
  int right;
  int bottom;

  bool operator==(const RECT&) const = default;
};

// The side or corner of a window that the user is dragging.
inline constexpr unsigned WMSZ_LEFT = 1;
inline constexpr unsigned WMSZ_RIGHT = 2;
inline constexpr unsigned WMSZ_TOP = 3;
inline constexpr unsigned WMSZ_TOPLEFT = 4;
inline constexpr unsigned WMSZ_TOPRIGHT = 5;
inline constexpr unsigned WMSZ_BOTTOM = 6;
inline constexpr unsigned WMSZ_BOTTOMLEFT = 7;
inline constexpr unsigned WMSZ_BOTTOMRIGHT = 8;

#endif

/// Keeps the proposed `rect` of a window at no less than the given size: the edge that is dragged
/// gives way, and where no edge of that direction is dragged the right or the bottom one. True if
/// the rectangle was changed. A null `rect` gives false.
///
/// For hosts and platforms that are asked while a window is sized; the dialogs themselves leave
/// their least size to Qt (`CDialog::KeepAsLeastSize`).
bool CheckDialogSize(unsigned side, RECT* rect, int minimumWidth, int minimumHeight);
