#include "calendar/ui/YearView.h"

#include <QMouseEvent>

#include "toolkit/OffScreen.h"
#include "toolkit/PaintBox.h"

namespace qv {
namespace {

/// In dots of the screen. The last cells' lines stand beside them.
YearGeometry GeometryFor(Extent surface, int year) {
  return {{surface.cx - 1, surface.cy - 1}, year};
}

}  // namespace

YearView::YearView(QWidget* parent, CalendarMarks& marks) : QWidget(parent), m_marks(marks) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void YearView::SetYear(int year) {
  m_year = year;
  update();
}

void YearView::SetMonthName(std::size_t index, const QVWideString& name) {
  m_style.monthNames.at(index) = name;
  update();
}

void YearView::SetWeekdayName(std::size_t index, const QVWideString& name) {
  m_style.weekdayNames.at(index) = name;
  update();
}

YearStyle YearView::PaletteStyle() const {
  YearStyle style = m_style;
  style.paper = FromQColor(palette().color(QPalette::Base));
  style.ink = FromQColor(palette().color(QPalette::WindowText));
  style.faintInk = FromQColor(palette().color(QPalette::Disabled, QPalette::WindowText));
  return style;
}

void YearView::paintEvent(QPaintEvent*) {
  PaintOffScreen(*this, [this](const OffScreenSurface& surface) {
    PaintYear(surface.canvas, GeometryFor(surface.size, m_year), m_marks, PaletteStyle());
  });
}

std::optional<CalendarDate> YearView::DateAt(const QPointF& place) const {
  const Density density{devicePixelRatioF()};
  const Extent surface{density.Dots(width()), density.Dots(height())};
  return GeometryFor(surface, m_year)
      .DateAt({static_cast<int>(place.x() * density.dotsPerPixel),
               static_cast<int>(place.y() * density.dotsPerPixel)});
}

void YearView::mousePressEvent(QMouseEvent* event) {
  const auto date = DateAt(event->position());
  if (event->button() == Qt::LeftButton && date && m_marks.Apply({*date})) {
    update();
    emit Marked();
  }
}

}  // namespace qv
