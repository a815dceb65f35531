#include "toolkit/SpinButtons.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QWheelEvent>
#include <cstdlib>

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
  connect(button, &QToolButton::clicked, this, [this, delta] { Step(delta); });
  return button;
}

void SpinButtons::SetBuddy(QLineEdit* buddy) {
  m_buddy = buddy;
  buddy->installEventFilter(this);
}

QSize SpinButtons::sizeHint() const { return naturalSize; }

void SpinButtons::resizeEvent(QResizeEvent*) {
  const int half = height() / 2;
  m_up->setGeometry(0, 0, width(), half);
  m_down->setGeometry(0, half, width(), height() - half);
}

void SpinButtons::Step(int delta) {
  if (isEnabled()) {
    emit Stepped(delta);
  }
}

void SpinButtons::Turn(const QWheelEvent& event) {
  const int steps = m_wheel.Turn(event.angleDelta().y());
  for (int step = 0; step < std::abs(steps); ++step) {
    Step(steps > 0 ? 1 : -1);
  }
}

void SpinButtons::wheelEvent(QWheelEvent* event) {
  if (m_buddy && m_buddy->hasFocus()) {
    Turn(*event);
  } else {
    event->ignore();
  }
}

bool SpinButtons::eventFilter(QObject* buddy, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
      Step(key == Qt::Key_Up ? 1 : -1);
      return true;
    }
  } else if (event->type() == QEvent::Wheel && m_buddy->hasFocus()) {
    Turn(static_cast<const QWheelEvent&>(*event));
    return true;
  } else if (event->type() == QEvent::FocusOut &&
             static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
    emit Left();
  }
  return QWidget::eventFilter(buddy, event);
}

}  // namespace qv
