#include "timestructure/ui/TimeGridView.h"

#include <QPainter>

#include "toolkit/OffScreen.h"
#include "toolkit/PaintBox.h"
#include "toolkit/PainterCanvas.h"

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
  QPainter screen(this);
  QImage surface = OffScreen(size(), screen);
  if (surface.isNull()) {
    return;
  }
  {
    m_picture.ground = FromQColor(palette().color(backgroundRole()));
    m_picture.ink = InkOn(m_picture.ground);
    QPainter painter(&surface);
    PainterCanvas canvas(painter);
    Grid().Paint(canvas, m_picture);
  }
  screen.drawImage(0, 0, surface);
}

}  // namespace qv
