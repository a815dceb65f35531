#include "toolkit/ChoiceBox.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QStyleFactory>
#include <QStyleOptionComboBox>
#include <QToolTip>
#include <memory>

#include "tests/toolkit/PictureFiles.h"

namespace qv {
namespace {

const QString longText(200, 'w');

/// Gives away what a box draws.
class DrawnBox : public ChoiceBox {
 public:
  QString DrawnText() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return option.currentText;
  }
};

class ChoiceBoxTest : public testing::Test {
 protected:
  void SetUp() override {
    box.resize(200, box.sizeHint().height());
    box.setIconSize(QSize(16, 14));
  }

  void Fill(int count) {
    for (int i = 0; i < count; ++i) {
      box.addItem(QStringLiteral("item %1").arg(i));
    }
  }
  void Open() {
    box.show();
    box.showPopup();
    QApplication::processEvents();
  }
  int RowHeight() const { return box.view()->visualRect(Index(0)).height(); }
  QModelIndex Index(int row) const { return box.model()->index(row, box.modelColumn()); }

  QString TooltipOver(QWidget* widget, QPoint place) {
    QHelpEvent help(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &help);
    return QToolTip::text();
  }
  QString TooltipOfRow(int row) {
    return TooltipOver(box.view()->viewport(), box.view()->visualRect(Index(row)).center());
  }

  DrawnBox box;
};

TEST_F(ChoiceBoxTest, OfManyItemsItOpens15RowsAsWideAsItself) {
  Fill(60);
  Open();
  EXPECT_EQ(box.view()->viewport()->height() / RowHeight(), 15);
  EXPECT_EQ(box.view()->window()->width(), box.width());
  EXPECT_LT(box.view()->window()->height(), 17 * RowHeight());
}

TEST_F(ChoiceBoxTest, OfFewItemsItOpensOnlyTheirRows) {
  Fill(3);
  Open();
  EXPECT_EQ(box.view()->viewport()->height() / RowHeight(), 3);
}

TEST_F(ChoiceBoxTest, ALongItemMakesItNoWider) {
  Fill(3);
  box.addItem(longText);
  Open();
  EXPECT_EQ(box.view()->window()->width(), box.width());
  EXPECT_EQ(box.view()->visualRect(Index(3)).width(), box.view()->viewport()->width());
  EXPECT_EQ(box.view()->textElideMode(), Qt::ElideRight);
}

TEST_F(ChoiceBoxTest, ARowThatIsCutIsShownWholeInATooltip) {
  Fill(1);
  box.addItem(longText + "<b>");
  Open();
  EXPECT_EQ(TooltipOfRow(0), "");
  EXPECT_EQ(TooltipOfRow(1), "<p>" + longText + "&lt;b&gt;</p>");
}

TEST_F(ChoiceBoxTest, ItsOwnTextIsElidedAndShownWholeInATooltip) {
  box.addItem(QStringLiteral("short"));
  box.addItem(longText);
  box.show();
  EXPECT_EQ(box.DrawnText(), "short");
  EXPECT_EQ(TooltipOver(&box, QPoint(20, 5)), "");
  box.setCurrentIndex(1);
  EXPECT_TRUE(box.DrawnText().endsWith(QChar(0x2026)));
  EXPECT_LT(box.fontMetrics().horizontalAdvance(box.DrawnText()), box.width());
  EXPECT_EQ(box.currentText(), longText);
  EXPECT_EQ(TooltipOver(&box, QPoint(20, 5)), "<p>" + longText + "</p>");
}

TEST_F(ChoiceBoxTest, ATextThatJustFitsIsNotCut) {
  box.addItem(QStringLiteral("iiiiiiiiii"));
  box.resize(box.sizeHint());
  EXPECT_EQ(box.DrawnText(), "iiiiiiiiii");
}

TEST_F(ChoiceBoxTest, AnIconTakesRoomFromTheText) {
  box.addItem(longText);
  const auto plain = box.DrawnText().size();
  QPixmap red(16, 14);
  red.fill(Qt::red);
  box.setItemIcon(0, QIcon(red));
  EXPECT_LT(box.DrawnText().size(), plain);
}

TEST_F(ChoiceBoxTest, AChosenRowKeepsTheColoursOfItsIcon) {
  QPixmap red(16, 14);
  red.fill(Qt::red);
  box.addItem(QIcon(red), QStringLiteral("a"));
  Open();
  ASSERT_TRUE(box.view()->selectionModel()->isSelected(Index(0)));
  EXPECT_EQ(CountPixels(box.view()->viewport()->grab().toImage(), Qt::red), 16 * 14);
}

}  // namespace
}  // namespace qv
