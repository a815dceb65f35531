#include "calendar/ui/YearField.h"

#include <QKeyEvent>

namespace qv {

YearField::YearField(QWidget* parent) : QSpinBox(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAlignment(Qt::AlignHCenter);
}

void YearField::keyPressEvent(QKeyEvent* event) {
  QSpinBox::keyPressEvent(event);
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    // Else it would reach the dialog, and confirm it.
    event->accept();
  }
}

}  // namespace qv
