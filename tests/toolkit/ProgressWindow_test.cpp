#include "toolkit/ProgressWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "toolkit/ProgressDialog.h"

namespace qv {
namespace {

class ProgressWindowTest : public testing::Test {
 protected:
  ProgressWindowTest() { texts.additions = {Text::ReadingDiscriminators, Text::ReadingProgress}; }

  static ProgressDialog* Shown() { return qobject_cast<ProgressDialog*>(TopWindow()); }

  /// Steps until the window is up.
  static void WaitForWindow(ProgressWindow& progress) {
    for (int i = 0; i < 200 && !Shown(); ++i) {
      QTest::qSleep(10);
      ASSERT_TRUE(progress.Advance(30, 100));
    }
    ASSERT_TRUE(Shown());
  }

  /// Steps after a pause in which the window wants to be brought up to date.
  static bool StepLater(ProgressWindow& progress) {
    QTest::qSleep(60);
    return progress.Advance(40, 100);
  }

  NumberTexts texts;
};

TEST_F(ProgressWindowTest, ShortWorkShowsNothing) {
  ProgressWindow progress(nullptr, texts, ProgressWindow::Cancel::Offered);
  EXPECT_TRUE(progress.Advance(0, 10));
  EXPECT_TRUE(progress.Advance(9, 10));
  EXPECT_FALSE(Shown());
}

TEST_F(ProgressWindowTest, LongWorkShowsHowFarItHasCome) {
  ProgressWindow progress(nullptr, texts, ProgressWindow::Cancel::Offered);
  WaitForWindow(progress);
  auto* bar = Shown()->findChild<QProgressBar*>();
  EXPECT_EQ(bar->value(), 30);
  EXPECT_EQ(bar->maximum(), 100);
  EXPECT_TRUE(Shown()->isModal());
}

TEST_F(ProgressWindowTest, CancelAsksTheWorkToStop) {
  ProgressWindow progress(nullptr, texts, ProgressWindow::Cancel::Offered);
  WaitForWindow(progress);
  QTest::mouseClick(Shown()->findChild<QPushButton*>(), Qt::LeftButton);
  EXPECT_FALSE(StepLater(progress));
}

TEST_F(ProgressWindowTest, EscapeAndTheCloseBoxAreCancel) {
  for (const bool byKey : {true, false}) {
    ProgressWindow progress(nullptr, texts, ProgressWindow::Cancel::Offered);
    WaitForWindow(progress);
    byKey ? QTest::keyClick(Shown(), Qt::Key_Escape) : static_cast<void>(Shown()->close());
    EXPECT_FALSE(StepLater(progress));
  }
}

TEST_F(ProgressWindowTest, WithoutCancelTheWindowStaysUntilTheWorkIsDone) {
  {
    ProgressWindow progress(nullptr, texts, ProgressWindow::Cancel::NotOffered);
    WaitForWindow(progress);
    EXPECT_FALSE(Shown()->findChild<QPushButton*>());
    QTest::keyClick(Shown(), Qt::Key_Escape);
    Shown()->close();
    EXPECT_TRUE(StepLater(progress));
    EXPECT_TRUE(Shown()->isVisible());
  }
  EXPECT_FALSE(Shown());
}

TEST_F(ProgressWindowTest, AHostWithoutOurTextsShowsTheBarAlone) {
  texts.additions.clear();
  ProgressWindow progress(nullptr, texts, ProgressWindow::Cancel::Offered);
  WaitForWindow(progress);
  for (const QLabel* label : Shown()->findChildren<QLabel*>()) {
    EXPECT_EQ(label->text(), QString());
  }
}

}  // namespace
}  // namespace qv
