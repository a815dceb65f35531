#include "toolkit/ColourIcons.h"

#include <QApplication>
#include <QStyle>

#include "toolkit/PaintBox.h"

namespace qv {

namespace {

constexpr Colour white = 0xFFFFFF;
constexpr Colour black = 0;

Colour MaskColour(Colour colour) { return colour == white ? black : white; }

}  // namespace

QSize SmallIconSize(const QWidget* widget) {
  const QStyle* style = widget ? widget->style() : QApplication::style();
  const int side = style->pixelMetric(QStyle::PM_SmallIconSize, nullptr, widget);
  return {side, side};
}

QIcon ColourIcon(Colour colour, QSize size) {
  QPixmap box;
  if (!PaintBox(&box, colour, size.width(), size.height())) {
    return {};
  }
  if (ToQColor(colour) == ToQColor(MaskColour(colour))) {
    box.fill(Qt::transparent);
  }
  QIcon icon(box);
  icon.addPixmap(box, QIcon::Selected);  // or the style would mix in the colour of the selection
  return icon;
}

}  // namespace qv
