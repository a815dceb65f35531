#include "toolkit/BoxGround.h"

#include <QGroupBox>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

namespace qv {
namespace {

/// The box beside `widget` that encloses it, or null. Those of a template are siblings of what
/// stands in them.
const QGroupBox* BoxBeside(const QWidget& widget) {
  for (const auto* box : widget.parentWidget()->findChildren<const QGroupBox*>(
           QString(), Qt::FindDirectChildrenOnly)) {
    if (box->geometry().contains(widget.geometry())) {
      return box;
    }
  }
  return nullptr;
}

const QGroupBox* BoxAround(const QWidget& widget) {
  const QWidget* inner = &widget;
  while (!inner->isWindow() && inner->parentWidget()) {
    if (const auto* box = qobject_cast<const QGroupBox*>(inner->parentWidget())) {
      return box;
    }
    if (const QGroupBox* box = BoxBeside(*inner)) {
      return box;
    }
    inner = inner->parentWidget();
  }
  return nullptr;
}

/// The middle of a frame of the style, on `window`. Only the style knows how it shades.
QColor InsideOf(const QGroupBox& box, const QColor& window) {
  QImage picture(box.size().boundedTo(QSize(64, 64)), QImage::Format_RGB32);
  if (picture.isNull()) {
    return window;
  }
  picture.fill(window);
  QPainter painter(&picture);
  QStyleOptionFrame frame;
  frame.initFrom(&box);
  frame.rect = picture.rect();
  frame.lineWidth = 1;
  box.style()->drawPrimitive(QStyle::PE_FrameGroupBox, &frame, &painter, &box);
  return picture.pixelColor(picture.rect().center());
}

}  // namespace

QColor GroundOf(const QWidget& widget) {
  const QColor window = widget.palette().color(widget.backgroundRole());
  const QGroupBox* box = BoxAround(widget);
  return box && !box->isFlat() ? InsideOf(*box, window) : window;
}

}  // namespace qv
