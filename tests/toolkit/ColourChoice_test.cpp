#include "toolkit/ColourChoice.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyle>

namespace qv {
namespace {

TEST(ColourChoice, OffersEntriesWithTheirColours) {
  ColourChoice choice;
  choice.ShowEntries({{"red", 0x0000FF}, {"blue", 0xFF0000}}, 1);
  ASSERT_EQ(choice.count(), 2);
  EXPECT_EQ(choice.itemText(0), "red");
  EXPECT_EQ(choice.currentIndex(), 1);
  const QSize size = choice.iconSize();
  const int small = choice.style()->pixelMetric(QStyle::PM_SmallIconSize);
  EXPECT_EQ(size, QSize(small, small - 2));
  EXPECT_EQ(choice.itemIcon(0).pixmap(size).toImage().pixelColor(2, 2), QColor(Qt::red));
  EXPECT_EQ(choice.itemIcon(1).pixmap(size).toImage().pixelColor(2, 2), QColor(Qt::blue));
}

TEST(ColourChoice, NewEntriesReplaceTheOld) {
  ColourChoice choice;
  choice.ShowEntries({{"red", 0x0000FF}, {"blue", 0xFF0000}}, 1);
  choice.ShowEntries({{"white", 0xFFFFFF}}, std::nullopt);
  EXPECT_EQ(choice.count(), 1);
  EXPECT_EQ(choice.currentIndex(), -1);
  choice.ShowEntries({}, 0);
  EXPECT_EQ(choice.currentIndex(), -1);
}

}  // namespace
}  // namespace qv
