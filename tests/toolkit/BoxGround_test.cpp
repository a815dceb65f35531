#include "toolkit/BoxGround.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QImage>
#include <QStyle>
#include <QStyleFactory>

namespace qv {
namespace {

/// A window of a style that shades its boxes, with a box in it.
class BoxGround : public testing::Test {
 protected:
  void SetUp() override {
    window.resize(400, 300);
    box.setGeometry(50, 50, 200, 150);
    for (QWidget* widget : {&window, static_cast<QWidget*>(&box)}) {
      widget->setStyle(style.get());
    }
  }

  /// What the window shows there.
  QColor Shown(QPoint place) { return window.grab().toImage().pixelColor(place); }

  std::unique_ptr<QStyle> style{QStyleFactory::create(QStringLiteral("Fusion"))};
  QWidget window;
  QGroupBox box{&window};
};

TEST_F(BoxGround, InsideABoxIsItsShade) {
  QWidget inside(&box);
  inside.setGeometry(10, 40, 100, 50);
  EXPECT_EQ(GroundOf(inside), Shown({100, 120}));
  EXPECT_NE(GroundOf(inside), Shown({300, 250})) << "the window's";
}

TEST_F(BoxGround, OverABoxBesideItIsItsShadeToo) {
  QWidget over(&window);
  over.setGeometry(60, 90, 100, 50);
  EXPECT_EQ(GroundOf(over), Shown({200, 160}));
  EXPECT_NE(GroundOf(over), Shown({300, 250}));
}

TEST_F(BoxGround, DeepInABoxIsItsShadeToo) {
  QWidget frame(&box);
  frame.setGeometry(10, 40, 100, 50);
  QWidget inside(&frame);
  inside.setGeometry(5, 5, 10, 10);
  EXPECT_EQ(GroundOf(inside), GroundOf(frame));
}

TEST_F(BoxGround, ElsewhereIsTheWindow) {
  QWidget beside(&window);
  beside.setGeometry(240, 90, 100, 50);
  EXPECT_EQ(GroundOf(beside), Shown({300, 250}));
  EXPECT_EQ(GroundOf(window), window.palette().color(QPalette::Window));
  const QWidget alone;
  EXPECT_EQ(GroundOf(alone), alone.palette().color(QPalette::Window));
}

TEST_F(BoxGround, ABoxWithoutAFrameHasNoShade) {
  box.setFlat(true);
  QWidget inside(&box);
  EXPECT_EQ(GroundOf(inside), Shown({300, 250}));
}

TEST_F(BoxGround, ABoxWithoutSizeHasNone) {
  box.resize(0, 0);
  QWidget inside(&box);
  EXPECT_EQ(GroundOf(inside), window.palette().color(QPalette::Window));
}

}  // namespace
}  // namespace qv
