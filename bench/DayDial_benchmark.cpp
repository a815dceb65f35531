// What a repaint of the day dial costs, beside the same sectors drawn straight with the painter.
#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <QPolygon>
#include <vector>

#include "discriminator/ValueForms.h"
#include "timestructure/DayDial.h"
#include "timestructure/ui/QVDayCtrl.h"
#include "toolkit/PaintBox.h"
#include "toolkit/PainterCanvas.h"

namespace {

constexpr qv::DialSurroundings surroundings;

void AddHourTypes(qv::XmlNode& hourTypes) {
  for (const wchar_t* color : {L"4E5AE0", L"34B1F2", L"75B05D"}) {
    qv::XmlNode* hour = hourTypes.NewChild(L"hour", nullptr);
    hour->SetValue(L"id", color);
    hour->SetValue(L"color", color);
  }
}

QVWideString Time(int minute) { return qv::TimeText({minute / 60, minute % 60}); }

/// A whole day of so many equal slots, each of another hour type than its neighbours.
void AddSlots(qv::XmlNode& day, const qv::XmlNode& hourTypes, int count) {
  const int length = qv::minutesOfDay / count;
  auto hour = hourTypes.ChildsBegin();
  for (int i = 0; i < count; ++i) {
    qv::XmlNode* slot = day.NewChild(L"slot", nullptr);
    slot->SetValue(L"id", (*hour)->Value(L"id"));
    slot->SetValue(L"from", Time(i * length));
    slot->SetValue(L"to", Time((i + 1) * length));
    hour = ++hour == hourTypes.ChildsEnd() ? hourTypes.ChildsBegin() : hour;
  }
}

/// Gives a dial so many slots.
template <class Dial>
void Fill(Dial& dial, int count) {
  qv::XmlNode hourTypes(L"hourTypes");
  qv::XmlNode day(L"day");
  AddHourTypes(hourTypes);
  AddSlots(day, hourTypes, count);
  dial.Setup(&day, &hourTypes);
}

/// A picture for a dial of the breadth that the benchmark asks for, half as high.
QImage Surface(const benchmark::State& state) {
  const int width = static_cast<int>(state.range(1));
  return {width, width / 2, QImage::Format_RGB32};
}

int SlotsAskedFor(const benchmark::State& state) { return static_cast<int>(state.range(0)); }

/// All that the control draws, into its surface.
void Drawing(benchmark::State& state) {
  qv::DayDial dial;
  Fill(dial, SlotsAskedFor(state));
  QImage surface = Surface(state);
  for (auto _ : state) {
    QPainter painter(&surface);
    qv::PainterCanvas canvas(painter);
    dial.Paint(canvas, surface.width(), surface.height(), surroundings);
  }
}

/// Repaints of the widget: its surface is made, drawn into, and copied.
void Repaint(benchmark::State& state, QImage& screen, QSize size) {
  QVDayCtrl dial;
  Fill(dial, SlotsAskedFor(state));
  dial.resize(size);
  for (auto _ : state) {
    dial.render(&screen, QPoint(), QRegion(), QWidget::RenderFlags());
  }
}

void Control(benchmark::State& state) {
  QImage screen = Surface(state);
  Repaint(state, screen, screen.size());
}

/// On a screen of two dots to the pixel, where the control is half as broad as the picture.
void ControlOfDoubleDensity(benchmark::State& state) {
  QImage screen = Surface(state);
  screen.setDevicePixelRatio(2);
  Repaint(state, screen, screen.size() / 2);
}

struct ColouredPolygon {
  QPolygon points;
  QColor colour;
};

/// Keeps the sectors of a dial as the painter takes them, and nothing else.
class SectorKeeper : public qv::Canvas {
 public:
  std::vector<ColouredPolygon> sectors;

  void Polygon(std::span<const qv::Point> points, qv::Colour, qv::Colour brush) override {
    QPolygon polygon;
    for (const qv::Point point : points) {
      polygon.append({point.x, point.y});
    }
    sectors.push_back({polygon, qv::ToQColor(brush)});
  }
  void Fill(const qv::Rect&, qv::Colour) override {}
  void Rectangle(const qv::Rect&, qv::Colour, qv::Colour) override {}
  void Ellipse(const qv::Rect&, qv::Colour, qv::Colour) override {}
  void Line(qv::Point, qv::Point, qv::Colour) override {}
  void Text(qv::Point, std::wstring_view, int, qv::Colour) override {}
  qv::Extent TextExtent(std::wstring_view, int) const override { return {}; }
};

/// The peer: the same sectors, computed beforehand, without ground, discs, marks and labels.
void Painter(benchmark::State& state) {
  qv::DayDial dial;
  Fill(dial, SlotsAskedFor(state));
  QImage surface = Surface(state);
  SectorKeeper keeper;
  dial.Paint(keeper, surface.width(), surface.height(), surroundings);
  for (auto _ : state) {
    QPainter painter(&surface);
    for (const auto& [points, colour] : keeper.sectors) {
      painter.setPen(colour);
      painter.setBrush(colour);
      painter.drawPolygon(points);
    }
  }
}

void EachSize(benchmark::internal::Benchmark* timing) {
  timing->ArgNames({"slots", "pixels"})->ArgsProduct({{24, 1440}, {200, 600, 2000}});
  timing->Unit(benchmark::kMicrosecond);
}

BENCHMARK(Control)->Apply(EachSize);
BENCHMARK(ControlOfDoubleDensity)->Apply(EachSize);
BENCHMARK(Drawing)->Apply(EachSize);
BENCHMARK(Painter)->Apply(EachSize);

}  // namespace
