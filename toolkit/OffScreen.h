#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

namespace qv {

/// A surface for so many pixels, with all the dots that `painter` draws for them. What is painted
/// there is copied to `painter` in one step.
QImage OffScreen(QSize size, const QPainter& painter);

}  // namespace qv
