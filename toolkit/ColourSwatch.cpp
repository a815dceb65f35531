#include "toolkit/ColourSwatch.h"

#include <QMouseEvent>
#include <QPainter>

#include "toolkit/Caption.h"
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
  setCursor(Qt::PointingHandCursor);
  Describe();
}

void ColourSwatch::SetColour(Colour colour) {
  m_colour = colour;
  Describe();
  update();
}

void ColourSwatch::TakeLabel(QLabel* label) {
  label->setCursor(Qt::PointingHandCursor);
  label->installEventFilter(this);
}

bool ColourSwatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) {
    const auto& release = static_cast<const QMouseEvent&>(*event);
    const auto* label = qobject_cast<QWidget*>(watched);
    if (release.button() == Qt::LeftButton && label &&
        label->rect().contains(release.position().toPoint())) {
      setFocus(Qt::MouseFocusReason);
      click();
      return true;
    }
  }
  return QAbstractButton::eventFilter(watched, event);
}

void ColourSwatch::Describe() {
  SetPlainToolTip(this, ToQColor(m_colour).name(QColor::HexRgb).toUpper());
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
