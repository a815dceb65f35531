#include "toolkit/RowDelegate.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QTest>

#include "tests/toolkit/PictureFiles.h"
#include "toolkit/ReportList.h"

namespace qv {
namespace {

constexpr int rows = 3;
constexpr int columns = 2;
constexpr QSize iconSize(16, 16);

/// A list whose rows have icons in their first column, in a window that has the focus.
class RowDelegateTest : public testing::Test {
 protected:
  void SetUp() override {
    list.setColumnCount(columns);
    list.setIconSize(iconSize);
    QPixmap box(iconSize);
    box.fill(Qt::red);
    for (int row = 0; row < rows; ++row) {
      auto* item = new QTreeWidgetItem({QStringLiteral("a"), QStringLiteral("b")});
      item->setIcon(0, QIcon(box));
      list.addTopLevelItem(item);
    }
    list.resize(300, 200);
    list.show();
    QApplication::setActiveWindow(&list);
    list.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
    ASSERT_TRUE(list.hasFocus());
  }

  void MakeCurrent(int row, QItemSelectionModel::SelectionFlags selection) {
    list.setCurrentItem(list.topLevelItem(row), 0, selection);
  }

  QRect Cell(int row, int column) const {
    return list.visualRect(list.model()->index(row, column));
  }
  QImage Picture(const QRect& area) { return list.viewport()->grab(area).toImage(); }
  /// What stands on the screen, without painting anything for it.
  QImage OnScreen(const QRect& area) {
    const QPoint corner = list.viewport()->mapTo(&list, area.topLeft());
    return list.screen()->grabWindow(list.winId()).toImage().copy(QRect(corner, area.size()));
  }

  ReportList list;
};

TEST_F(RowDelegateTest, AChosenRowKeepsTheColoursOfItsIcon) {
  MakeCurrent(0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  EXPECT_EQ(CountPixels(Picture(Cell(0, 0)), Qt::red), 16 * 16);
  MakeCurrent(1, QItemSelectionModel::NoUpdate);
  EXPECT_EQ(CountPixels(Picture(Cell(0, 0)), Qt::red), 16 * 16) << "chosen, not current";
}

TEST_F(RowDelegateTest, TheCurrentRowKeepsTheColoursOfItsIcon) {
  MakeCurrent(1, QItemSelectionModel::NoUpdate);
  EXPECT_EQ(CountPixels(Picture(Cell(1, 0)), Qt::red), 16 * 16);
}

TEST_F(RowDelegateTest, TheCurrentRowHasAFrameAroundAllItsColumns) {
  const QImage plain[] = {Picture(Cell(1, 0)), Picture(Cell(1, 1))};
  MakeCurrent(1, QItemSelectionModel::NoUpdate);
  for (int column = 0; column < columns; ++column) {
    const QImage framed = Picture(Cell(1, column));
    EXPECT_NE(framed, plain[column]) << column;
    const QPoint middleOfEdge(framed.width() / 2, 0);
    EXPECT_NE(framed.pixelColor(middleOfEdge), plain[column].pixelColor(middleOfEdge)) << column;
  }
  const QImage first = Picture(Cell(1, 0));
  const QImage last = Picture(Cell(1, 1));
  EXPECT_EQ(first.pixelColor(first.width() - 10, 9), last.pixelColor(last.width() - 10, 9))
      << "behind the texts, tinted by one frame alike";
  const QPoint betweenColumns(0, last.height() / 2);
  EXPECT_EQ(last.pixelColor(betweenColumns), last.pixelColor(betweenColumns + QPoint(3, 0)))
      << "one frame, not one for each column";
}

TEST_F(RowDelegateTest, OnlyTheListWithTheFocusHasAFrame) {
  const QImage plain = Picture(Cell(1, 1));
  MakeCurrent(1, QItemSelectionModel::NoUpdate);
  list.clearFocus();
  EXPECT_EQ(Picture(Cell(1, 1)), plain);
}

TEST_F(RowDelegateTest, TheFrameLeavesNothingBehind) {
  const QImage plain = Picture(Cell(2, 1));
  const auto isFramed = [&](int row) { return OnScreen(Cell(row, 1)) != plain; };
  MakeCurrent(0, QItemSelectionModel::NoUpdate);
  EXPECT_TRUE(QTest::qWaitFor([&] { return isFramed(0); }));
  MakeCurrent(2, QItemSelectionModel::NoUpdate);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !isFramed(0) && isFramed(2); }));
}

TEST_F(RowDelegateTest, ATextOfSeveralLinesShowsInOne) {
  const int height = Cell(0, 1).height();
  const QString lines = QStringLiteral("first\nsecond\r\nthird\n\n\u2028fourth");
  list.topLevelItem(0)->setText(1, lines);
  QApplication::processEvents();
  EXPECT_EQ(Cell(0, 1).height(), height);
  const auto* delegate = qobject_cast<RowDelegate*>(list.itemDelegate());
  ASSERT_TRUE(delegate);
  EXPECT_EQ(delegate->displayText(lines, QLocale()), "first second third fourth");
  EXPECT_EQ(list.topLevelItem(0)->text(1), lines) << "what it holds stays";
}

}  // namespace
}  // namespace qv
