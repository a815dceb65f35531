#include "timestructure/ui/TimeGridView.h"

#include "toolkit/OffScreen.h"

namespace qv {

TimeGridView::TimeGridView(QWidget* box) : QWidget(box) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

TimeGrid TimeGridView::Grid() const { return {parentWidget()->width(), parentWidget()->height()}; }

std::optional<int> TimeGridView::MinuteAt(const QPoint& placeInBox) const {
  return Grid().MinuteAt({placeInBox.x(), placeInBox.y()});
}

void TimeGridView::SetPicture(TimeGrid::Picture picture) {
  picture.ground = m_picture.ground;
  picture.ink = m_picture.ink;
  if (picture != m_picture) {
    m_picture = picture;
    update();
  }
}

void TimeGridView::FitIntoBox() {
  const Rect area = Grid().PaintedArea();
  setGeometry(area.left, area.top, area.Width(), area.Height());
}

void TimeGridView::paintEvent(QPaintEvent*) {
  PaintOffScreen(*this, [this](Canvas& canvas, Colour ground) {
    m_picture.ground = ground;
    m_picture.ink = InkOn(ground);
    Grid().Paint(canvas, m_picture);
  });
}

}  // namespace qv
