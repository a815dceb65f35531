#include "toolkit/ColourIcons.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

#include "toolkit/PaintBox.h"
#include "tools/Density.h"

namespace qv {

namespace {

constexpr Colour white = 0xFFFFFF;
constexpr Colour black = 0;

/// From which lightness on a box would hardly be seen on a white list.
constexpr int paper = 240;

bool IsLikePaper(Colour colour) { return qGray(ToQColor(colour).rgb()) >= paper; }

/// Draws a line inside the edge of `box`, so many dots broad.
void Outline(QPixmap& box, int breadth) {
  QPainter painter(&box);
  painter.setPen(Qt::gray);
  for (int i = 0; i < breadth; ++i) {
    painter.drawRect(box.rect().adjusted(i, i, -i - 1, -i - 1));
  }
}

Colour MaskColour(Colour colour) { return colour == white ? black : white; }

}  // namespace

QSize SmallIconSize(const QWidget* widget) {
  const QStyle* style = widget ? widget->style() : QApplication::style();
  const int side = style->pixelMetric(QStyle::PM_SmallIconSize, nullptr, widget);
  return {side, side};
}

QIcon ColourIcon(Colour colour, QSize size) {
  const Density density{qGuiApp->devicePixelRatio()};
  QPixmap box;
  if (!PaintBox(&box, colour, density.Dots(size.width()), density.Dots(size.height()))) {
    return {};
  }
  if (ToQColor(colour) == ToQColor(MaskColour(colour))) {
    box.fill(Qt::transparent);
  } else if (IsLikePaper(colour)) {
    Outline(box, density.LineBreadth());
  }
  box.setDevicePixelRatio(density.dotsPerPixel);
  return QIcon(box);
}

}  // namespace qv
