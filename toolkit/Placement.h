#pragma once

#include <QRect>
#include <QWidget>

namespace qv {

/// Moves `widget` to `rect`, which is told in the coordinates of `window`.
void PlaceWidget(QWidget* widget, const QRect& rect, const QWidget* window);

/// Puts a box behind its siblings, the other boxes apart, since what it frames are no children of
/// its own. A box that is there already isn't moved: each move repaints.
void PutBehind(QWidget* box);

}  // namespace qv
