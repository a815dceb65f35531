#include "toolkit/SpinButtons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

namespace qv {
namespace {

class SpinButtonsTest : public testing::Test {
 protected:
  SpinButtonsTest() {
    spin.SetBuddy(&edit);
    window.show();
  }

  QWidget window;
  QLineEdit edit{&window};
  SpinButtons spin{&window};
  QSignalSpy steps{&spin, &SpinButtons::Stepped};
  QSignalSpy departures{&spin, &SpinButtons::Left};
};

TEST_F(SpinButtonsTest, ArrowsAndArrowKeysStepUpAndDown) {
  const auto arrows = spin.findChildren<QToolButton*>();
  ASSERT_EQ(arrows.size(), 2);
  arrows[0]->click();
  arrows[1]->click();
  QTest::keyClick(&edit, Qt::Key_Up);
  QTest::keyClick(&edit, Qt::Key_Down);
  ASSERT_EQ(steps.size(), 4);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(steps[i][0].toInt(), i % 2 == 0 ? 1 : -1) << i;
  }
}

TEST_F(SpinButtonsTest, NothingStepsWhileTheyAreDisabled) {
  spin.setEnabled(false);
  QTest::keyClick(&edit, Qt::Key_Up);
  EXPECT_EQ(steps.size(), 0);
}

/// Turns the wheel by one step upwards over a widget.
void Turn(QWidget* widget) {
  const QPointF place(widget->rect().center());
  QWheelEvent turn(place, widget->mapToGlobal(place), {}, {0, QWheelEvent::DefaultDeltasPerStep},
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(widget, &turn);
}

TEST_F(SpinButtonsTest, TheWheelStepsOnlyWhileTheBuddyHasTheFocus) {
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QLineEdit other(&window);
  other.show();
  other.setFocus();
  Turn(&spin);
  Turn(&edit);
  EXPECT_EQ(steps.size(), 0);
  edit.setFocus();
  Turn(&spin);
  Turn(&edit);
  EXPECT_EQ(steps.size(), 2);
}

TEST_F(SpinButtonsTest, TheBuddyIsLeftWhenItLosesTheFocus) {
  for (const Qt::FocusReason reason : {Qt::TabFocusReason, Qt::MouseFocusReason,
                                       Qt::ActiveWindowFocusReason, Qt::OtherFocusReason}) {
    QFocusEvent out(QEvent::FocusOut, reason);
    QApplication::sendEvent(&edit, &out);
  }
  EXPECT_EQ(departures.size(), 4);
}

TEST_F(SpinButtonsTest, APopUpIsNoDeparture) {
  QFocusEvent out(QEvent::FocusOut, Qt::PopupFocusReason);
  QApplication::sendEvent(&edit, &out);
  QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(&edit, &in);
  EXPECT_EQ(departures.size(), 0);
}

}  // namespace
}  // namespace qv
