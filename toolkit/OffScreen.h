#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>
#include <QWidget>
#include <functional>

#include "tools/Canvas.h"

namespace qv {

/// A surface for so many pixels, with all the dots that `painter` draws for them. What is painted
/// there is copied to `painter` in one step.
QImage OffScreen(QSize size, const QPainter& painter);

/// Paints all of `widget` off screen and shows it in one step; to be called by its paint event.
/// `paint` is given the canvas and the colour of the ground that the widget stands on.
void PaintOffScreen(QWidget& widget, const std::function<void(Canvas&, Colour ground)>& paint);

}  // namespace qv
