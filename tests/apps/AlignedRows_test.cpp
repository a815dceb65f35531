#include "apps/configurator/AlignedRows.h"

#include <gtest/gtest.h>

#include <QStandardItemModel>

namespace configurator {
namespace {

void AddRow(QStandardItemModel& model, const QString& first, const QString& second) {
  model.appendRow({new QStandardItem(first), new QStandardItem(second)});
}

TEST(AlignedRows, NoRowsGiveNothing) {
  QStandardItemModel model(0, 2);
  EXPECT_EQ(AlignedRows(model), QString());
}

TEST(AlignedRows, SecondColumnsStandBelowEachOther) {
  QStandardItemModel model;
  AddRow(model, "a", "one");
  AddRow(model, "abc", "two");
  EXPECT_EQ(AlignedRows(model), "a    one\nabc  two\n");
}

TEST(AlignedRows, CountsCharactersAndNotTheirUnits) {
  QStandardItemModel model;
  AddRow(model, QStringLiteral("\U0001F319ñ"), "one");
  AddRow(model, "ab", "two");
  EXPECT_EQ(AlignedRows(model), QStringLiteral("\U0001F319ñ  one\nab  two\n"));
}

TEST(AlignedRows, ALineBreakOrTabDoesNotBreakTheRow) {
  QStandardItemModel model;
  AddRow(model, "a\nb", "c\td\re");
  EXPECT_EQ(AlignedRows(model), "a b  c d e\n");
}

TEST(AlignedRows, AnEmptyLastTextLeavesNoBlanks) {
  QStandardItemModel model;
  AddRow(model, "a", "");
  AddRow(model, "abc", "two");
  EXPECT_EQ(AlignedRows(model), "a\nabc  two\n");
}

}  // namespace
}  // namespace configurator
