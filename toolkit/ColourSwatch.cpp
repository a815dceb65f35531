#include "toolkit/ColourSwatch.h"

#include <QPainter>

#include "toolkit/PaintBox.h"

namespace qv {

namespace {

constexpr QSize naturalSize(24, 20);
constexpr int focusBreadth = 2;
constexpr int opaque = 255;
constexpr int frameAlpha = 110;

}  // namespace

ColourSwatch::ColourSwatch(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
}

void ColourSwatch::SetColour(Colour colour) {
  m_colour = colour;
  update();
}

QSize ColourSwatch::sizeHint() const { return naturalSize; }

void ColourSwatch::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QColor frame = palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText);
  frame.setAlpha(hasFocus() ? opaque : frameAlpha);
  painter.fillRect(rect(), frame);
  const int breadth = hasFocus() ? focusBreadth : 1;
  const QRect inside = rect().adjusted(breadth, breadth, -breadth, -breadth);
  QPixmap box;
  if (PaintBox(&box, m_colour, inside.width(), inside.height())) {
    painter.drawPixmap(inside.topLeft(), box);
  }
}

}  // namespace qv
