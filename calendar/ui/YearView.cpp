#include "calendar/ui/YearView.h"

#include <QMouseEvent>

#include "toolkit/BoxGround.h"
#include "toolkit/OffScreen.h"
#include "toolkit/PaintBox.h"

namespace qv {
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
  style.ground = FromQColor(GroundOf(*this));
  style.paper = FromQColor(palette().color(QPalette::Base));
  style.ink = FromQColor(palette().color(QPalette::WindowText));
  style.highlight = FromQColor(palette().color(QPalette::Highlight));
  return style;
}

void YearView::paintEvent(QPaintEvent*) {
  PaintOffScreen(*this, [this](const OffScreenSurface& surface) {
    YearLook look{.marks = m_marks, .style = PaletteStyle()};
    look.style.density = surface.density;
    PaintYear(surface.canvas, {surface.size, m_year, surface.density}, look);
  });
}

std::optional<CalendarDate> YearView::DateAt(const QPointF& place) const {
  const Density density{devicePixelRatioF()};
  const Extent surface{density.Dots(width()), density.Dots(height())};
  const auto found = YearGeometry(surface, m_year, density)
                         .PlaceAt({static_cast<int>(place.x() * density.dotsPerPixel),
                                   static_cast<int>(place.y() * density.dotsPerPixel)});
  const auto* date = found ? std::get_if<CalendarDate>(&*found) : nullptr;
  return date ? std::optional(*date) : std::nullopt;
}

void YearView::mousePressEvent(QMouseEvent* event) {
  const auto date = DateAt(event->position());
  if (event->button() == Qt::LeftButton && date && m_marks.Apply({*date})) {
    update();
    emit Marked();
  }
}

}  // namespace qv
