#include "toolkit/ColorSwatch.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include "tests/toolkit/PictureFiles.h"

namespace qv {
namespace {

class ColorSwatchTest : public ::testing::Test {
 protected:
  ColorSwatchTest() {
    m_swatch.resize(30, 20);
    m_swatch.show();
    m_swatch.activateWindow();
    m_swatch.setFocus();
    QApplication::processEvents();
  }

  QImage Picture() { return m_swatch.grab().toImage(); }

  ColorSwatch m_swatch;
};

TEST_F(ColorSwatchTest, IsWhiteAtFirst) { EXPECT_EQ(m_swatch.Colour(), 0xFFFFFFU); }

TEST_F(ColorSwatchTest, ShowsItsColourInAThinFrame) {
  m_swatch.clearFocus();
  m_swatch.SetColour(0x0000FF);
  EXPECT_EQ(m_swatch.Colour(), 0x0000FFU);
  EXPECT_EQ(CountPixels(Picture(), Qt::red), 28 * 18);
  EXPECT_NE(Picture().pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(ColorSwatchTest, FrameSetsOffTheColourOfTheGround) {
  m_swatch.clearFocus();
  const QColor ground = m_swatch.palette().color(QPalette::Window);
  m_swatch.SetColour(0xFFFFFF);
  EXPECT_NE(Picture().pixelColor(0, 10), ground);
  EXPECT_NE(Picture().pixelColor(0, 10), QColor(Qt::white));
}

TEST_F(ColorSwatchTest, FocusIsVisible) {
  ASSERT_TRUE(m_swatch.hasFocus());
  const QImage focused = Picture();
  m_swatch.clearFocus();
  EXPECT_NE(Picture(), focused);
}

TEST_F(ColorSwatchTest, ClickAndSpaceTell) {
  const QSignalSpy clicks(&m_swatch, &QAbstractButton::clicked);
  QTest::mouseClick(&m_swatch, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 1);
  QTest::keyClick(&m_swatch, Qt::Key_Space);
  EXPECT_EQ(clicks.count(), 2);
}

TEST_F(ColorSwatchTest, ReturnIsLeftToTheDialog) {
  const QSignalSpy clicks(&m_swatch, &QAbstractButton::clicked);
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  press.accept();
  QApplication::sendEvent(&m_swatch, &press);
  EXPECT_FALSE(press.isAccepted());
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ColorSwatchTest, TabReachesIt) { EXPECT_TRUE(m_swatch.focusPolicy() & Qt::TabFocus); }

TEST_F(ColorSwatchTest, HasTheNameItIsGiven) {
  m_swatch.setAccessibleName(QStringLiteral("Colour"));
  const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&m_swatch);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->role(), QAccessible::Button);
  EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Colour"));
}

TEST_F(ColorSwatchTest, TooSmallForAColourItIsAllFrame) {
  m_swatch.clearFocus();
  m_swatch.SetColour(0x0000FF);
  m_swatch.resize(2, 2);
  EXPECT_EQ(CountPixels(Picture(), Qt::red), 0);
}

}  // namespace
}  // namespace qv
