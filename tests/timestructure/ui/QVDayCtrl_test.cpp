#include "timestructure/ui/QVDayCtrl.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QImage>
#include <QPaintEvent>
#include <QStyle>
#include <QStyleFactory>
#include <algorithm>
#include <vector>

#include "tests/toolkit/PictureFiles.h"

namespace {

constexpr COLORREF red = 0x0000FF;
const QColor ground(240, 240, 240);
const QColor darkGround(43, 45, 48);

QPalette PaletteOn(const QColor& colour) {
  QPalette palette;
  palette.setColor(QPalette::Window, colour);
  return palette;
}

/// The dial of a size on a ground, as it is painted at this density.
QImage PictureOf(QVDayCtrl& dial, QSize size, double density = 1, const QColor& colour = ground) {
  dial.resize(size);
  dial.setPalette(PaletteOn(colour));
  QImage image((QSizeF(size) * density).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(density);
  image.fill(Qt::magenta);
  dial.render(&image);
  return image;
}

void SetupWholeDay(QVDayCtrl& dial) {
  const std::vector<BYTE> map(1441, 0);
  dial.Setup(map.data(), static_cast<int>(map.size()));
}

TEST(QVDayCtrl, OfAnySizeCoversAllOfItself) {
  for (const double density : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    for (const QSize size : {QSize(1, 1), QSize(60, 40), QSize(200, 100), QSize(301, 177)}) {
      QVDayCtrl dial;
      EXPECT_EQ(qv::CountPixels(PictureOf(dial, size, density), Qt::magenta), 0) << density;
    }
  }
}

TEST(QVDayCtrl, WithoutSizePaintsNothing) {
  QVDayCtrl dial;
  dial.resize(0, 0);
  QImage image(4, 4, QImage::Format_RGB32);
  image.fill(Qt::magenta);
  dial.render(&image);
  EXPECT_EQ(qv::CountPixels(image, Qt::magenta), 16);
}

TEST(QVDayCtrl, ShowsTwoGreenDiscsAtFirst) {
  QVDayCtrl dial;
  const QImage image = PictureOf(dial, {200, 100});
  EXPECT_EQ(image.pixelColor(46, 49), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(153, 49), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(0, 0), ground);
  EXPECT_EQ(image.pixelColor(18, 40), ground) << "the ring";
}

TEST(QVDayCtrl, ShowsTheColoursThatItIsGiven) {
  QVDayCtrl dial;
  dial.SetBkColor(0xFF0000);
  dial.SetColor(0x00FFFF);
  dial.Setup(BYTE{1});
  const QImage image = PictureOf(dial, {200, 100});
  EXPECT_EQ(image.pixelColor(46, 45), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(18, 40), QColor(Qt::yellow));
  EXPECT_EQ(image.pixelColor(14, 17), ground) << "the corner of the face";
}

/// The pixels of the disc of a face in the middle of `half`.
QRect DiscIn(const QRect& half) {
  const int side = std::min(half.width(), half.height()) - 2 * 14 - 2 * 8;
  return {half.center() - QPoint(side / 2, side / 2), QSize(side, side)};
}

TEST(QVDayCtrl, AWholeDayFillsBothDiscsAtEverySize) {
  for (const double density : {1.0, 2.0}) {
    for (const QSize size : {QSize(200, 100), QSize(150, 200), QSize(600, 240), QSize(2000, 900)}) {
      QVDayCtrl dial;
      SetupWholeDay(dial);
      const QImage image = PictureOf(dial, size, density);
      const double disc = DiscIn({0, 0, size.width() / 2 - 7, size.height()}).width() * density;
      // Green is left at most where the many-sided sector misses the disc by a pixel.
      EXPECT_NEAR(qv::CountPixels(image, Qt::red), 2 * 0.7854 * disc * disc, 8 * density * disc);
      EXPECT_LT(qv::CountPixels(image, Qt::green), 2 * disc);
    }
  }
}

TEST(QVDayCtrl, HourMarksStayVisibleAroundAWholeDay) {
  QVDayCtrl dial;
  SetupWholeDay(dial);
  const QImage image = PictureOf(dial, {200, 100});
  for (int x = 72; x < 79; ++x) {
    EXPECT_EQ(image.pixelColor(x, 49), QColor(Qt::black)) << x;
  }
  EXPECT_EQ(image.pixelColor(79, 49), ground) << "the end of a mark is not part of it";
}

TEST(QVDayCtrl, MorningIsOnTheLeftAndAfternoonOnTheRight) {
  std::vector<BYTE> map(1441, 1);
  std::fill(map.begin() + 180, map.begin() + 360, BYTE{0});
  std::fill(map.begin() + 1260, map.begin() + 1440, BYTE{0});
  QVDayCtrl dial;
  dial.Setup(map.data(), static_cast<int>(map.size()));
  const QImage image = PictureOf(dial, {200, 100});
  const QPoint fourOnTheLeft(58, 58);
  const QPoint tenOnTheRight(143, 42);
  EXPECT_EQ(image.pixelColor(fourOnTheLeft), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(tenOnTheRight), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(fourOnTheLeft + QPoint(107, 0)), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(tenOnTheRight - QPoint(107, 0)), QColor(Qt::green));
}

TEST(QVDayCtrl, InkIsLegibleOnItsGround) {
  QVDayCtrl dial;
  const QImage light = PictureOf(dial, {200, 100}, 1, ground);
  EXPECT_EQ(light.pixelColor(75, 49), QColor(Qt::black));
  EXPECT_EQ(qv::CountPixels(light, Qt::white), 0);
  const QImage dark = PictureOf(dial, {200, 100}, 1, darkGround);
  EXPECT_EQ(dark.pixelColor(75, 49), QColor(Qt::white));
  EXPECT_EQ(dark.pixelColor(0, 0), darkGround);
  EXPECT_EQ(qv::CountPixels(dark, Qt::black), 0);
}

TEST(QVDayCtrl, IsOnTheGroundOfItsParent) {
  QWidget parent;
  parent.setPalette(PaletteOn(darkGround));
  auto* dial = new QVDayCtrl(&parent);
  dial->resize(200, 100);
  EXPECT_EQ(dial->grab().toImage().pixelColor(0, 0), darkGround);
}

TEST(QVDayCtrl, IsDrawnWithEveryDotOfADenseScreen) {
  QVDayCtrl dial;
  SetupWholeDay(dial);
  const QImage dense = PictureOf(dial, {200, 100}, 2);
  QImage enlarged = PictureOf(dial, {200, 100}).scaled(400, 200);
  EXPECT_EQ(dense.pixelColor(150, 100), QColor(Qt::black)) << "a mark is two dots broad";
  EXPECT_EQ(dense.pixelColor(150, 101), QColor(Qt::black));
  int differing = 0;
  for (int x = 0; x < 400; ++x) {
    for (int y = 0; y < 200; ++y) {
      differing += dense.pixelColor(x, y) == enlarged.pixelColor(x, y) ? 0 : 1;
    }
  }
  EXPECT_GT(differing, 100);
}

/// How long the runs of equal first coloured dots are, line by line, over the upper left quarter
/// of the disc in a face: the steps of its rim where it is rather steep than level.
std::vector<int> StepsOfRim(const QImage& image, const QColor& colour) {
  std::vector<int> steps;
  int before = -1;
  for (int y = 0; y < image.height() / 2; ++y) {
    int x = 0;
    while (x < image.width() / 2 && image.pixelColor(x, y) != colour) {
      ++x;
    }
    if (x < image.width() / 2 && before >= 0) {
      steps.push_back(before - x);
    }
    before = x < image.width() / 2 ? x : -1;
  }
  return steps;
}

TEST(QVDayCtrl, ARimHasStepsOfOneDot) {
  for (const double density : {1.5, 2.0, 3.0}) {
    QVDayCtrl dial;
    SetupWholeDay(dial);
    const QImage image = PictureOf(dial, {200, 100}, density);
    const auto steps = StepsOfRim(image, Qt::red);
    // Below 10:30 a rim is steeper than level: each line goes one dot further at most.
    const auto steep = steps.end() - static_cast<int>(24 * density * 0.6);
    EXPECT_LE(*std::max_element(steep, steps.end()), 1) << density;
    EXPECT_GT(std::count(steep, steps.end(), 1), 3) << density;
  }
}

TEST(QVDayCtrl, NothingButLettersIsSmoothed) {
  QVDayCtrl dial;
  SetupWholeDay(dial);
  const QImage image = PictureOf(dial, {200, 100}, 1.5);
  const QImage disc = image.copy(QRect(33, 38, 73, 73));
  const auto plain = qv::CountPixels(disc, Qt::red) + qv::CountPixels(disc, Qt::black) +
                     qv::CountPixels(disc, Qt::green) + qv::CountPixels(disc, ground);
  EXPECT_EQ(plain, disc.width() * disc.height());
}

TEST(QVDayCtrl, ShowsEachDotAlsoWhereItsCornerIsInTheMiddleOfOne) {
  QWidget parent;
  auto* dial = new QVDayCtrl(&parent);
  dial->move(11, 7);
  SetupWholeDay(*dial);
  for (const double density : {1.25, 1.5}) {
    QVDayCtrl alone;
    SetupWholeDay(alone);
    const QImage expected = PictureOf(alone, {200, 100}, density);
    dial->resize(200, 100);
    parent.setPalette(PaletteOn(ground));
    parent.resize(300, 200);
    QImage image(parent.size() * density, QImage::Format_RGB32);
    image.setDevicePixelRatio(density);
    parent.render(&image);
    const QPoint corner = (QPointF(11, 7) * density).toPoint();
    EXPECT_EQ(image.copy(QRect(corner, expected.size()).adjusted(2, 2, -2, -2)),
              expected.copy(expected.rect().adjusted(2, 2, -2, -2)))
        << density;
  }
}

TEST(QVDayCtrl, InABoxIsOnItsGround) {
  const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("Fusion")));
  QGroupBox box;
  box.setStyle(style.get());
  box.resize(300, 200);
  QVDayCtrl dial(&box);
  dial.setGeometry(20, 40, 200, 100);
  const QImage image = box.grab().toImage();
  EXPECT_EQ(image.pixelColor(21, 41), image.pixelColor(250, 150)) << "inside the box, beside it";
}

TEST(QVDayCtrl, OfItsOwnSizeHasRoomForItsLabels) {
  QVDayCtrl dial;
  const QImage image = PictureOf(dial, dial.sizeHint());
  for (const int x : {0, image.width() - 1}) {
    for (int y = 0; y < image.height(); ++y) {
      EXPECT_EQ(image.pixelColor(x, y), ground) << x << "," << y;
    }
  }
}

/// Counts the paint events of the widgets that it watches.
class PaintCounter : public QObject {
 public:
  int paints = 0;

  bool eventFilter(QObject*, QEvent* event) override {
    paints += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
};

TEST(QVDayCtrl, SettersDontRepaint) {
  QVDayCtrl dial;
  dial.resize(200, 100);
  dial.show();
  QApplication::processEvents();
  PaintCounter counter;
  dial.installEventFilter(&counter);
  dial.SetBkColor(0);
  dial.SetColor(0);
  dial.Setup(BYTE{1});
  SetupWholeDay(dial);
  dial.Setup(static_cast<const XmlDocument::XmlNode*>(nullptr), nullptr);
  QApplication::processEvents();
  EXPECT_EQ(counter.paints, 0);
  dial.update();
  QApplication::processEvents();
  EXPECT_EQ(counter.paints, 1);
}

/// A window that refreshes its dial whenever it is painted.
class RefreshingParent : public QWidget {
 public:
  QVDayCtrl* dial = new QVDayCtrl(this);

 protected:
  void paintEvent(QPaintEvent*) override { dial->update(); }
};

TEST(QVDayCtrl, IsNotPaintedForEverUnderAParentThatRefreshesIt) {
  RefreshingParent parent;
  parent.dial->setGeometry(10, 10, 200, 100);
  parent.resize(220, 120);
  parent.show();
  PaintCounter counter;
  parent.installEventFilter(&counter);
  for (int round = 0; round < 20; ++round) {
    QApplication::processEvents();
  }
  EXPECT_GT(counter.paints, 0);
  EXPECT_LT(counter.paints, 5);
}

TEST(QVDayCtrl, TakesADayWithItsHourTypes) {
  XmlDocument document;
  ASSERT_TRUE(
      document.Parse("<main><day><slot><id>a</id><from>00:00</from><to>24:00</to></slot></day>"
                     "<hourTypes><hour><id>a</id><color>FF0000</color></hour></hourTypes></main>"));
  const XmlDocument::XmlNode* root = document.Root();
  QVDayCtrl dial;
  dial.Setup(root->Node(L"day"), root->Node(L"hourTypes"));
  EXPECT_EQ(PictureOf(dial, {200, 100}).pixelColor(40, 60), QColor(Qt::blue));
  dial.Setup(root->Node(L"day"), nullptr);
  EXPECT_EQ(PictureOf(dial, {200, 100}).pixelColor(40, 60), QColor(Qt::red));
  dial.Setup(nullptr, root->Node(L"hourTypes"));
  EXPECT_EQ(PictureOf(dial, {200, 100}).pixelColor(40, 60), QColor(Qt::green));
}

}  // namespace
