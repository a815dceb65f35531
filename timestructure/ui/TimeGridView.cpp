#include "timestructure/ui/TimeGridView.h"

#include <utility>

#include "toolkit/OffScreen.h"

namespace qv {

TimeGridView::TimeGridView(QWidget* box, Source picture)
    : QWidget(box), m_picture(std::move(picture)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

TimeGrid TimeGridView::Grid() const { return {parentWidget()->width(), parentWidget()->height()}; }

std::optional<int> TimeGridView::MinuteAt(const QPoint& placeInBox) const {
  return Grid().MinuteAt({placeInBox.x(), placeInBox.y()});
}

void TimeGridView::FitIntoBox() {
  const Rect area = Grid().PaintedArea();
  setGeometry(area.left, area.top, area.Width(), area.Height());
}

void TimeGridView::paintEvent(QPaintEvent*) {
  PaintOffScreen(*this, [this](const OffScreenSurface& surface) {
    TimeGrid::Picture picture = m_picture();
    picture.ground = surface.ground;
    picture.ink = InkOn(surface.ground);
    Grid().Paint(surface.canvas, picture, surface.density);
  });
}

}  // namespace qv
