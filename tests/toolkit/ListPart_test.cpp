#include "toolkit/ListPart.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "tests/support/FakeHost.h"
#include "toolkit/CImageButton.h"
#include "toolkit/Texts.h"

namespace qv {
namespace {

/// A list of three rows with its buttons, which write down what they are asked for.
class ListPartTest : public testing::Test {
 protected:
  ListPartTest() {
    part.InitializeButtons(host.Services());
    part.CreateColumns(host.loadString, {Text::Name, Text::Description});
    ShowNames({"a", "b", "c"});
    window.resize(400, 300);
    view.resize(301, 200);
    window.show();
  }

  void ShowNames(const QStringList& names, std::optional<int> select = std::nullopt) {
    std::vector<ListRow> rows;
    for (const QString& name : names) {
      rows.push_back({{name, name + name}});
    }
    part.Show(rows, select);
  }

  void ExpectButtons(bool canModify, bool canRemove) const {
    EXPECT_TRUE(add.isEnabled());
    EXPECT_EQ(modify.isEnabled(), canModify);
    EXPECT_EQ(remove.isEnabled(), canRemove);
  }

  FakeHost host;
  QWidget window;
  ReportList view{&window};
  QPushButton add{&window};
  QPushButton modify{&window};
  QPushButton remove{&window};
  QStringList asked;
  ListPart part{
      {&view, &add, &modify, &remove},
      {[this] { asked << "add"; }, [this] { asked << "modify"; }, [this] { asked << "remove"; }}};
};

TEST_F(ListPartTest, ButtonsKeysAndDoubleClicksRunTheVerbs) {
  part.Select(0);
  add.click();
  modify.click();
  remove.click();
  QTest::keyClick(&view, Qt::Key_Insert);
  QTest::keyClick(&view, Qt::Key_Delete);
  QTest::mouseDClick(view.viewport(), Qt::LeftButton);
  EXPECT_EQ(asked, QStringList({"add", "modify", "remove", "add", "remove", "modify"}));
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(asked.size(), 6) << "other keys are the dialog's";
}

TEST_F(ListPartTest, AListWithoutVerbsOrButtonsDoesNothing) {
  ReportList plain(&window);
  ListPart list({&plain}, {});
  list.CreateColumns(host.loadString, {Text::Name});
  list.Show({{{"a"}}}, 0);
  QTest::keyClick(&plain, Qt::Key_Insert);
  QTest::keyClick(&plain, Qt::Key_Delete);
  QTest::mouseDClick(plain.viewport(), Qt::LeftButton);
  EXPECT_EQ(list.SelectedRow(), 0);
  EXPECT_TRUE(asked.empty());
}

TEST_F(ListPartTest, ModifyNeedsOneRowAndRemoveAtLeastOne) {
  part.EnableDisableButtons();
  ExpectButtons(false, false);
  part.Select(1);
  ExpectButtons(true, true);
  view.selectAll();
  ExpectButtons(false, true);
  view.clearSelection();
  ExpectButtons(false, false);
}

TEST_F(ListPartTest, HeadingsAndButtonsHaveTheHostsTexts) {
  EXPECT_EQ(view.headerItem()->text(0), HostText(host.loadString, Text::Name));
  EXPECT_EQ(view.headerItem()->text(1), HostText(host.loadString, Text::Description));
  EXPECT_EQ(add.text(), HostText(host.loadString, Text::Add));
  EXPECT_EQ(modify.text(), HostText(host.loadString, Text::Modify));
  EXPECT_EQ(remove.text(), HostText(host.loadString, Text::Remove));
}

TEST_F(ListPartTest, ShowReplacesTheRowsAndSelectsOneOrNone) {
  part.Select(2);
  ShowNames({"x", "y"});
  EXPECT_EQ(view.topLevelItemCount(), 2);
  EXPECT_EQ(view.topLevelItem(1)->text(1), "yy");
  EXPECT_EQ(part.SelectedRow(), std::nullopt);
  ExpectButtons(false, false);
  ShowNames({"x", "y"}, 1);
  EXPECT_EQ(part.SelectedRows(), std::vector<int>{1});
  ExpectButtons(true, true);
}

TEST_F(ListPartTest, TheSelectedRowIsTheCurrentOne) {
  ShowNames({"x", "y", "z"}, 1);
  EXPECT_EQ(view.currentIndex().row(), 1);
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(part.SelectedRow(), 2);
}

TEST_F(ListPartTest, WithoutASelectionTheCurrentRowIsTheOneThatIsGiven) {
  part.Show({{{"x"}}, {{"y"}}, {{"z"}}}, std::nullopt, 1);
  EXPECT_EQ(view.currentIndex().row(), 1);
  EXPECT_EQ(part.SelectedRow(), std::nullopt);
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(part.SelectedRow(), 2);
  part.Show({{{"x"}}}, std::nullopt);
  EXPECT_FALSE(view.currentIndex().isValid());
}

TEST_F(ListPartTest, AListTakesTheFocusOfAButtonThatItDisables) {
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (QPushButton* button : {&modify, &remove}) {
    ShowNames({"x"}, 0);
    button->setFocus();
    ShowNames({"x"});
    EXPECT_TRUE(view.hasFocus());
  }
  add.setFocus();
  ShowNames({"x"});
  EXPECT_TRUE(add.hasFocus()) << "it stays enabled";
}

TEST_F(ListPartTest, AnEmptyListSaysHowToBeginWhereTheLanguageHasWords) {
  const auto* hint = view.viewport()->findChild<QLabel*>();
  ASSERT_TRUE(hint);
  ShowNames({});
  EXPECT_TRUE(hint->isHidden()) << "no words";
  host.loadString.additions = {Text::EmptyList};
  part.InitializeButtons(host.Services());
  EXPECT_FALSE(hint->isHidden());
  EXPECT_EQ(hint->text(), HostText(host.loadString, Text::EmptyList));
  EXPECT_EQ(hint->size(), view.viewport()->size());
  EXPECT_EQ(view.accessibleDescription(), hint->text());
  view.resize(250, 150);
  EXPECT_EQ(hint->size(), view.viewport()->size());
  ShowNames({"a", "b"});
  EXPECT_TRUE(hint->isHidden());
  EXPECT_EQ(view.accessibleDescription(), "");
  part.RemoveRow(0);
  EXPECT_TRUE(hint->isHidden());
  part.RemoveRow(0);
  EXPECT_FALSE(hint->isHidden());
}

TEST_F(ListPartTest, TheKeysOfAddAndRemoveAreTold) {
  CImageButton addWithHint;
  CImageButton removeWithHint;
  ListPart told({&view, &addWithHint, nullptr, &removeWithHint}, {});
  host.loadString.additions = {Text::InsertKey, Text::DeleteKey};
  told.InitializeButtons(host.Services());
  addWithHint.resize(addWithHint.sizeHint() * 2);
  removeWithHint.resize(addWithHint.size());
  EXPECT_EQ(addWithHint.accessibleDescription(), HostText(host.loadString, Text::InsertKey));
  EXPECT_EQ(removeWithHint.accessibleDescription(), HostText(host.loadString, Text::DeleteKey));
}

TEST_F(ListPartTest, ARowMadeCurrentIsNotSelected) {
  part.Select(0);
  part.MakeCurrent(2);
  EXPECT_EQ(view.currentIndex().row(), 2);
  EXPECT_EQ(part.SelectedRows(), std::vector<int>{0});
}

TEST_F(ListPartTest, SelectingARowLeavesNoOtherSelected) {
  view.selectAll();
  EXPECT_EQ(part.SelectedRows(), (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(part.SelectedRow(), 0);
  part.Select(1);
  EXPECT_EQ(part.SelectedRows(), std::vector<int>{1});
}

TEST_F(ListPartTest, ARowThatIsTakenAwayLeavesTheButtonsForLater) {
  part.Select(1);
  part.RemoveRow(1);
  EXPECT_EQ(view.topLevelItemCount(), 2);
  ExpectButtons(true, true);
  view.clearSelection();
  part.EnableDisableButtons();
  ExpectButtons(false, false);
}

TEST_F(ListPartTest, ColumnsShareTheWidthAndTheLastHasTheRest) {
  const int room = view.viewport()->width();
  part.ResizeColumns();
  EXPECT_EQ(view.columnWidth(0), room / 2);
  EXPECT_EQ(view.columnWidth(1), room - room / 2);
  part.CreateColumns(host.loadString, {Text::Name, Text::From, Text::To});
  part.ResizeColumns();
  EXPECT_EQ(view.columnWidth(0), room / 3);
  EXPECT_EQ(view.columnWidth(1), room / 3);
  EXPECT_EQ(view.columnWidth(2), room - 2 * (room / 3));
}

TEST_F(ListPartTest, ColumnsFollowTheListsWidth) {
  view.resize(201, 200);
  EXPECT_EQ(view.columnWidth(0), view.viewport()->width() / 2);
}

TEST_F(ListPartTest, AColouredRowHasTheIconOfItsColour) {
  const ListRow row = part.ColouredRow({"a"}, 0x0000FF);
  const QImage icon = row.icon.pixmap(view.iconSize()).toImage();
  EXPECT_EQ(icon.pixelColor(icon.rect().center()), QColor(Qt::red));
  part.Show({row, {{"b"}}}, std::nullopt);
  EXPECT_FALSE(view.topLevelItem(0)->icon(0).isNull());
  EXPECT_TRUE(view.topLevelItem(1)->icon(0).isNull());
}

}  // namespace
}  // namespace qv
