#include "toolkit/PaintBox.h"

namespace qv {

namespace {

constexpr int greenShift = 8;
constexpr int blueShift = 16;
constexpr unsigned long channelMask = 0xFF;

int Channel(unsigned long colour, int shift) {
  return static_cast<int>((colour >> shift) & channelMask);
}

}  // namespace

QColor ToQColor(unsigned long colour) {
  return {Channel(colour, 0), Channel(colour, greenShift), Channel(colour, blueShift)};
}

Colour FromQColor(const QColor& colour) {
  return static_cast<Colour>(colour.red() | colour.green() << greenShift |
                             colour.blue() << blueShift);
}

}  // namespace qv

bool PaintBox(QPixmap* bitmap, unsigned long colour, int width, int height) {
  if (!bitmap || width <= 0 || height <= 0) {
    return false;
  }
  *bitmap = QPixmap(width, height);
  bitmap->fill(qv::ToQColor(colour));
  return true;
}
