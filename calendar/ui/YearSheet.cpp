#include "calendar/ui/YearSheet.h"

#include <QEvent>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "toolkit/BoxGround.h"
#include "toolkit/OffScreen.h"
#include "toolkit/PaintBox.h"

namespace qv {
namespace {

std::vector<CalendarDate> Difference(const std::vector<CalendarDate>& before,
                                     const std::vector<CalendarDate>& after) {
  std::vector<CalendarDate> dates;
  std::set_symmetric_difference(before.begin(), before.end(), after.begin(), after.end(),
                                std::back_inserter(dates));
  return dates;
}

std::vector<CalendarDate> OneOrNone(const std::optional<CalendarDate>& date) {
  return date ? std::vector{*date} : std::vector<CalendarDate>();
}

/// The pixels that hold these dots, wholly or in part.
QRect PixelsOf(const Rect& dots, Density density) {
  const auto pixels = [density](int length) { return length / density.dotsPerPixel; };
  return QRectF(pixels(dots.left), pixels(dots.top), pixels(dots.Width()), pixels(dots.Height()))
      .toAlignedRect();
}

}  // namespace

YearSheet::YearSheet(QWidget* parent, const CalendarMarks& marks, CalendarDate today)
    : QWidget(parent), m_marks(marks), m_today(today), m_year(today.year) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void YearSheet::SetYear(int year) {
  if (year != m_year) {
    m_year = year;
    RepaintAll();
  }
}

void YearSheet::SetFirstMonth(int month) {
  if (month != Geometry().FirstMonth()) {
    m_firstMonth = month;
    RepaintAll();
    emit MonthsChanged();
  }
}

void YearSheet::SetMonthName(std::size_t index, const QVWideString& name) {
  m_style.monthNames.at(index) = name;
  RepaintAll();
}

void YearSheet::SetWeekdayName(std::size_t index, const QVWideString& name) {
  m_style.weekdayNames.at(index) = name;
  RepaintAll();
}

void YearSheet::SetDayTypes(const std::vector<ColouredType>& rows) {
  m_legend = LegendOf(m_marks, rows, m_year);
  RepaintAll();
}

YearGeometry YearSheet::Geometry() const {
  const Density density = ScreenDensity();
  const Extent surface{density.Dots(width()), density.Dots(height())};
  return {surface, m_year, density, m_firstMonth};
}

QRect YearSheet::CellOf(CalendarDate date) const {
  const YearGeometry geometry = Geometry();
  const bool isOnShow = date.year == m_year && geometry.Shows(date.month);
  return isOnShow ? PixelsOf(geometry.CellOf(date), ScreenDensity()) : QRect();
}

Point YearSheet::DotsAt(const QPointF& place) const {
  const double density = devicePixelRatioF();
  return {static_cast<int>(std::floor(place.x() * density)),
          static_cast<int>(std::floor(place.y() * density))};
}

std::optional<YearPlace> YearSheet::PlaceAt(const QPointF& place) const {
  return Geometry().PlaceAt(DotsAt(place));
}

std::optional<CalendarDate> YearSheet::NearestDate(const QPointF& place) const {
  return Geometry().NearestDate(DotsAt(place));
}

void YearSheet::ShowState(YearState state) {
  const YearState before = std::exchange(m_state, std::move(state));
  Repaint(Difference(before.preview, m_state.preview));
  Repaint(Difference(before.selected, m_state.selected));
  if (before.focused != m_state.focused) {
    Repaint(OneOrNone(before.focused));
    Repaint(OneOrNone(m_state.focused));
  }
}

void YearSheet::Repaint(const std::vector<CalendarDate>& dates) {
  const YearGeometry geometry = Geometry();
  for (const CalendarDate date : dates) {
    if (date.year == m_year && geometry.Shows(date.month)) {
      m_stale.insert(date);
      update(PixelsOf(geometry.CellOf(date), ScreenDensity()));
    }
  }
}

void YearSheet::RepaintAll() {
  m_picture = QImage();
  update();
}

YearLook YearSheet::LookOn(const QColor& ground, Density density) const {
  YearLook look{.marks = m_marks, .style = m_style};
  look.style.ground = FromQColor(ground);
  look.style.paper = FromQColor(palette().color(QPalette::Base));
  look.style.ink = FromQColor(palette().color(QPalette::WindowText));
  look.style.highlight = FromQColor(palette().color(QPalette::Highlight));
  look.style.density = density;
  look.legend = m_legend;
  look.today = m_today;
  look.focused = m_state.focused;
  look.preview = m_state.preview;
  look.previewBrush = m_marks.CurrentBrush();
  look.selected = m_state.selected;
  return look;
}

void YearSheet::paintEvent(QPaintEvent*) {
  PaintOffScreen(*this, m_picture, [this](const OffScreenSurface& surface) {
    const YearGeometry year(surface.size, m_year, surface.density, m_firstMonth);
    const YearLook look = LookOn(GroundOf(*this), surface.density);
    if (surface.isNew) {
      PaintYear(surface.canvas, year, look);
    } else {
      PaintDates(surface.canvas, year, look, std::vector(m_stale.begin(), m_stale.end()));
    }
  });
  m_stale.clear();
}

void YearSheet::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  emit MonthsChanged();
}

void YearSheet::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  RepaintAll();
}

}  // namespace qv
