// What a user does to the device groups in the main window.
#include <gmock/gmock.h>

#include <QAction>
#include <QMenu>
#include <QTest>

#include "tests/apps/TreeEditingFixture.h"

namespace configurator {
namespace {

TEST_F(TreeEditingTest, TheExampleIsAsTheseTestsExpect) {
  EXPECT_EQ(before, QStringList({"Transformer station", ".Feeders", "..FEEDER_1", "..FEEDER_2",
                                 ".TS1", ".TS1_TEMP", ".R$DISC_Transformer station state",
                                 "Lighting", ".LIGHTS", "BILLING", "R$DISC_Tariff 2-0TD 2026",
                                 "R$DISC_Tariff 3-0TD and 6-1TD 2026", "R$DISC_Day and night"}));
}

TEST_F(TreeEditingTest, ANewGroupIsMadeInTheSelectedOneAndNamedAtOnce) {
  view.Select({{1}});
  QTest::keyClick(&view, Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  TypeName("Street");
  EXPECT_EQ(Lines().mid(7, 3), QStringList({"Lighting", ".Street", ".LIGHTS"}));
  EXPECT_EQ(SelectedText(), "Street");
  EXPECT_TRUE(window->isWindowModified());
  Undo();
  EXPECT_EQ(Lines().at(8), ".New group");
  Undo();
  EXPECT_EQ(Lines(), before);
  EXPECT_FALSE(window->isWindowModified());
  Redo();
  Redo();
  EXPECT_EQ(Lines().at(8), ".Street");
}

TEST_F(TreeEditingTest, BesideADeviceANewGroupIsMadeOnItsLevel) {
  view.Select({{0, 1}});
  Command("New group")->trigger();
  TypeName("", Qt::Key_Escape);
  EXPECT_EQ(Lines().mid(4, 2), QStringList({".New group", ".TS1"}));
}

TEST_F(TreeEditingTest, AGroupIsRenamedByItsKey) {
  view.Select({{0, 0}});
  QTest::keyClick(&view, Qt::Key_F2);
  EXPECT_EQ(view.findChild<QLineEdit*>()->text(), "Feeders");
  TypeName("  Lines & more ");
  EXPECT_EQ(Lines().at(1), ".Lines & more");
  Undo();
  EXPECT_EQ(Lines(), before);
}

TEST_F(TreeEditingTest, ACommandTakesTheNameThatIsBeingTyped) {
  view.Select({{0, 0}});
  QTest::keyClick(&view, Qt::Key_F2);
  auto* edit = view.findChild<QLineEdit*>();
  edit->setText("Lines");
  QTest::keyClick(edit, Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  TypeName("New");
  EXPECT_EQ(Lines().mid(1, 2), QStringList({".Lines", "..New"}));
}

TEST_F(TreeEditingTest, SavingTakesTheNameThatIsBeingTyped) {
  view.Select({{1}});
  QTest::keyClick(&view, Qt::Key_F2);
  view.findChild<QLineEdit*>()->setText("Street");
  QTest::keyClick(view.findChild<QLineEdit*>(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_NE(installation.ConfigurationBytes().find("<name>Street</name>"), std::string::npos);
}

TEST_F(TreeEditingTest, NoGroupIsOfferedWhereItWouldStandTooDeep) {
  TreePlace place;
  while (const auto made = AddGroup(*workspace.Config().DeviceGroups(), place, L"G")) {
    place = *made;
  }
  Find<QAction>("language-en")->trigger();
  view.Select({place});
  EXPECT_FALSE(Command("New group")->isEnabled());
  EXPECT_TRUE(Command("Rename group")->isEnabled());
}

TEST_F(TreeEditingTest, LinesOfOneNameAreToldApartAfterARefresh) {
  for (int i = 0; i < 2; ++i) {
    view.clearSelection();
    Command("New group")->trigger();
    TypeName("", Qt::Key_Escape);
  }
  view.Select({{2}, {4}});
  Find<QAction>("language-es")->trigger();
  EXPECT_EQ(view.Selected(), (Places{{2}, {4}}));
  EXPECT_EQ(view.currentIndex().row(), 2);
}

TEST_F(TreeEditingTest, AGroupKeepsItsNameWhereNoneIsGiven) {
  for (const QString& name : {QString("  "), QString("Feeders"), QString(QChar(7))}) {
    view.Select({{0, 0}});
    Command("Rename group")->trigger();
    view.findChild<QLineEdit*>()->setText(name);
    QTest::keyClick(view.findChild<QLineEdit*>(), Qt::Key_Return);
    qv::Settle();
    EXPECT_EQ(Lines(), before);
    EXPECT_FALSE(Command("Undo")->isEnabled());
  }
}

TEST_F(TreeEditingTest, AGroupWithoutANameIsRenamedFromNothing) {
  workspace.Config().DeviceGroups()->Node(L"groups")->Reset();
  workspace.Config().DeviceGroups()->Node(L"groups")->NewChild(L"group", nullptr);
  Find<QAction>("language-en")->trigger();
  EXPECT_EQ(Lines().at(0), "(group without a name)");
  view.Select({{0}});
  QTest::keyClick(&view, Qt::Key_F2);
  EXPECT_EQ(view.findChild<QLineEdit*>()->text(), "");
}

TEST_F(TreeEditingTest, DeleteRemovesAGroupAndKeepsItsContent) {
  view.Select({{0}});
  QTest::keyClick(&view, Qt::Key_Delete);
  EXPECT_EQ(Lines(), QStringList({"Feeders", ".FEEDER_1", ".FEEDER_2", "Lighting", ".LIGHTS",
                                  "BILLING", "R$DISC_Tariff 2-0TD 2026",
                                  "R$DISC_Tariff 3-0TD and 6-1TD 2026", "R$DISC_Day and night",
                                  "TS1", "TS1_TEMP", "R$DISC_Transformer station state"}));
  Undo();
  EXPECT_EQ(Lines(), before);
}

TEST_F(TreeEditingTest, DeleteLeavesDevicesAlone) {
  view.Select({{2}});
  QTest::keyClick(&view, Qt::Key_Delete);
  QTest::keyClick(&view, Qt::Key_F2);
  EXPECT_EQ(Lines(), before);
  EXPECT_FALSE(view.findChild<QLineEdit*>());
}

TEST_F(TreeEditingTest, KeysMoveALineAmongItsKind) {
  view.Select({{3}});
  QTest::keyClick(&view, Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Lines().mid(9, 2), QStringList({"R$DISC_Tariff 2-0TD 2026", "BILLING"}));
  EXPECT_EQ(SelectedText(), "R$DISC_Tariff 2-0TD 2026");
  EXPECT_FALSE(Command("Move up")->isEnabled());  // a device stays below the groups
  QTest::keyClick(&view, Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Lines(), before);
  view.Select({{1}});
  EXPECT_FALSE(Command("Move down")->isEnabled());
  QTest::keyClick(&view, Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Lines().first(), "Lighting");
  QTest::keyClick(&view, Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Lines(), before);
}

TEST_F(TreeEditingTest, AMenuMovesLinesToAnyGroup) {
  view.Select({{2}, {3}, {0, 1}});
  QMenu* targets = Command("Move to")->menu();
  emit targets->aboutToShow();
  QStringList texts;
  for (const QAction* target : targets->actions()) {
    texts += target->text();
  }
  EXPECT_EQ(texts, QStringList({"(outside the groups)", "    Transformer station",
                                "        Feeders", "    Lighting"}));
  targets->actions().at(2)->trigger();
  EXPECT_EQ(Lines().mid(1, 6), QStringList({".Feeders", "..FEEDER_1", "..FEEDER_2", "..TS1",
                                            "..BILLING", "..R$DISC_Tariff 2-0TD 2026"}));
  EXPECT_EQ(SelectedText(), "TS1|BILLING|R$DISC_Tariff 2-0TD 2026");
  Undo();
  EXPECT_EQ(Lines(), before);
}

TEST_F(TreeEditingTest, TheMenuOffersOnlyWhatIsPossible) {
  const auto enabled = [this] {
    QMenu* targets = Command("Move to")->menu();
    emit targets->aboutToShow();
    std::string flags;
    for (const QAction* target : targets->actions()) {
      flags += target->isEnabled() ? 'y' : 'n';
    }
    return flags;
  };
  view.Select({{0}});
  EXPECT_EQ(enabled(), "nnny");
  view.Select({{0, 0, 1}});
  EXPECT_EQ(enabled(), "yyny");
  view.clearSelection();
  EXPECT_FALSE(Command("Move to")->isEnabled());
}

TEST_F(TreeEditingTest, LinesAreDraggedIntoAGroup) {
  view.Select({{2}, {3}});
  EXPECT_TRUE(DropAt(Middle({1})));
  EXPECT_EQ(Lines().mid(7, 4),
            QStringList({"Lighting", ".LIGHTS", ".BILLING", ".R$DISC_Tariff 2-0TD 2026"}));
  EXPECT_TRUE(window->isWindowModified());
  Undo();
  EXPECT_EQ(Lines(), before);
}

TEST_F(TreeEditingTest, LinesAreDraggedBetweenOthers) {
  view.Select({{5}});
  EXPECT_TRUE(DropAt(UpperEdge({0, 2})));
  EXPECT_EQ(Lines().mid(4, 3), QStringList({".TS1", ".R$DISC_Day and night", ".TS1_TEMP"}));
  view.Select({{1}});
  EXPECT_TRUE(DropAt(UpperEdge({0})));
  EXPECT_EQ(Lines().first(), "Lighting");
}

TEST_F(TreeEditingTest, AGroupIsNotDraggedIntoItself) {
  view.Select({{0}});
  EXPECT_FALSE(DropAt(Middle({0, 0})));
  EXPECT_EQ(Lines(), before);
  EXPECT_FALSE(Command("Undo")->isEnabled());
}

TEST_F(TreeEditingTest, WhatIsDraggedFromElsewhereIsRefused) {
  QMimeData foreign;
  foreign.setText("TS1");
  foreign.setData("application/x-qabstractitemmodeldatalist", "x");
  EXPECT_FALSE(view.model()->canDropMimeData(&foreign, Qt::MoveAction, 0, 0, {}));
  EXPECT_FALSE(view.model()->canDropMimeData(nullptr, Qt::MoveAction, 0, 0, {}));
  QMimeData broken;
  broken.setData(view.model()->mimeTypes().first(), QByteArray(7, '\x7f'));
  EXPECT_FALSE(view.model()->dropMimeData(&broken, Qt::MoveAction, 0, 0, {}));
  qv::Settle();
  EXPECT_EQ(Lines(), before);
}

TEST_F(TreeEditingTest, TheUndoCommandTellsWhatItUndoes) {
  view.Select({{2}});
  EXPECT_EQ(Command("Undo")->isEnabled(), false);
  QTest::keyClick(&view, Qt::Key_Down, Qt::AltModifier);
  EXPECT_TRUE(Command("Undo: move")->isEnabled());
  EXPECT_FALSE(Command("Redo")->isEnabled());
  Undo();
  EXPECT_TRUE(Command("Redo: move")->isEnabled());
  Find<QAction>("language-es")->trigger();
  EXPECT_TRUE(Command("Rehacer: movimiento")->isEnabled());
}

TEST_F(TreeEditingTest, TheManagerEmptiesTheUndoStack) {
  view.Select({{2}});
  QTest::keyClick(&view, Qt::Key_Down, Qt::AltModifier);
  WithManager([](QWidget&) {});
  EXPECT_FALSE(Command("Undo")->isEnabled());
  EXPECT_NE(Lines(), before);
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(TreeEditingTest, AnotherInstallationEmptiesTheUndoStack) {
  view.Select({{2}});
  QTest::keyClick(&view, Qt::Key_Down, Qt::AltModifier);
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  ExampleCopy other;
  window->Open(other.Directory());
  EXPECT_FALSE(Command("Undo")->isEnabled());
  EXPECT_EQ(Lines(), before);
}

TEST_F(TreeEditingTest, WithoutDeviceGroupsTheFirstGroupMakesThem) {
  ExampleCopy other;
  std::filesystem::remove(other.File("configuration.xml"));
  window->Open(other.Directory());
  Command("New group")->trigger();
  TypeName("First");
  EXPECT_EQ(Lines(), QStringList("First"));
  ASSERT_TRUE(workspace.Config().DeviceGroups());
  Undo();
  Undo();
  EXPECT_FALSE(workspace.Config().DeviceGroups());
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(TreeEditingTest, WhatWasEditedIsSavedAndReadAgain) {
  view.Select({{0}});
  QTest::keyClick(&view, Qt::Key_Delete);
  const QStringList edited = Lines();
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(window->isWindowModified());
  window->Open(installation.Directory());
  EXPECT_EQ(Lines(), edited);
}

TEST_F(TreeEditingTest, MovingByOneRowIsForOneLine) {
  view.Select({{2}, {3}});
  EXPECT_EQ(view.Selected().size(), 2U);
  EXPECT_FALSE(Command("Move up")->isEnabled());
  EXPECT_FALSE(Command("Move down")->isEnabled());
  EXPECT_TRUE(Command("Move to")->isEnabled());
}

}  // namespace
}  // namespace configurator
