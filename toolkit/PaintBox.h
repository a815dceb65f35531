#pragma once

#include <QColor>
#include <QPixmap>

#include "toolkit/Types.h"

namespace qv {

/// The colour of a 32-bit number that has red in its lowest byte, then green, then blue. The
/// highest byte is ignored.
QColor ColourOf(unsigned long colour);

/// The number of a colour, its highest byte 0.
COLORREF NumberOf(const QColor& colour);

}  // namespace qv

/// Makes in `bitmap` a picture of this size in one colour, read as by `qv::ColourOf`. False, with
/// `bitmap` as it was, if that is null or the size is empty.
bool PaintBox(QPixmap* bitmap, unsigned long colour, int width, int height);
