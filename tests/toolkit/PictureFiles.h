#pragma once

#include <QColor>
#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QWidget>
#include <functional>

#include "toolkit/Strings.h"

namespace qv {

/// A directory of pictures that lasts as long as the test.
class PictureFiles {
 public:
  /// Writes a square PNG of one colour and gives its path.
  QVWideString Write(const char* name, int side, const QColor& colour) const {
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(colour);
    image.save(m_directory.filePath(QLatin1String(name)));
    return Path(name);
  }

  QVWideString WriteText(const char* name) const {
    QFile file(m_directory.filePath(QLatin1String(name)));
    if (file.open(QIODevice::WriteOnly)) {
      file.write("no picture");
    }
    return Path(name);
  }

  /// The directory with a trailing separator, as a host gives it.
  QVWideString Directory() const { return ToWide(m_directory.path() + QLatin1Char('/')); }

  QVWideString Path(const char* name) const {
    return ToWide(m_directory.filePath(QLatin1String(name)));
  }

 private:
  QTemporaryDir m_directory;
};

/// Whether `change` makes a widget look otherwise.
inline bool ChangesLook(QWidget& widget, const std::function<void()>& change) {
  const QImage before = widget.grab().toImage();
  change();
  return widget.grab().toImage() != before;
}

/// How many pixels of `image` have exactly this colour.
inline int CountPixels(const QImage& image, const QColor& colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
  }
  return count;
}

}  // namespace qv
