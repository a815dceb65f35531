#include "toolkit/PaintBox.h"

#include <gtest/gtest.h>

#include "tests/toolkit/PictureFiles.h"

namespace {

struct ColourCase {
  unsigned long number;
  QColor colour;
};

const ColourCase colours[] = {
    {0x0000FF, QColor(255, 0, 0)},     {0x00FF00, QColor(0, 255, 0)},
    {0xFF0000, QColor(0, 0, 255)},     {0x000000, QColor(0, 0, 0)},
    {0xFFFFFF, QColor(255, 255, 255)}, {0x123456, QColor(0x56, 0x34, 0x12)},
    {0xFF0000FF, QColor(255, 0, 0)}};

TEST(PaintBox, FillsThePictureWithTheColour) {
  for (const auto& [number, colour] : colours) {
    QPixmap picture;
    ASSERT_TRUE(PaintBox(&picture, number, 5, 3)) << number;
    EXPECT_EQ(picture.size(), QSize(5, 3));
    EXPECT_EQ(qv::CountPixels(picture.toImage(), colour), 15) << number;
  }
}

TEST(PaintBox, ReplacesAnEarlierPicture) {
  QPixmap picture;
  ASSERT_TRUE(PaintBox(&picture, 0x0000FF, 5, 3));
  ASSERT_TRUE(PaintBox(&picture, 0xFF0000, 2, 2));
  EXPECT_EQ(picture.size(), QSize(2, 2));
  EXPECT_EQ(qv::CountPixels(picture.toImage(), Qt::blue), 4);
}

TEST(PaintBox, RefusesNullAndEmptySizes) {
  EXPECT_FALSE(PaintBox(nullptr, 0, 5, 3));
  const QSize sizes[] = {{0, 3}, {5, 0}, {-1, 3}, {5, -1}};
  for (const QSize size : sizes) {
    QPixmap picture(7, 7);
    EXPECT_FALSE(PaintBox(&picture, 0, size.width(), size.height()));
    EXPECT_EQ(picture.size(), QSize(7, 7));
  }
}

TEST(ToQColor, AndFromQColorAreInverse) {
  for (const qv::Colour number : {0x0000FFU, 0x00FF00U, 0xFF0000U, 0U, 0xFFFFFFU, 0x123456U}) {
    EXPECT_EQ(qv::FromQColor(qv::ToQColor(number)), number);
  }
  EXPECT_EQ(qv::FromQColor(QColor(1, 2, 3)), 0x030201U);
}

}  // namespace
