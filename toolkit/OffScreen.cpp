#include "toolkit/OffScreen.h"

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

QSize DotsOf(QSize size, Density density) {
  return {static_cast<int>(std::ceil(size.width() * density.dotsPerPixel)),
          static_cast<int>(std::ceil(size.height() * density.dotsPerPixel))};
}

bool Fits(const QImage& surface, QSize dots, Density density) {
  return surface.size() == dots && surface.devicePixelRatio() == density.dotsPerPixel;
}

QImage NewSurface(QSize dots, const QColor& ground) {
  QImage surface(dots, QImage::Format_RGB32);
  surface.fill(ground);
  return surface;
}

}  // namespace

void PaintOffScreen(QWidget& widget, const std::function<void(const OffScreenSurface&)>& paint) {
  QImage surface;
  PaintOffScreen(widget, surface, paint);
}

void PaintOffScreen(QWidget& widget, QImage& kept,
                    const std::function<void(const OffScreenSurface&)>& paint) {
  QPainter screen(&widget);
  const Density density = DensityOf(screen);
  const QSize dots = DotsOf(widget.size(), density);
  const QColor ground = GroundOf(widget);
  const bool isNew = !Fits(kept, dots, density);
  if (isNew) {
    kept = NewSurface(dots, ground);
  }
  if (kept.isNull()) {
    return;
  }
  kept.setDevicePixelRatio(1);
  {
    QPainter painter(&kept);
    PainterCanvas canvas(painter, density.LineBreadth());
    paint({canvas, {kept.width(), kept.height()}, density, FromQColor(ground), isNew});
  }
  kept.setDevicePixelRatio(density.dotsPerPixel);
  screen.drawImage(0, 0, kept);
}

}  // namespace qv
