#include "toolkit/OffScreen.h"

#include <QImage>
#include <QPainter>
#include <cmath>

#include "toolkit/BoxGround.h"
#include "toolkit/PaintBox.h"
#include "toolkit/PainterCanvas.h"

namespace qv {
namespace {

/// The device knows only of the screen, while its picture may be asked for at any density.
Density DensityOf(const QPainter& painter) {
  return {std::sqrt(std::abs(painter.deviceTransform().determinant()))};
}

QImage SurfaceFor(QSize size, Density density) {
  const QSize dots(static_cast<int>(std::ceil(size.width() * density.dotsPerPixel)),
                   static_cast<int>(std::ceil(size.height() * density.dotsPerPixel)));
  return {dots, QImage::Format_RGB32};
}

}  // namespace

void PaintOffScreen(QWidget& widget, const std::function<void(const OffScreenSurface&)>& paint) {
  QPainter screen(&widget);
  const Density density = DensityOf(screen);
  QImage surface = SurfaceFor(widget.size(), density);
  if (surface.isNull()) {
    return;
  }
  const QColor ground = GroundOf(widget);
  surface.fill(ground);
  {
    QPainter painter(&surface);
    PainterCanvas canvas(painter, density.LineBreadth());
    paint({canvas, {surface.width(), surface.height()}, density, FromQColor(ground)});
  }
  surface.setDevicePixelRatio(density.dotsPerPixel);
  screen.drawImage(0, 0, surface);
}

}  // namespace qv
