#include "calendar/ui/YearButton.h"

#include <QPainter>

#include "toolkit/Caption.h"

namespace qv {

YearButton::YearButton(QWidget* parent, Qt::ArrowType arrow) : QToolButton(parent) {
  setArrowType(arrow);
  setAutoRepeat(true);
  setAutoRaise(true);
  setFocusPolicy(Qt::NoFocus);
}

void YearButton::SetDot(bool hasDot, const QString& meaning) {
  if (hasDot != m_hasDot) {
    m_hasDot = hasDot;
    update();
  }
  SetPlainToolTip(this, hasDot ? meaning : QString());
}

void YearButton::paintEvent(QPaintEvent* event) {
  QToolButton::paintEvent(event);
  if (!m_hasDot) {
    return;
  }
  const qreal size = qMax(4.0, height() / 5.0);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::Highlight));
  painter.drawEllipse(QRectF(width() - size - 1, 1, size, size));
}

}  // namespace qv
