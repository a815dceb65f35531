#include "toolkit/Controls.h"

namespace qv {

QWidget* FindControl(const QWidget* window, int id) {
  const auto children = window->findChildren<QWidget*>();
  for (QWidget* child : children) {
    const QVariant number = child->property(controlIdProperty);
    if (number.isValid() && number.toInt() == id) {
      return child;
    }
  }
  return nullptr;
}

}  // namespace qv
