#include "toolkit/ColourField.h"

#include <QPainter>

#include "toolkit/Caption.h"
#include "toolkit/PaintBox.h"

namespace qv {

ColourField::ColourField(QWidget* parent) : QWidget(parent) { DescribeColour(*this, m_colour); }

void ColourField::SetColour(Colour colour) {
  m_colour = colour;
  DescribeColour(*this, colour);
  update();
}

void ColourField::paintEvent(QPaintEvent*) { PaintField(*this, m_colour, FaintFrame(*this), 1); }

void PaintField(QWidget& field, Colour colour, const QColor& frame, int breadth) {
  QPainter painter(&field);
  painter.fillRect(field.rect(), frame);
  const QRect inside = field.rect().adjusted(breadth, breadth, -breadth, -breadth);
  QPixmap box;
  if (PaintBox(&box, colour, inside.width(), inside.height())) {
    painter.drawPixmap(inside.topLeft(), box);
  }
}

QColor FaintFrame(const QWidget& field) {
  constexpr int faint = 110;
  QColor frame = field.palette().color(QPalette::WindowText);
  frame.setAlpha(faint);
  return frame;
}

void DescribeColour(QWidget& field, Colour colour) {
  SetPlainToolTip(&field, ToQColor(colour).name(QColor::HexRgb).toUpper());
}

}  // namespace qv
