// What a repaint of the grid of a slot costs, beside its selection drawn straight with the painter.
#include <benchmark/benchmark.h>

#include <QGroupBox>
#include <QImage>
#include <QPainter>
#include <vector>

#include "timestructure/ui/TimeGridView.h"
#include "toolkit/PainterCanvas.h"

namespace {

constexpr qv::TimeGrid::Picture allDay{
    .dayColour = 0x80CCFF, .selection = qv::MinuteRange{0, 24 * 60}, .selectionColour = 0x0000FF};

/// A picture for a box of the breadth that the benchmark asks for, half as high.
QImage Surface(const benchmark::State& state) {
  const int width = static_cast<int>(state.range(0));
  return {width, width / 2, QImage::Format_RGB32};
}

/// The rectangles of all minutes of a day.
std::vector<QRectF> Minutes(const QSize& size) {
  std::vector<QRectF> minutes;
  for (int minute = 0; minute < 24 * 60; ++minute) {
    minutes.emplace_back(size.width() / 24.0 * (minute / 60), size.height() / 60.0 * (minute % 60),
                         size.width() / 24.0, size.height() / 60.0);
  }
  return minutes;
}

/// The selection alone, computed beforehand.
void Painter(benchmark::State& state) {
  QImage surface = Surface(state);
  const auto minutes = Minutes(surface.size());
  for (auto _ : state) {
    QPainter painter(&surface);
    for (const QRectF& minute : minutes) {
      painter.fillRect(minute, Qt::red);
    }
  }
}

/// All that the grid draws, into its surface.
void Drawing(benchmark::State& state) {
  QImage surface = Surface(state);
  const qv::TimeGrid grid(surface.width(), surface.height());
  for (auto _ : state) {
    QPainter painter(&surface);
    qv::PainterCanvas canvas(painter);
    grid.Paint(canvas, allDay);
  }
}

/// Repaints of the widget: its surface is made, drawn into, and copied.
void View(benchmark::State& state) {
  QImage screen = Surface(state);
  QGroupBox box;
  box.resize(screen.size());
  qv::TimeGridView view(&box, [] { return allDay; });
  view.FitIntoBox();
  for (auto _ : state) {
    view.render(&screen, QPoint(), QRegion(), QWidget::RenderFlags());
  }
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Unit(benchmark::kMillisecond)->Arg(500)->Arg(1000)->Arg(2000);
}

BENCHMARK(Painter)->Apply(Sizes);
BENCHMARK(Drawing)->Apply(Sizes);
BENCHMARK(View)->Apply(Sizes);

}  // namespace
