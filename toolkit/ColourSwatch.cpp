#include "toolkit/ColourSwatch.h"

#include <QMouseEvent>

#include "toolkit/ColourField.h"

namespace qv {

namespace {

constexpr QSize naturalSize(24, 20);
constexpr int focusBreadth = 2;

}  // namespace

ColourSwatch::ColourSwatch(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  DescribeColour(*this, m_colour);
}

void ColourSwatch::SetColour(Colour colour) {
  m_colour = colour;
  DescribeColour(*this, colour);
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

QSize ColourSwatch::sizeHint() const { return naturalSize; }

void ColourSwatch::paintEvent(QPaintEvent*) {
  if (hasFocus()) {
    PaintField(*this, m_colour, palette().color(QPalette::Highlight), focusBreadth);
  } else {
    PaintField(*this, m_colour, FaintFrame(*this), 1);
  }
}

}  // namespace qv
