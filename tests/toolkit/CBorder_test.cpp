#include <gtest/gtest.h>

#include <QApplication>

#include "toolkit/CListBorder.h"
#include "toolkit/GroupBoxMargins.h"

namespace {

class CBorderTest : public testing::Test {
 protected:
  CBorderTest() {
    border.setTitle(QStringLiteral("Day types"));
    border.setGeometry(10, 10, 200, 100);
    window.resize(300, 200);
    window.show();
    QApplication::processEvents();
  }

  QWidget window;
  CBorder border{&window};
  QWidget beside{&window};
  QWidget inside{&border};
};

TEST_F(CBorderTest, AControlThatItPlacesFillsItsInsideBelowTheTitle) {
  border.SetMargin(5);
  border.LinkControl(&inside, true);
  const QRect before = inside.geometry();
  EXPECT_EQ(before, border.rect().marginsRemoved(qv::GroupBoxMargins(&border, 5, true)));
  EXPECT_GE(before.top(), border.fontMetrics().height());
  border.resize(220, 130);
  EXPECT_EQ(inside.geometry(), before.adjusted(0, 0, 20, 30));
}

TEST_F(CBorderTest, TheMarginIsFreeOnEachSideWhateverTheTitle) {
  border.LinkControl(&inside, true);
  border.SetMargin(0);
  const QRect wide = inside.geometry();
  border.SetMargin(5);
  EXPECT_EQ(inside.geometry(), wide.adjusted(5, 5, -5, -5));
  border.setTitle(QStringLiteral("Other"));
  border.resize(border.size() + QSize(1, 0));
  EXPECT_EQ(inside.geometry(), wide.adjusted(5, 5, -4, -5));
}

TEST_F(CBorderTest, AControlThatItDoesNotPlaceStaysWhereItIs) {
  beside.setGeometry(1, 2, 3, 4);
  border.LinkControl(&beside, false);
  border.resize(220, 130);
  border.SetMargin(7);
  EXPECT_EQ(beside.geometry(), QRect(1, 2, 3, 4));
}

TEST_F(CBorderTest, ShowsAndIsGreyedWithItsControl) {
  beside.show();
  border.LinkControl(&beside, false);
  beside.hide();
  EXPECT_TRUE(border.isHidden());
  beside.show();
  EXPECT_FALSE(border.isHidden());
  beside.setEnabled(false);
  EXPECT_FALSE(border.isEnabled());
  border.LinkControl(nullptr, false);
  beside.setEnabled(true);
  EXPECT_FALSE(border.isEnabled());
}

TEST_F(CBorderTest, OutlivesItsControl) {
  auto* control = new QWidget(&window);
  border.LinkControl(control, true);
  delete control;
  border.resize(50, 50);
}

TEST(CListBorder, HasOneColumnOfButtonsAtFirst) {
  CListBorder border;
  EXPECT_EQ(border.ButtonsColumns(), 1);
  border.SetButtonsColumns(2);
  EXPECT_EQ(border.ButtonsColumns(), 2);
}

}  // namespace
