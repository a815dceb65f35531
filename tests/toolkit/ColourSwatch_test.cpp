#include "toolkit/ColourSwatch.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include "tests/toolkit/PictureFiles.h"

namespace qv {
namespace {

class ColourSwatchTest : public ::testing::Test {
 protected:
  ColourSwatchTest() {
    m_swatch.resize(30, 20);
    m_swatch.show();
    m_swatch.activateWindow();
    m_swatch.setFocus();
    QApplication::processEvents();
  }

  QImage Picture() { return m_swatch.grab().toImage(); }

  ColourSwatch m_swatch;
};

TEST_F(ColourSwatchTest, IsWhiteAtFirst) { EXPECT_EQ(m_swatch.ShownColour(), 0xFFFFFFU); }

TEST_F(ColourSwatchTest, ShowsItsColourInAThinFrame) {
  m_swatch.clearFocus();
  m_swatch.SetColour(0x0000FF);
  EXPECT_EQ(m_swatch.ShownColour(), 0x0000FFU);
  EXPECT_EQ(CountPixels(Picture(), Qt::red), 28 * 18);
  EXPECT_NE(Picture().pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(ColourSwatchTest, FrameSetsOffTheColourOfTheGround) {
  m_swatch.clearFocus();
  const QColor ground = m_swatch.palette().color(QPalette::Window);
  m_swatch.SetColour(0xFFFFFF);
  EXPECT_NE(Picture().pixelColor(0, 10), ground);
  EXPECT_NE(Picture().pixelColor(0, 10), QColor(Qt::white));
}

TEST_F(ColourSwatchTest, FocusIsVisible) {
  ASSERT_TRUE(m_swatch.hasFocus());
  EXPECT_TRUE(ChangesLook(m_swatch, [this] { m_swatch.clearFocus(); }));
}

TEST_F(ColourSwatchTest, ClickAndSpaceTell) {
  const QSignalSpy clicks(&m_swatch, &QAbstractButton::clicked);
  QTest::mouseClick(&m_swatch, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 1);
  QTest::keyClick(&m_swatch, Qt::Key_Space);
  EXPECT_EQ(clicks.count(), 2);
}

TEST_F(ColourSwatchTest, ReturnIsLeftToTheDialog) {
  const QSignalSpy clicks(&m_swatch, &QAbstractButton::clicked);
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  press.accept();
  QApplication::sendEvent(&m_swatch, &press);
  EXPECT_FALSE(press.isAccepted());
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ColourSwatchTest, TabReachesIt) { EXPECT_TRUE(m_swatch.focusPolicy() & Qt::TabFocus); }

TEST_F(ColourSwatchTest, HasTheNameItIsGiven) {
  m_swatch.setAccessibleName(QStringLiteral("Colour"));
  const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&m_swatch);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->role(), QAccessible::Button);
  EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Colour"));
}

TEST_F(ColourSwatchTest, TooSmallForAColourItIsAllFrame) {
  m_swatch.clearFocus();
  m_swatch.SetColour(0x0000FF);
  m_swatch.resize(2, 2);
  EXPECT_EQ(CountPixels(Picture(), Qt::red), 0);
}

TEST_F(ColourSwatchTest, TellsItsValue) {
  EXPECT_EQ(m_swatch.accessibleDescription(), "#FFFFFF");
  m_swatch.SetColour(0x0080FF);
  EXPECT_EQ(m_swatch.toolTip(), "<p>#FF8000</p>");
  EXPECT_EQ(m_swatch.accessibleDescription(), "#FF8000");
  EXPECT_EQ(m_swatch.cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(ColourSwatchTest, AClickOnItsLabelIsOneOnIt) {
  QLabel label;
  label.resize(80, 20);
  m_swatch.TakeLabel(&label);
  const QSignalSpy clicks(&m_swatch, &QAbstractButton::clicked);
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_EQ(clicks.size(), 1);
  QTest::mouseClick(&label, Qt::RightButton);
  QTest::mousePress(&label, Qt::LeftButton);
  QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(200, 5));
  EXPECT_EQ(clicks.size(), 1) << "neither the other button, nor a release elsewhere";
  EXPECT_EQ(label.cursor().shape(), Qt::PointingHandCursor);
}

}  // namespace
}  // namespace qv
