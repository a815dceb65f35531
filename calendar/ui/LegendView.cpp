#include "calendar/ui/LegendView.h"

#include <QHelpEvent>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "calendar/ui/YearWords.h"
#include "toolkit/BoxGround.h"
#include "toolkit/Caption.h"
#include "toolkit/OffScreen.h"
#include "toolkit/PaintBox.h"
#include "toolkit/Strings.h"
#include "tools/Format.h"

namespace qv {

LegendView::LegendView(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void LegendView::Show(std::vector<LegendEntry> legend, const Brush& brush) {
  const auto chosen = std::find_if(legend.begin(), legend.end(),
                                   [&](const LegendEntry& entry) { return entry.brush == brush; });
  m_chosen.reset();
  if (chosen != legend.end()) {
    m_chosen = static_cast<std::size_t>(chosen - legend.begin());
  }
  m_legend = std::move(legend);
  QStringList words;
  for (const LegendEntry& entry : m_legend) {
    words.append(WordsOf(entry));
  }
  setAccessibleDescription(words.join("; "));
  update();
}

QString LegendView::WordsOf(const LegendEntry& entry) const {
  const QString name =
      entry.brush.IsEraser() ? YearWord(Text::WithoutDayType) : ToQString(entry.brush.text);
  const std::wstring form = YearWord(Text::LegendDays).toStdWString();
  return ToQString(Format(form.empty() ? L"%s: %d" : form, {ToWide(name), entry.days}));
}

LegendGeometry LegendView::GeometryFor(int dots, Density density) const {
  const int line = fontMetrics().height() * 5 / 4;
  return {dots, density.Dots(line), m_legend.size()};
}

int LegendView::HeightFor(int width) const {
  const Density density = ScreenDensity();
  const int dots = GeometryFor(density.Dots(width), density).Height();
  return static_cast<int>(std::ceil(dots / density.dotsPerPixel));
}

QRect LegendView::PlaceOf(std::size_t entry) const {
  const Density density = ScreenDensity();
  const Rect place = GeometryFor(density.Dots(width()), density).PlaceOf(entry);
  const auto pixels = [density](int length) { return length / density.dotsPerPixel; };
  return QRectF(pixels(place.left), pixels(place.top), pixels(place.Width()),
                pixels(place.Height()))
      .toAlignedRect();
}

std::optional<std::size_t> LegendView::EntryAt(const QPointF& place) const {
  const Density density = ScreenDensity();
  return GeometryFor(density.Dots(width()), density)
      .EntryAt({static_cast<int>(std::floor(place.x() * density.dotsPerPixel)),
                static_cast<int>(std::floor(place.y() * density.dotsPerPixel))});
}

LegendStyle LegendView::StyleFor(Density density) const {
  LegendStyle style;
  style.withoutType = ToWide(YearWord(Text::WithoutDayType));
  style.ground = FromQColor(GroundOf(*this));
  style.paper = FromQColor(palette().color(QPalette::Base));
  style.ink = FromQColor(palette().color(QPalette::WindowText));
  style.chosen = m_chosen;
  style.density = density;
  return style;
}

void LegendView::paintEvent(QPaintEvent*) {
  PaintOffScreen(*this, [this](const OffScreenSurface& surface) {
    PaintLegend(surface.canvas, GeometryFor(surface.size.cx, surface.density), m_legend,
                StyleFor(surface.density));
  });
}

bool LegendView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) {
    return QWidget::event(event);
  }
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const auto entry = EntryAt(help.pos());
  QToolTip::showText(help.globalPos(), entry ? PlainToolTip(WordsOf(m_legend[*entry])) : QString(),
                     this);
  return true;
}

void LegendView::mousePressEvent(QMouseEvent* event) {
  const auto entry = EntryAt(event->position());
  if (entry && event->button() == Qt::LeftButton) {
    const bool isEraser = *entry + 1 == m_legend.size();
    emit BrushWanted(isEraser ? -1 : static_cast<int>(*entry));
  }
}

}  // namespace qv
