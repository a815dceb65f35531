#include "timestructure/ui/TimeGridView.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QImage>
#include <QStyle>
#include <QStyleFactory>
#include <set>

namespace qv {
namespace {

/// A grid in a box of the size that the dialog gives it, as it is painted at this density.
QImage Painted(double density, const QColor& window = QColor(240, 240, 240)) {
  const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("Fusion")));
  QGroupBox box;
  box.setStyle(style.get());
  box.setPalette(QPalette(window));
  box.resize(517, 163);
  TimeGridView view(&box, [] { return TimeGrid::Picture{.dayColour = 0xFFFFFF}; });
  view.FitIntoBox();
  QImage image((QSizeF(box.size()) * density).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(density);
  box.render(&image);
  return image;
}

/// How many dots each run of black is long in the middle line, along or across.
std::multiset<int> BlackRuns(const QImage& image, bool across) {
  const QImage picture = across ? image.transformed(QTransform().rotate(90)) : image;
  std::multiset<int> runs;
  int run = 0;
  // Not in the very middle, where a line of the grid lies.
  const int y = picture.height() * 45 / 100;
  for (int x = 0; x < picture.width(); ++x) {
    const bool isBlack = picture.pixelColor(x, y) == QColor(Qt::black);
    if (!isBlack && run > 0) {
      runs.insert(run);
    }
    run = isBlack ? run + 1 : 0;
  }
  return runs;
}

TEST(TimeGridView, AllLinesHaveTheSameBreadthInDots) {
  const std::pair<double, int> breadths[] = {{1, 1},    {1.25, 1}, {1.5, 1},
                                             {1.75, 2}, {2, 2},    {3, 3}};
  for (const auto& [density, breadth] : breadths) {
    const QImage image = Painted(density);
    EXPECT_EQ(BlackRuns(image, false).count(breadth), 25U) << density;
    EXPECT_EQ(BlackRuns(image, false).size(), 25U) << density;
    EXPECT_EQ(BlackRuns(image, true).count(breadth), 5U) << density;
    EXPECT_EQ(BlackRuns(image, true).size(), 5U) << density;
  }
}

TEST(TimeGridView, AWhiteDayKeepsItsLinesInADarkWindow) {
  EXPECT_EQ(BlackRuns(Painted(1, QColor(0x2b2d30)), false).size(), 25U);
}

TEST(TimeGridView, IsOnTheGroundOfItsBox) {
  const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("Fusion")));
  QGroupBox box;
  box.setStyle(style.get());
  box.setPalette(QPalette(QColor(240, 240, 240)));
  box.resize(517, 163);
  const QPoint belowTheGrid(258, 157);
  EXPECT_EQ(Painted(1).pixelColor(belowTheGrid), box.grab().toImage().pixelColor(belowTheGrid));
}

}  // namespace
}  // namespace qv
