#include "toolkit/MaskedIcon.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace qv {
namespace {

/// Two columns: the left one white on top of magenta, the right one magenta on top of blue.
QImage Sample() {
  QImage image(2, 2, QImage::Format_RGB32);
  image.setPixel(0, 0, qRgb(255, 255, 255));
  image.setPixel(0, 1, qRgb(255, 0, 255));
  image.setPixel(1, 0, qRgb(255, 0, 255));
  image.setPixel(1, 1, qRgb(0, 0, 255));
  return image;
}

TEST(MaskedIcon, TheColourAtTheBottomLeftBecomesTransparentEverywhere) {
  const QImage masked = Masked(Sample());
  EXPECT_EQ(qAlpha(masked.pixel(0, 1)), 0);
  EXPECT_EQ(qAlpha(masked.pixel(1, 0)), 0);
  EXPECT_EQ(masked.pixel(0, 0), qRgb(255, 255, 255));
  EXPECT_EQ(masked.pixel(1, 1), qRgb(0, 0, 255));
}

TEST(MaskedIcon, ATransparentCornerLeavesThePictureAsItIs) {
  QImage image = Sample().convertToFormat(QImage::Format_ARGB32);
  image.setPixel(0, 1, qRgba(0, 0, 0, 0));
  EXPECT_EQ(Masked(image), image);
}

TEST(MaskedIcon, AMissingFileGivesANullIcon) {
  EXPECT_TRUE(MaskedIcon(QStringLiteral("/no/such/picture.png")).isNull());
  EXPECT_TRUE(Masked(QImage()).isNull());
}

TEST(MaskedIcon, TheDoubledPictureServesDenseScreens) {
  const QTemporaryDir directory;
  ASSERT_TRUE(Sample().scaled(16, 16).save(directory.filePath("ROW.png")));
  const QIcon plain = MaskedIcon(directory.filePath("ROW.png"));
  EXPECT_EQ(plain.pixmap(QSize(16, 16), 2.0).size(), QSize(16, 16));
  ASSERT_TRUE(Sample().scaled(32, 32).save(directory.filePath("ROW@2x.png")));
  const QIcon dense = MaskedIcon(directory.filePath("ROW.png"));
  EXPECT_EQ(dense.pixmap(QSize(16, 16), 2.0).size(), QSize(32, 32));
  EXPECT_EQ(dense.pixmap(QSize(16, 16), 1.0).size(), QSize(16, 16));
}

}  // namespace
}  // namespace qv
