#pragma once

#include <QWidget>
#include <functional>

#include "tools/Canvas.h"
#include "tools/Density.h"

namespace qv {

/// What a widget is painted on, before it is shown.
struct OffScreenSurface {
  Canvas& canvas;  ///< in dots of the screen
  Extent size;     ///< in dots
  Density density;
  Colour ground;  ///< on which the widget stands; the surface has this colour all over
};

/// Paints all of `widget` off screen and shows it in one step; to be called by its paint event.
void PaintOffScreen(QWidget& widget, const std::function<void(const OffScreenSurface&)>& paint);

}  // namespace qv
