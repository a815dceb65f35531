#include "toolkit/SpinButtons.h"

#include <QToolButton>
#include <QWheelEvent>

namespace qv {
namespace {

constexpr QSize naturalSize(18, 24);

}  // namespace

SpinButtons::SpinButtons(QWidget* parent)
    : QWidget(parent), m_up(NewArrow(Qt::UpArrow, 1)), m_down(NewArrow(Qt::DownArrow, -1)) {}

QToolButton* SpinButtons::NewArrow(Qt::ArrowType arrow, int delta) {
  auto* button = new QToolButton(this);
  button->setArrowType(arrow);
  button->setAutoRepeat(true);
  // The focus stays in the field, which has the keys.
  button->setFocusPolicy(Qt::NoFocus);
  connect(button, &QToolButton::clicked, this, [this, delta] { emit Stepped(delta); });
  return button;
}

QSize SpinButtons::sizeHint() const { return naturalSize; }

void SpinButtons::resizeEvent(QResizeEvent*) {
  const int half = height() / 2;
  m_up->setGeometry(0, 0, width(), half);
  m_down->setGeometry(0, half, width(), height() - half);
}

void SpinButtons::wheelEvent(QWheelEvent* event) {
  const int delta = event->angleDelta().y();
  if (delta != 0) {
    emit Stepped(delta > 0 ? 1 : -1);
  }
  event->accept();
}

}  // namespace qv
