#include "toolkit/ColourIcons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyle>

#include "tests/toolkit/PictureFiles.h"
#include "toolkit/PaintBox.h"

namespace qv {
namespace {

QImage Box(qv::Colour colour) {
  return ColourIcon(colour, QSize(16, 14)).pixmap(QSize(16, 14), 1.0).toImage();
}

TEST(ColourIcon, IsOneOpaqueColour) {
  const std::pair<qv::Colour, QColor> colours[] = {{0x0000FF, QColor(255, 0, 0)},
                                                   {0xFF0000, QColor(0, 0, 255)},
                                                   {0x000000, QColor(0, 0, 0)},
                                                   {0x80FFFF, QColor(255, 255, 128)}};
  for (const auto& [number, colour] : colours) {
    EXPECT_EQ(Box(number).size(), QSize(16, 14));
    EXPECT_EQ(CountPixels(Box(number), colour), 16 * 14) << number;
  }
}

TEST(ColourIcon, WhiteIsMaskedWithBlackAndSoStaysWhiteInsideAThinOutline) {
  EXPECT_EQ(CountPixels(Box(0xFFFFFF), Qt::white), 14 * 12);
  EXPECT_EQ(CountPixels(Box(0xFFFFFF), Qt::gray), 16 * 14 - 14 * 12);
}

TEST(ColourIcon, WhatIsNearlyWhiteHasAnOutlineToo) {
  for (const qv::Colour colour : {0xFEFFFFU, 0xF0F0F0U, 0xE0FFFFU}) {
    EXPECT_EQ(CountPixels(Box(colour), ToQColor(colour)), 14 * 12) << colour;
  }
  EXPECT_EQ(CountPixels(Box(0xEFEFEF), ToQColor(0xEFEFEF)), 16 * 14);
}

TEST(ColourIcon, WhiteOfAnotherNumberIsMaskedAway) {
  EXPECT_EQ(CountPixels(Box(0x01FFFFFF), Qt::transparent), 16 * 14);
}

TEST(ColourIcon, EmptySizeGivesNoIcon) {
  EXPECT_TRUE(ColourIcon(0x0000FF, QSize()).isNull());
  EXPECT_TRUE(ColourIcon(0x0000FF, QSize(16, 0)).isNull());
}

TEST(SmallIconSize, IsTheOneOfTheStyle) {
  const QWidget widget;
  const int side = QApplication::style()->pixelMetric(QStyle::PM_SmallIconSize);
  EXPECT_EQ(SmallIconSize(&widget), QSize(side, side));
  EXPECT_EQ(SmallIconSize(nullptr), QSize(side, side));
}

}  // namespace
}  // namespace qv
