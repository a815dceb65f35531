#pragma once

#include <QMargins>
#include <QWidget>

namespace qv {

/// How far content must keep from the edges of `box` to stand `margin` pixels inside its frame, and
/// with `titled` below its title too. Null, or a widget other than a group box, has a plain frame
/// at its edges and, if titled, one line of text above the content.
QMargins GroupBoxMargins(const QWidget* box, int margin, bool titled);

}  // namespace qv
