#pragma once

#include <QColor>
#include <QPixmap>

#include "tools/Colour.h"

namespace qv {

/// A colour of the rules as one of Qt; what stands above its three bytes is ignored.
QColor ToQColor(unsigned long colour);

/// A colour of Qt as one of the rules, its highest byte 0.
Colour FromQColor(const QColor& colour);

}  // namespace qv

/// Makes in `bitmap` a picture of this size in one colour, read as by `qv::ToQColor`. False, with
/// `bitmap` as it was, if that is null or the size is empty.
bool PaintBox(QPixmap* bitmap, unsigned long colour, int width, int height);
