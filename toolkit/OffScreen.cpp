#include "toolkit/OffScreen.h"

#include <cmath>

namespace qv {

QImage OffScreen(QSize size, const QPainter& painter) {
  // The device knows only of the screen, while its picture may be asked for at any density.
  const double density = std::sqrt(std::abs(painter.deviceTransform().determinant()));
  const QSize dots(static_cast<int>(std::ceil(size.width() * density)),
                   static_cast<int>(std::ceil(size.height() * density)));
  QImage surface(dots, QImage::Format_RGB32);
  surface.setDevicePixelRatio(density);
  return surface;
}

}  // namespace qv
