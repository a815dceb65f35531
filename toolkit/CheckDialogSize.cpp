#include "toolkit/CheckDialogSize.h"

bool CheckDialogSize(unsigned side, RECT* rect, int minimumWidth, int minimumHeight) {
  if (!rect) {
    return false;
  }
  const bool narrow = rect->right - rect->left < minimumWidth;
  const bool low = rect->bottom - rect->top < minimumHeight;
  const bool left = side == WMSZ_LEFT || side == WMSZ_TOPLEFT || side == WMSZ_BOTTOMLEFT;
  const bool top = side == WMSZ_TOP || side == WMSZ_TOPLEFT || side == WMSZ_TOPRIGHT;
  if (narrow && left) {
    rect->left = rect->right - minimumWidth;
  } else if (narrow) {
    rect->right = rect->left + minimumWidth;
  }
  if (low && top) {
    rect->top = rect->bottom - minimumHeight;
  } else if (low) {
    rect->bottom = rect->top + minimumHeight;
  }
  return narrow || low;
}
