// What a repaint of the year costs, beside the same primitives drawn straight with the painter.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <string_view>
#include <vector>

#include "calendar/YearPicture.h"
#include "calendar/ui/QVCalendar.h"
#include "calendar/ui/YearView.h"
#include "toolkit/PaintBox.h"
#include "toolkit/PainterCanvas.h"
#include "toolkit/Strings.h"

namespace {

constexpr qv::Extent size{1200, 800};
constexpr qv::Density density{1};
constexpr int year = 2026;

const qv::Brush work{0xDCA86F, L"Working day"};
const qv::Brush rest{0xDCA0C9, L"Weekend or holiday"};

/// Two years of which each date has a mark, with signs as their colours need them.
class MarkedYears {
 public:
  MarkedYears() {
    for (qv::CalendarDate date{year, 1, 1}; date.year < year + 2; date = DayBehind(date)) {
      m_marks.SetBrush(date.day % 7 < 5 ? work : rest);
      m_marks.Select(qv::ToDateTime(date));
    }
    Count(year);
    m_look.style.monthNames.fill(L"September");
    m_look.style.weekdayNames.fill(L"We");
    m_look.today = {{year, 11, 22}};
    m_look.focused = {{year, 11, 23}};
  }

  qv::CalendarMarks& Marks() { return m_marks; }
  qv::YearLook& Look() { return m_look; }
  const qv::YearLook& Look() const { return m_look; }
  static std::vector<qv::ColouredType> DayTypes() {
    return {{nullptr, rest.text, rest.colour}, {nullptr, work.text, work.colour}};
  }

  void Count(int shown) { m_look.legend = qv::LegendOf(m_marks, DayTypes(), shown); }

 private:
  static qv::CalendarDate DayBehind(qv::CalendarDate date) {
    ++date.day;
    if (!qv::ToDateTime(date).Valid()) {
      date = {date.year, date.month + 1, 1};
    }
    return date.month > 12 ? qv::CalendarDate{date.year + 1, 1, 1} : date;
  }

  qv::CalendarMarks m_marks;
  qv::YearLook m_look{.marks = m_marks};
};

QImage Surface() { return {size.cx, size.cy, QImage::Format_RGB32}; }

/// A fill, or a text if that isn't empty, as the painter takes it.
struct Primitive {
  QRect area;
  QColor colour;
  QPoint baseline;
  QString text;
  QFont font;
};

/// Keeps all that is drawn, in order. A year is nothing but fills and texts.
class PrimitiveKeeper : public qv::Canvas {
 public:
  /// Texts are measured on `measure`.
  explicit PrimitiveKeeper(const qv::Canvas& measure) : m_measure(measure) {}

  const std::vector<Primitive>& Primitives() const { return m_primitives; }

  void Fill(const qv::Rect& area, qv::Colour brush) override {
    m_primitives.push_back(
        {{area.left, area.top, area.Width(), area.Height()}, qv::ToQColor(brush), {}, {}, {}});
  }
  void Text(qv::Point at, std::wstring_view text, int height, qv::Colour colour) override {
    const QFont font = FontOf(height);
    const QFontMetrics metrics(font);
    m_primitives.push_back(
        {{}, qv::ToQColor(colour), {at.x, at.y + metrics.ascent()}, qv::ToQString(text), font});
  }
  qv::Extent TextExtent(std::wstring_view text, int height) const override {
    return m_measure.TextExtent(text, height);
  }
  void Rectangle(const qv::Rect&, qv::Colour, qv::Colour) override {}
  void Ellipse(const qv::Rect&, qv::Colour, qv::Colour) override {}
  void Polygon(std::span<const qv::Point>, qv::Colour, qv::Colour) override {}
  void Line(qv::Point, qv::Point, qv::Colour) override {}

 private:
  /// The largest that is so high, as of the control's canvas.
  static QFont FontOf(int height) {
    QFont font(QStringLiteral("Liberation Sans"));
    for (int pixels = height; pixels > 0; --pixels) {
      font.setPixelSize(pixels);
      const QFontMetrics metrics(font);
      if (metrics.ascent() + metrics.descent() <= height) {
        break;
      }
    }
    return font;
  }

  const qv::Canvas& m_measure;
  std::vector<Primitive> m_primitives;
};

std::vector<Primitive> PrimitivesOf(const qv::YearLook& look) {
  QImage surface = Surface();
  QPainter painter(&surface);
  const qv::PainterCanvas canvas(painter);
  PrimitiveKeeper keeper(canvas);
  qv::PaintYear(keeper, {size, year, density}, look);
  return keeper.Primitives();
}

/// The peer: the same primitives in the same order, computed beforehand; a font is set where it
/// changes.
void Painter(benchmark::State& state) {
  MarkedYears years;
  QImage surface = Surface();
  const auto primitives = PrimitivesOf(years.Look());
  for (auto _ : state) {
    QPainter painter(&surface);
    const QFont* font = nullptr;
    for (const Primitive& primitive : primitives) {
      if (primitive.text.isEmpty()) {
        painter.fillRect(primitive.area, primitive.colour);
        continue;
      }
      if (!font || *font != primitive.font) {
        font = &primitive.font;
        painter.setFont(*font);
      }
      painter.setPen(primitive.colour);
      painter.drawText(primitive.baseline, primitive.text);
    }
  }
  state.counters["primitives"] = static_cast<double>(primitives.size());
}

/// All that the control draws, its geometry computed anew.
void Drawing(benchmark::State& state) {
  MarkedYears years;
  QImage surface = Surface();
  for (auto _ : state) {
    QPainter painter(&surface);
    qv::PainterCanvas canvas(painter);
    qv::PaintYear(canvas, {size, year, density}, years.Look());
  }
}

/// One more date of a stroke over a month, on a picture that is kept.
void DragStep(benchmark::State& state) {
  MarkedYears years;
  for (int day = 1; day <= 31; ++day) {
    years.Look().preview.push_back({year, 1, day});
  }
  years.Look().previewBrush = rest;
  const std::vector<qv::CalendarDate> last{years.Look().preview.back()};
  QImage surface = Surface();
  for (auto _ : state) {
    QPainter painter(&surface);
    qv::PainterCanvas canvas(painter);
    qv::PaintDates(canvas, {size, year, density}, years.Look(), last);
  }
}

/// There and back: two years that are counted, cleared and drawn. Half of it is one switch.
void SwitchYearAndBack(benchmark::State& state) {
  MarkedYears years;
  QImage surface = Surface();
  for (auto _ : state) {
    for (const int shown : {year + 1, year}) {
      surface.fill(Qt::lightGray);
      years.Count(shown);
      QPainter painter(&surface);
      qv::PainterCanvas canvas(painter);
      qv::PaintYear(canvas, {size, shown, density}, years.Look());
    }
  }
}

/// Shows the control, with the texts and the day types of the picture.
void Show(QVCalendar& calendar, const MarkedYears& years) {
  const qv::YearStyle& style = years.Look().style;
  calendar.SetDayTypes(years.DayTypes());
  for (std::size_t i = 0; i < style.monthNames.size(); ++i) {
    calendar.SetMonthName(static_cast<int>(i), style.monthNames[i]);
  }
  for (std::size_t i = 0; i < style.weekdayNames.size(); ++i) {
    calendar.SetWeekdayName(static_cast<int>(i), style.weekdayNames[i]);
  }
  calendar.resize(size.cx, size.cy);
  calendar.show();
  QApplication::processEvents();
}

/// A repaint of the whole year by the control, in its window.
void ControlRepaints(benchmark::State& state) {
  MarkedYears years;
  QVCalendar calendar(nullptr, years.Marks(), qv::ToDateTime({year, 11, 22}));
  Show(calendar, years);
  auto* view = calendar.findChild<qv::YearView*>();
  for (auto _ : state) {
    view->RepaintAll();
    QApplication::processEvents();
  }
}

/// One more date, or one less, of a stroke that the pointer draws over a month.
void ControlDragStep(benchmark::State& state) {
  MarkedYears years;
  QVCalendar calendar(nullptr, years.Marks(), qv::ToDateTime({year, 11, 22}));
  Show(calendar, years);
  auto* view = calendar.findChild<qv::YearView*>();
  const auto send = [view](QEvent::Type type, int day) {
    const QPointF place = view->CellOf({year, 1, day}).center();
    QMouseEvent event(type, place, view->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(view, &event);
    QApplication::processEvents();
  };
  send(QEvent::MouseButtonPress, 1);
  int day = 30;
  for (auto _ : state) {
    day = day == 30 ? 31 : 30;
    send(QEvent::MouseMove, day);
  }
}

/// Each time another year of the control, up to the window's own picture.
void ControlSwitchesYear(benchmark::State& state) {
  MarkedYears years;
  QVCalendar calendar(nullptr, years.Marks(), qv::ToDateTime({year, 11, 22}));
  Show(calendar, years);
  int shown = year;
  for (auto _ : state) {
    shown = shown == year ? year + 1 : year;
    calendar.SetYear(shown);
    QApplication::processEvents();
  }
}

void InMicroseconds(benchmark::internal::Benchmark* timing) {
  timing->Unit(benchmark::kMicrosecond);
}

BENCHMARK(Painter)->Apply(InMicroseconds);
BENCHMARK(Drawing)->Apply(InMicroseconds);
BENCHMARK(DragStep)->Apply(InMicroseconds);
BENCHMARK(SwitchYearAndBack)->Apply(InMicroseconds);
BENCHMARK(ControlRepaints)->Apply(InMicroseconds);
BENCHMARK(ControlDragStep)->Apply(InMicroseconds);
BENCHMARK(ControlSwitchesYear)->Apply(InMicroseconds);

}  // namespace
