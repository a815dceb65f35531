#include "toolkit/LayoutSize.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "toolkit/QVLayout.h"

namespace qv {
namespace {

constexpr LayoutMetrics sample = {
    .standard = 8, .button = 24, .label = 19, .edit = 25, .wide = 30, .labelGap = 3};
constexpr LayoutSize words[] = {LayoutSizeStandard, LayoutSizeLabel, LayoutSizeEdit, LayoutSizeWide,
                                LayoutSizeLabelGap};

TEST(LayoutSize, WordsHaveTheirPixels) {
  EXPECT_EQ(GapPixels(LayoutSizeStandard, sample), 8);
  EXPECT_EQ(ItemPixels(LayoutSizeStandard, sample), 24);
  const std::pair<LayoutSize, int> others[] = {
      {LayoutSizeLabel, 19}, {LayoutSizeEdit, 25}, {LayoutSizeWide, 30}, {LayoutSizeLabelGap, 3}};
  for (const auto& [word, pixels] : others) {
    EXPECT_EQ(GapPixels(word, sample), pixels);
    EXPECT_EQ(ItemPixels(word, sample), pixels);
  }
}

TEST(LayoutSize, PixelCountsComeBack) {
  for (const int pixels : {0, 1, 2, 50, 100, 101, 255, 256, 65536, 16777215}) {
    const LayoutSize size = PixelSize(pixels);
    EXPECT_FALSE(IsShare(size)) << pixels;
    EXPECT_EQ(std::count(std::begin(words), std::end(words), size), 0) << pixels;
    EXPECT_EQ(GapPixels(size, sample), pixels);
    EXPECT_EQ(ItemPixels(size, sample), pixels);
  }
}

TEST(LayoutSize, PixelCountsOutOfRangeAreMovedIntoIt) {
  EXPECT_EQ(PixelSize(-1), PixelSize(0));
  EXPECT_EQ(PixelSize(16777216), PixelSize(16777215));
}

TEST(LayoutSize, OnlyZeroToAHundredAreShares) {
  EXPECT_TRUE(IsShare(0));
  EXPECT_TRUE(IsShare(100));
  EXPECT_FALSE(IsShare(101));
  for (const LayoutSize word : words) {
    EXPECT_FALSE(IsShare(word));
  }
}

TEST(LayoutSize, SharesAndUnknownNumbersHaveNoPixels) {
  for (const LayoutSize size : {0U, 50U, 100U, 101U, 0xFEFFFFFDU, 0xFF000001U}) {
    EXPECT_EQ(GapPixels(size, sample), 0);
    EXPECT_EQ(ItemPixels(size, sample), 0);
  }
}

QFont FontOf(int points) {
  QFont font = QApplication::font();
  font.setPointSize(points);
  return font;
}

class MetricsOfFont : public ::testing::TestWithParam<int> {
 protected:
  MetricsOfFont() { m_window.setFont(FontOf(GetParam())); }

  template <class Control>
  int NaturalHeight(Control control) {
    control.setFont(m_window.font());
    return control.sizeHint().height();
  }

  QWidget m_window;
};

TEST_P(MetricsOfFont, LeaveRoomForEachControl) {
  const LayoutMetrics metrics = MetricsOf(&m_window);
  EXPECT_GE(metrics.button, NaturalHeight(QPushButton(QStringLiteral("Xg"))));
  EXPECT_GE(metrics.label, NaturalHeight(QLabel(QStringLiteral("Xg"))));
  EXPECT_GE(metrics.label, NaturalHeight(QCheckBox(QStringLiteral("Xg"))));
  EXPECT_GE(metrics.edit, NaturalHeight(QLineEdit()));
  QComboBox combo;
  combo.addItem(QStringLiteral("Xg"));
  combo.setFont(m_window.font());
  EXPECT_GE(metrics.edit, combo.sizeHint().height());
}

TEST_P(MetricsOfFont, KeepTheirOrder) {
  const LayoutMetrics metrics = MetricsOf(&m_window);
  EXPECT_GE(metrics.labelGap, 2);
  EXPECT_LT(metrics.labelGap, metrics.standard);
  EXPECT_LT(metrics.standard, metrics.label);
  EXPECT_LT(metrics.label, metrics.edit);
  EXPECT_GE(metrics.wide, metrics.button);
  EXPECT_LE(metrics.button, 2 * metrics.label);
}

INSTANTIATE_TEST_SUITE_P(Points, MetricsOfFont, ::testing::Values(6, 8, 9, 10, 12, 16, 24, 40));

TEST(MetricsOf, GrowWithTheFont) {
  QWidget small;
  small.setFont(FontOf(9));
  QWidget great;
  great.setFont(FontOf(18));
  EXPECT_GT(MetricsOf(&great).standard, MetricsOf(&small).standard);
  EXPECT_GT(MetricsOf(&great).edit, MetricsOf(&small).edit);
}

TEST(MetricsOf, NullStandsForTheApplication) {
  const QWidget window;
  EXPECT_EQ(MetricsOf(nullptr), MetricsOf(&window));
}

TEST(Pixels2Size, GivesTheCountForBothDirections) {
  const auto [width, height] = QVLayout::Pixels2Size(37);
  EXPECT_EQ(ItemPixels(width, sample), 37);
  EXPECT_EQ(ItemPixels(height, sample), 37);
}

TEST(Size2Pixels, GivesTheGapAndTheHeight) {
  QWidget window;
  window.setFont(FontOf(14));
  const LayoutMetrics metrics = MetricsOf(&window);
  EXPECT_EQ(QVLayout::Size2Pixels(LayoutSizeStandard, &window),
            QSize(metrics.standard, metrics.button));
  EXPECT_EQ(QVLayout::Size2Pixels(LayoutSizeWide, &window), QSize(metrics.wide, metrics.wide));
  EXPECT_EQ(QVLayout::Size2Pixels(LayoutSizeWide).height(), MetricsOf(nullptr).wide);
}

TEST(Size2Pixels, TurnsBackWhatPixels2SizeMade) {
  EXPECT_EQ(QVLayout::Size2Pixels(QVLayout::Pixels2Size(31).height), QSize(31, 31));
}

}  // namespace
}  // namespace qv
