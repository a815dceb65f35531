#include "toolkit/QVHyperlink.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include "tests/toolkit/PictureFiles.h"

namespace {

class QVHyperlinkTest : public ::testing::Test {
 protected:
  QVHyperlinkTest() {
    m_link.resize(160, 90);
    m_link.SetCaption(QStringLiteral("Calendar"));
    m_link.show();
    m_link.activateWindow();
    m_link.setFocus();
    QApplication::processEvents();
  }

  int ClicksAfterKey(Qt::Key key) {
    const QSignalSpy clicks(&m_link, &QAbstractButton::clicked);
    QTest::keyClick(&m_link, key);
    return static_cast<int>(clicks.count());
  }

  QImage Picture() { return m_link.grab().toImage(); }

  qv::PictureFiles m_files;
  QVHyperlink m_link;
};

TEST_F(QVHyperlinkTest, SpaceAndReturnClick) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    EXPECT_EQ(ClicksAfterKey(key), 1) << key;
  }
}

TEST_F(QVHyperlinkTest, OtherKeysDoNotClick) {
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_Escape, Qt::Key_Tab}) {
    EXPECT_EQ(ClicksAfterKey(key), 0) << key;
  }
}

TEST_F(QVHyperlinkTest, HeldReturnDoesNotRepeat) {
  const QSignalSpy clicks(&m_link, &QAbstractButton::clicked);
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
  QApplication::sendEvent(&m_link, &repeated);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(QVHyperlinkTest, MouseClicks) {
  const QSignalSpy clicks(&m_link, &QAbstractButton::clicked);
  QTest::mouseClick(&m_link, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 1);
}

TEST_F(QVHyperlinkTest, DisabledLinkDoesNothing) {
  m_link.setEnabled(false);
  const QSignalSpy clicks(&m_link, &QAbstractButton::clicked);
  QTest::keyClick(&m_link, Qt::Key_Return);
  QTest::keyClick(&m_link, Qt::Key_Space);
  QTest::mouseClick(&m_link, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 0);
}

TEST_F(QVHyperlinkTest, IsAButtonToAssistiveTools) {
  const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&m_link);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->role(), QAccessible::Button);
  EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Calendar"));
}

TEST_F(QVHyperlinkTest, TabReachesIt) { EXPECT_TRUE(m_link.focusPolicy() & Qt::TabFocus); }

TEST_F(QVHyperlinkTest, FocusIsVisible) {
  ASSERT_TRUE(m_link.hasFocus());
  EXPECT_TRUE(qv::ChangesLook(m_link, [this] { m_link.clearFocus(); }));
}

TEST_F(QVHyperlinkTest, PointerLightsItUp) {
  m_link.setAttribute(Qt::WA_UnderMouse, false);
  EXPECT_TRUE(qv::ChangesLook(m_link, [this] { m_link.setAttribute(Qt::WA_UnderMouse); }));
}

TEST_F(QVHyperlinkTest, DisabledLookDiffersAndIsNotLit) {
  m_link.SetImage(m_files.Write("A-32.png", 32, Qt::red));
  m_link.clearFocus();
  const QImage enabled = Picture();
  m_link.setEnabled(false);
  m_link.setAttribute(Qt::WA_UnderMouse, false);
  const QImage disabled = Picture();
  EXPECT_NE(disabled, enabled);
  EXPECT_EQ(qv::CountPixels(disabled, Qt::red), 0);
  EXPECT_FALSE(qv::ChangesLook(m_link, [this] { m_link.setAttribute(Qt::WA_UnderMouse); }));
}

TEST_F(QVHyperlinkTest, PictureStandsAboveTheCaption) {
  m_link.SetImage(m_files.Write("A-32.png", 32, Qt::red));
  m_link.clearFocus();
  const QImage picture = Picture();
  EXPECT_EQ(qv::CountPixels(picture, Qt::red), 32 * 32);
  EXPECT_GE(qv::CountPixels(picture.copy(0, 0, 160, 60), Qt::red), 32 * 32);
}

TEST_F(QVHyperlinkTest, MissingPictureLeavesTheCaption) {
  m_link.SetImage(m_files.Path("absent.png"));
  EXPECT_TRUE(m_link.icon().isNull());
  EXPECT_EQ(m_link.ShownCaption(), QStringLiteral("Calendar"));
}

TEST_F(QVHyperlinkTest, AnAmpersandMarksTheMnemonicAndTwoAreOne) {
  m_link.SetCaption(QStringLiteral("Days && &hours"));
  EXPECT_EQ(m_link.ShownCaption(), QStringLiteral("Days && &hours"));
  EXPECT_EQ(m_link.accessibleName(), QStringLiteral("Days & hours"));
  EXPECT_EQ(m_link.shortcut(), QKeySequence(Qt::ALT | Qt::Key_H));
}

TEST_F(QVHyperlinkTest, CaptionThatDoesNotFitIsElidedWithATooltip) {
  const auto caption = QStringLiteral("A caption that is wider than this link by far");
  m_link.SetCaption(caption);
  EXPECT_TRUE(m_link.ShownCaption().endsWith(QChar(0x2026)));
  EXPECT_TRUE(m_link.toolTip().contains(caption));
  EXPECT_EQ(m_link.accessibleName(), caption);
  m_link.resize(m_link.sizeHint());
  EXPECT_EQ(m_link.ShownCaption(), caption);
  EXPECT_TRUE(m_link.toolTip().isEmpty());
}

TEST_F(QVHyperlinkTest, CaptionIsReadableOnADarkGround) {
  QPalette dark(QColor(50, 50, 50));
  dark.setColor(QPalette::Link, Qt::blue);
  dark.setColor(QPalette::WindowText, Qt::white);
  m_link.setPalette(dark);
  m_link.clearFocus();
  const QImage picture = Picture();
  EXPECT_EQ(qv::CountPixels(picture, Qt::blue), 0);
  EXPECT_GT(qv::CountPixels(picture, Qt::white), 0);
}

TEST_F(QVHyperlinkTest, CaptionHasTheColourOfLinks) {
  QPalette light(QColor(240, 240, 240));
  light.setColor(QPalette::Link, QColor(0, 0, 200));
  m_link.setPalette(light);
  m_link.clearFocus();
  EXPECT_GT(qv::CountPixels(Picture(), QColor(0, 0, 200)), 0);
}

TEST(QVHyperlinkHint, StaysWhateverTheSizeAndIsShownAsItStands) {
  QVHyperlink link;
  link.SetCaption(QStringLiteral("A caption"));
  link.SetHint(QStringLiteral("not <b>yet</b>"));
  for (const int width : {10, 400}) {
    link.resize(width, 80);
    link.show();
    EXPECT_EQ(link.toolTip(), "<p>not &lt;b&gt;yet&lt;/b&gt;</p>");
  }
}

}  // namespace
