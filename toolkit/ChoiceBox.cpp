#include "toolkit/ChoiceBox.h"

#include <QWheelEvent>

namespace qv {

ChoiceBox::ChoiceBox(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

void ChoiceBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace qv
