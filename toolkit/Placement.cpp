#include "toolkit/Placement.h"

#include <QGroupBox>

namespace qv {

void PlaceWidget(QWidget* widget, const QRect& rect, const QWidget* window) {
  const QWidget* parent = widget->parentWidget();
  const bool deeper = window && parent && parent != window && window->isAncestorOf(parent);
  widget->setGeometry(deeper ? rect.translated(parent->mapFrom(window, QPoint())) : rect);
}

void PutBehind(QWidget* box) {
  const QObject* parent = box->parentWidget();
  if (!parent) {
    return;
  }
  for (const QObject* sibling : parent->children()) {
    if (sibling == box) {
      return;
    }
    if (sibling->isWidgetType() && !qobject_cast<const QGroupBox*>(sibling)) {
      box->lower();
      return;
    }
  }
}

}  // namespace qv
