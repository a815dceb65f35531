#pragma once

#include <QImage>
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
  Colour ground;      ///< on which the widget stands; a new surface has this colour all over
  bool isNew = true;  ///< else what was painted last is still on it
};

/// Paints all of `widget` off screen and shows it in one step; to be called by its paint event.
void PaintOffScreen(QWidget& widget, const std::function<void(const OffScreenSurface&)>& paint);

/// Likewise, but paints over the picture of the last time, which `kept` holds, as long as that has
/// the size and density of now. Without a picture in it the surface is new.
void PaintOffScreen(QWidget& widget, QImage& kept,
                    const std::function<void(const OffScreenSurface&)>& paint);

}  // namespace qv
