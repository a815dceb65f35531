#pragma once

#include <QColor>
#include <QWidget>

namespace qv {

/// The colour that `widget` stands on: that inside the group box around it, which styles shade, or
/// that of its window. A box is around it as an ancestor, or as a sibling that encloses it.
QColor GroundOf(const QWidget& widget);

}  // namespace qv
