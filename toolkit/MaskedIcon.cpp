#include "toolkit/MaskedIcon.h"

#include <QPixmap>

#include "toolkit/Caption.h"

namespace qv {

QImage Masked(const QImage& image) {
  QImage masked = image.convertToFormat(QImage::Format_ARGB32);
  if (masked.isNull()) {
    return masked;
  }
  const QRgb maskColour = masked.pixel(0, masked.height() - 1);
  for (int y = 0; y < masked.height(); ++y) {
    for (int x = 0; x < masked.width(); ++x) {
      if (masked.pixel(x, y) == maskColour) {
        masked.setPixel(x, y, qRgba(0, 0, 0, 0));
      }
    }
  }
  return masked;
}

QIcon MaskedIcon(const QString& path) {
  QIcon icon;
  const QImage plain = Masked(QImage(path));
  if (plain.isNull()) {
    return icon;
  }
  icon.addPixmap(QPixmap::fromImage(plain));
  QImage doubled = Masked(QImage(DoubledFile(path)));
  if (!doubled.isNull()) {
    doubled.setDevicePixelRatio(2);
    icon.addPixmap(QPixmap::fromImage(doubled));
  }
  return icon;
}

}  // namespace qv
