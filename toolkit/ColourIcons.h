#pragma once

#include <QIcon>
#include <QSize>
#include <QWidget>

#include "tools/Colour.h"

namespace qv {

/// The small icon size of the style of `widget`, in logical pixels.
QSize SmallIconSize(const QWidget* widget);

/// The colour box of a list row or combo entry. It is made with a mask colour, white, whose pixels
/// are transparent; a box that is itself white (0xFFFFFF) has black for its mask colour and so
/// stays visible. One that is white, or nearly so, has a thin outline. An empty size gives a null
/// icon.
QIcon ColourIcon(Colour colour, QSize size);

}  // namespace qv
