#include "toolkit/PainterCanvas.h"

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cstdlib>
#include <functional>

#include "tests/toolkit/PictureFiles.h"

namespace qv {
namespace {

constexpr Colour black = 0x000000;
constexpr Colour red = 0x0000FF;
constexpr int side = 40;

/// What `draw` paints on a white square, with lines of this breadth.
QImage Painted(const std::function<void(Canvas&)>& draw, int lineBreadth = 1) {
  QImage image(side, side, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PainterCanvas canvas(painter, lineBreadth);
  draw(canvas);
  return image;
}

/// The least rectangle of dots around all that isn't white.
QRect Inked(const QImage& image) {
  QRect inked;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      inked |= image.pixelColor(x, y) == Qt::white ? QRect() : QRect(x, y, 1, 1);
    }
  }
  return inked;
}

bool IsSymmetric(const QImage& image, const QRect& area) {
  const QImage part = image.copy(area);
  return part == part.mirrored(true, false) && part == part.mirrored(false, true);
}

TEST(PainterCanvas, FillLeavesOutTheRightAndBottomEdges) {
  const QImage image = Painted([](Canvas& canvas) { canvas.Fill({3, 4, 11, 9}, red); });
  EXPECT_EQ(Inked(image), QRect(3, 4, 8, 5));
  EXPECT_EQ(CountPixels(image, Qt::red), 8 * 5);
}

TEST(PainterCanvas, RectangleHasItsOutlineInside) {
  const QImage image = Painted([](Canvas& canvas) { canvas.Rectangle({3, 4, 11, 9}, black, red); });
  EXPECT_EQ(Inked(image), QRect(3, 4, 8, 5));
  EXPECT_EQ(CountPixels(image, Qt::red), 6 * 3);
  EXPECT_EQ(CountPixels(image, Qt::black), 8 * 5 - 6 * 3);
}

TEST(PainterCanvas, EllipseTouchesEachEdgeFromInside) {
  for (const int size : {2, 3, 8, 11, 30}) {
    const auto draw = [size](Canvas& canvas) {
      canvas.Ellipse({5, 5, 5 + size, 5 + size}, black, red);
    };
    const QImage image = Painted(draw);
    EXPECT_EQ(Inked(image), QRect(5, 5, size, size));
    EXPECT_TRUE(IsSymmetric(image, Inked(image))) << size;
  }
}

TEST(PainterCanvas, EmptyAreasDrawNothing) {
  const Rect areas[] = {{5, 5, 5, 9}, {5, 5, 9, 5}, {9, 5, 5, 9}, {5, 9, 9, 5}, {9, 9, 5, 5}};
  for (const Rect& area : areas) {
    const QImage image = Painted([&area](Canvas& canvas) {
      canvas.Fill(area, red);
      canvas.Rectangle(area, red, red);
      canvas.Ellipse(area, red, red);
    });
    EXPECT_TRUE(Inked(image).isNull());
  }
}

TEST(PainterCanvas, AreasOfOnePixelAreOutline) {
  const QImage image = Painted([](Canvas& canvas) {
    canvas.Rectangle({2, 2, 3, 3}, black, red);
    canvas.Ellipse({6, 2, 7, 3}, black, red);
  });
  EXPECT_EQ(CountPixels(image, Qt::black), 2);
  EXPECT_EQ(Inked(image), QRect(2, 2, 5, 1));
}

TEST(PainterCanvas, PolygonIncludesItsPoints) {
  const Point points[] = {{3, 3}, {13, 3}, {13, 8}, {3, 8}};
  const QImage image = Painted([&](Canvas& canvas) { canvas.Polygon(points, black, red); });
  EXPECT_EQ(Inked(image), QRect(3, 3, 11, 6));
  EXPECT_EQ(CountPixels(image, Qt::red), 9 * 4);
}

TEST(PainterCanvas, PolygonOfTwoPointsIsALineWithBothEnds) {
  const Point points[] = {{10, 12}, {10, 4}};
  const QImage image = Painted([&](Canvas& canvas) { canvas.Polygon(points, red, black); });
  EXPECT_EQ(CountPixels(image, Qt::red), 9);
  EXPECT_EQ(Inked(image), QRect(10, 4, 1, 9));
}

TEST(PainterCanvas, PolygonOfNoPointsDrawsNothing) {
  const QImage image = Painted([](Canvas& canvas) { canvas.Polygon({}, red, red); });
  EXPECT_TRUE(Inked(image).isNull());
}

/// A line from the middle of the square in each direction of a clock's rim.
class LineInEveryDirection : public testing::TestWithParam<Point> {};

TEST_P(LineInEveryDirection, StartsAtItsStartAndStopsBeforeItsEnd) {
  const Point from{20, 20};
  const Point to{from.x + GetParam().x, from.y + GetParam().y};
  const QImage image = Painted([&](Canvas& canvas) { canvas.Line(from, to, red); });
  EXPECT_EQ(CountPixels(image, Qt::red), std::max(std::abs(GetParam().x), std::abs(GetParam().y)));
  EXPECT_EQ(image.pixelColor(from.x, from.y), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(to.x, to.y), QColor(Qt::white));
}

TEST_P(LineInEveryDirection, IsAsBroadAsTheSurfaceSays) {
  const Point from{20, 20};
  const Point to{from.x + GetParam().x, from.y + GetParam().y};
  const int length = std::max(std::abs(GetParam().x), std::abs(GetParam().y));
  for (const int breadth : {2, 3}) {
    const auto draw = [&](Canvas& canvas) { canvas.Line(from, to, red); };
    EXPECT_EQ(CountPixels(Painted(draw, breadth), Qt::red), breadth * length);
  }
}

INSTANTIATE_TEST_SUITE_P(PainterCanvas, LineInEveryDirection,
                         testing::Values(Point{9, 0}, Point{-9, 0}, Point{0, 9}, Point{0, -9},
                                         Point{9, 9}, Point{-9, 9}, Point{9, -9}, Point{-9, -9},
                                         Point{9, 4}, Point{-9, 4}, Point{4, -9}, Point{-4, -9},
                                         Point{1, 0}, Point{0, -1}));

TEST(PainterCanvas, LineWithoutLengthDrawsNothing) {
  const QImage image = Painted([](Canvas& canvas) { canvas.Line({9, 9}, {9, 9}, red); });
  EXPECT_TRUE(Inked(image).isNull());
}

TEST(PainterCanvas, ABroadLineLiesToTheRightOfItsPlaceOrBelow) {
  const QImage level = Painted([](Canvas& canvas) { canvas.Line({10, 5}, {16, 5}, red); }, 2);
  EXPECT_EQ(Inked(level), QRect(10, 5, 6, 2));
  const QImage upright = Painted([](Canvas& canvas) { canvas.Line({20, 8}, {20, 2}, red); }, 2);
  EXPECT_EQ(Inked(upright), QRect(20, 3, 2, 6));
}

TEST(PainterCanvas, OnlyLinesAreBroad) {
  const auto draw = [](Canvas& canvas) { canvas.Rectangle({3, 4, 11, 9}, black, red); };
  EXPECT_EQ(Painted(draw, 3), Painted(draw));
}

TEST(PainterCanvas, TextStandsInsideItsExtentAndLeavesTheGround) {
  Extent extent;
  const QImage image = Painted([&extent](Canvas& canvas) {
    extent = canvas.TextExtent(L"23", 14);
    canvas.Fill({0, 0, side, 20}, red);
    canvas.Text({4, 3}, L"23", 14, black);
  });
  EXPECT_EQ(extent.cy, 14);
  EXPECT_GT(extent.cx, 8);
  EXPECT_LT(extent.cx, 20);
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(4, 3), QColor(Qt::red));
  int dark = 0;  // the edges of letters are smoothed, and so may be all of a thin one
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y) {
      dark += image.pixelColor(x, y).lightness() < QColor(Qt::red).lightness() / 2 ? 1 : 0;
    }
  }
  EXPECT_GT(dark, 10);
}

TEST(PainterCanvas, LettersFillNoMoreThanTheHeightAskedFor) {
  for (const int height : {8, 12, 14, 30}) {
    const QImage image = Painted([height](Canvas& canvas) {
      canvas.Text({2, 5}, L"gA1", height, black);
    });
    EXPECT_TRUE(QRect(0, 5, side, height).contains(Inked(image))) << height;
  }
}

TEST(PainterCanvas, ALabelsFontIsExactlyItsHeight) {
  QImage image(side, side, QImage::Format_RGB32);
  QPainter painter(&image);
  PainterCanvas canvas(painter);
  canvas.Text({0, 0}, L"1", 14, black);
  const QFontMetrics metrics(painter.font());
  EXPECT_EQ(metrics.ascent() + metrics.descent(), 14);
}

TEST(PainterCanvas, ATextHasItsHeightWhateverWasMeasuredOrDrawnBefore) {
  const auto draw = [](Canvas& canvas) { canvas.Text({2, 5}, L"8", 12, black); };
  EXPECT_EQ(Painted([&](Canvas& canvas) {
              canvas.TextExtent(L"8", 12);
              canvas.TextExtent(L"8", 30);
              draw(canvas);
            }),
            Painted(draw));
  EXPECT_EQ(Painted([&](Canvas& canvas) {
              canvas.Text({2, 5}, L"8", 30, 0xFFFFFF);
              draw(canvas);
            }),
            Painted(draw));
}

TEST(PainterCanvas, LeavesThePainterAsItWas) {
  QImage image(side, side, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::green);
  const QTransform before = painter.transform();
  {
    PainterCanvas canvas(painter);
    canvas.Line({0, 0}, {5, 5}, red);
    canvas.Text({0, 0}, L"1", 14, black);
  }
  EXPECT_EQ(painter.transform(), before);
  EXPECT_EQ(painter.pen(), QPen(Qt::green));
  EXPECT_TRUE(painter.testRenderHint(QPainter::Antialiasing));
}

}  // namespace
}  // namespace qv
