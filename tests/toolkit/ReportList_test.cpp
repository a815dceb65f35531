#include "toolkit/ReportList.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

namespace qv {
namespace {

class ReportListTest : public testing::Test {
 protected:
  void SetUp() override {
    list.setColumnCount(1);
    for (const char* name : {"alpha", "beta", "gamma"}) {
      list.addTopLevelItem(new QTreeWidgetItem({QString::fromLatin1(name)}));
    }
    list.resize(300, 200);
    list.show();
  }

  QPoint RowCentre(int row) const { return list.visualItemRect(list.topLevelItem(row)).center(); }

  ReportList list;
};

TEST_F(ReportListTest, DeleteAndInsertAreToldWithAndWithoutControl) {
  QSignalSpy keys(&list, &ReportList::KeyDown);
  QTest::keyClick(&list, Qt::Key_Delete);
  QTest::keyClick(&list, Qt::Key_Delete, Qt::ControlModifier);
  QTest::keyClick(&list, Qt::Key_Insert);
  QTest::keyClick(&list, Qt::Key_Insert, Qt::ControlModifier);
  ASSERT_EQ(keys.size(), 4);
  EXPECT_EQ(keys[0], QVariantList({Qt::Key_Delete, false}));
  EXPECT_EQ(keys[1], QVariantList({Qt::Key_Delete, true}));
  EXPECT_EQ(keys[2], QVariantList({Qt::Key_Insert, false}));
  EXPECT_EQ(keys[3], QVariantList({Qt::Key_Insert, true}));
}

TEST_F(ReportListTest, AClickBelowTheRowsLeavesNoneSelected) {
  const QPoint below = RowCentre(2) + QPoint(0, 60);
  for (const auto mode :
       {QAbstractItemView::SingleSelection, QAbstractItemView::ExtendedSelection}) {
    list.setSelectionMode(mode);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, RowCentre(1));
    ASSERT_EQ(list.SelectedRows(), std::vector<int>{1});
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, below);
    EXPECT_TRUE(list.SelectedRows().empty());
  }
}

TEST_F(ReportListTest, OfSingleSelectionAClickWithControlTakesTheSelectionBack) {
  list.setSelectionMode(QAbstractItemView::SingleSelection);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, RowCentre(1));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, RowCentre(1));
  EXPECT_TRUE(list.SelectedRows().empty());
}

TEST_F(ReportListTest, OfSingleSelectionControlAndSpaceTakeTheSelectionBack) {
  list.setSelectionMode(QAbstractItemView::SingleSelection);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, RowCentre(1));
  QTest::keyClick(&list, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_TRUE(list.SelectedRows().empty());
  QTest::keyClick(&list, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(list.SelectedRows(), std::vector<int>{1});
}

TEST_F(ReportListTest, TheFirstDownChoosesTheFirstRow) {
  list.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
  list.setFocus(Qt::TabFocusReason);
  EXPECT_FALSE(list.currentIndex().isValid()) << "no row looks chosen";
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(list.SelectedRows(), std::vector<int>{0});
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(list.SelectedRows(), std::vector<int>{1});
}

TEST_F(ReportListTest, ARingShowsTheFocusWhileNoRowIsCurrent) {
  const QColor ring = list.palette().color(QPalette::Active, QPalette::Highlight);
  const auto hasRing = [&] {
    const QImage picture = list.viewport()->grab().toImage();
    return picture.pixelColor(0, 0) == ring &&
           picture.pixelColor(picture.width() - 1, picture.height() - 1) == ring;
  };
  list.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
  list.clearFocus();
  EXPECT_FALSE(hasRing());
  list.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(hasRing());
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_FALSE(hasRing());
  list.clear();
  EXPECT_TRUE(hasRing());
}

TEST_F(ReportListTest, AListThatGetsTheFocusAgainKeepsItsCurrentRow) {
  list.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
  list.setCurrentItem(list.topLevelItem(2));
  list.clearFocus();
  list.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(list.currentIndex().row(), 2);
}

TEST_F(ReportListTest, LettersAreToldWithControlAlone) {
  QSignalSpy keys(&list, &ReportList::KeyDown);
  QTest::keyClick(&list, Qt::Key_C);
  EXPECT_EQ(keys.size(), 0);
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  ASSERT_EQ(keys.size(), 1);
  EXPECT_EQ(keys[0], QVariantList({Qt::Key_C, true}));
}

TEST_F(ReportListTest, TheListItselfDoesNothingForLettersWithControl) {
  QApplication::clipboard()->setText(QStringLiteral("before"));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, RowCentre(1));
  for (Qt::Key key : {Qt::Key_C, Qt::Key_A, Qt::Key_X}) {
    QTest::keyClick(&list, key, Qt::ControlModifier);
  }
  EXPECT_EQ(QApplication::clipboard()->text(), "before");
  EXPECT_EQ(list.SelectedRows(), std::vector<int>{1});
}

TEST_F(ReportListTest, SelectedRowsComeFromTheTop) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, RowCentre(2));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, RowCentre(0));
  EXPECT_EQ(list.SelectedRows(), (std::vector<int>{0, 2}));
}

TEST_F(ReportListTest, ADoubleClickIsToldAlsoBelowTheLastRow) {
  QSignalSpy clicks(&list, &ReportList::DoubleClicked);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, RowCentre(1));
  EXPECT_EQ(clicks.size(), 1);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, QPoint(50, 180));
  EXPECT_EQ(clicks.size(), 2);
  QTest::mouseDClick(list.viewport(), Qt::RightButton, {}, RowCentre(1));
  EXPECT_EQ(clicks.size(), 2);
}

TEST_F(ReportListTest, ArrowKeysMoveTheSelection) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, RowCentre(0));
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(list.SelectedRows(), std::vector<int>{1});
  QTest::keyClick(&list, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(list.SelectedRows(), (std::vector<int>{1, 2}));
}

TEST_F(ReportListTest, ATextThatIsCutIsShownWholeInATooltip) {
  const auto tooltipAt = [this](int row) {
    QHelpEvent help(QEvent::ToolTip, RowCentre(row), list.viewport()->mapToGlobal(RowCentre(row)));
    QApplication::sendEvent(list.viewport(), &help);
    return QToolTip::text();
  };
  list.topLevelItem(1)->setText(0, QString(200, 'w') + "<b>");
  EXPECT_EQ(tooltipAt(0), "");
  EXPECT_EQ(tooltipAt(1), "<p>" + QString(200, 'w') + "&lt;b&gt;</p>");
}

TEST_F(ReportListTest, TheMenuIsAskedForByTheRightButtonAndTheMenuKey) {
  QSignalSpy menus(&list, &ReportList::MenuWanted);
  QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(50, 60));
  QApplication::sendEvent(list.viewport(), &menu);
  ASSERT_EQ(menus.size(), 1);
  EXPECT_EQ(menus[0][0].toPoint(), QPoint(50, 60));
}

TEST_F(ReportListTest, NewRoomIsTold) {
  QSignalSpy changes(&list, &ReportList::RoomChanged);
  list.resize(400, 200);
  QApplication::processEvents();
  EXPECT_GE(changes.size(), 1);
}

}  // namespace
}  // namespace qv
