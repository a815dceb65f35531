#include "toolkit/OffScreen.h"

#include <cmath>

#include "toolkit/PaintBox.h"
#include "toolkit/PainterCanvas.h"

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

void PaintOffScreen(QWidget& widget, const std::function<void(Canvas&, Colour)>& paint) {
  QPainter screen(&widget);
  QImage surface = OffScreen(widget.size(), screen);
  if (surface.isNull()) {
    return;
  }
  {
    QPainter painter(&surface);
    PainterCanvas canvas(painter);
    paint(canvas, FromQColor(widget.palette().color(widget.backgroundRole())));
  }
  screen.drawImage(0, 0, surface);
}

}  // namespace qv
