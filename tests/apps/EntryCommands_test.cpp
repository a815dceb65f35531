// What a user does to entries that lead nowhere, to files without one, and to the discriminators
// themselves from the tree.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDir>
#include <QFile>

#include <filesystem>

#include "apps/configurator/DiscriminatorEntries.h"
#include "tests/apps/TreeEditingFixture.h"

namespace configurator {
namespace {

class EntryCommandsTest : public TreeEditingTest {
 protected:
  /// Has the tree read again.
  void Refresh() { Find<QAction>("language-en")->trigger(); }

  void RemoveFileOfDayAndNight() {
    std::filesystem::remove(
        installation.File("3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b.Day and night.xdct"));
    Refresh();
  }

  void RemoveTheLastEntries(int count) {
    for (int i = 0; i < count; ++i) {
      RemoveEntries(*workspace.Config().DeviceGroups(), {{5 - i}});
    }
    Refresh();
  }

  QStringList OffersOf(const char* menu) const {
    QMenu* offers = Command(menu)->menu();
    emit offers->aboutToShow();
    QStringList texts;
    for (const QAction* action : offers->actions()) {
      texts += action->text();
    }
    return texts;
  }

  void Choose(const char* menu, int row) const {
    QMenu* offers = Command(menu)->menu();
    emit offers->aboutToShow();
    offers->actions().at(row)->trigger();
  }

  /// Whether `ask` opens the manager, which is left again by `leave`.
  bool OpensManager(
      const std::function<void()>& ask, const std::function<void()>& play = [] {}) {
    bool opened = false;
    qv::Drive(
        [&] {
          ask();
          qv::Settle();
          return 0;
        },
        [&] {
          opened = qobject_cast<CDlgSetupDiscriminators*>(qv::TopWindow()) != nullptr;
          play();
          QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
        });
    return opened;
  }

  void DoubleClick(const TreePlace& place) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, Middle(place));
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, Middle(place));
  }
};

TEST_F(EntryCommandsTest, ADoubleClickOnADiscriminatorOpensTheManager) {
  EXPECT_TRUE(OpensManager([this] { DoubleClick({3}); }));
  EXPECT_TRUE(OpensManager([this] { DoubleClick({0, 3}); }));
}

TEST_F(EntryCommandsTest, ReturnOnADiscriminatorOpensTheManager) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    view.Select({{3}});
    EXPECT_TRUE(OpensManager([&] { QTest::keyClick(&view, key); }));
  }
  EXPECT_EQ(SelectedText(), "R$DISC_Tariff 2-0TD 2026") << "nothing is new";
}

TEST_F(EntryCommandsTest, NothingElseIsOpenedFromTheTree) {
  bool opened = false;
  QObject::connect(&view, &DeviceTreeView::DiscriminatorActivated, &view, [&] { opened = true; });
  for (const TreePlace& place : {TreePlace{0}, TreePlace{2}, TreePlace{0, 1}}) {
    DoubleClick(place);
    view.Select({place});
    QTest::keyClick(&view, Qt::Key_Return);
    QTest::keyClick(&view, Qt::Key_Space);
  }
  view.Select({{3}});
  QTest::mouseDClick(view.viewport(), Qt::RightButton, {}, Middle({3}));
  EXPECT_FALSE(opened);
}

TEST_F(EntryCommandsTest, TheMenuOpensTheManager) {
  EXPECT_TRUE(OpensManager([this] { Command("Manage discriminators…")->trigger(); }));
  EXPECT_TRUE(view.actions().contains(Command("Manage discriminators…"))) << "its context menu";
}

TEST_F(EntryCommandsTest, AKeyOpensTheManager) {
  EXPECT_TRUE(
      OpensManager([this] { QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier); }));
}

TEST_F(EntryCommandsTest, WhatTheManagerMadeIsSelectedAfterwards) {
  view.Select({{0}});
  const auto addPeak = [] {
    qv::WhenNextWindow([] {
      qv::Type(qv::discriminatorName, "Peak");
      qv::Press(qv::discriminatorName, Qt::Key_Return);
    });
    qv::Click(qv::addButton);
  };
  EXPECT_TRUE(OpensManager([this] { Command("Manage discriminators…")->trigger(); }, addPeak));
  EXPECT_EQ(SelectedText(), "R$DISC_Peak");
  EXPECT_EQ(view.currentIndex().data(), "R$DISC_Peak");
}

TEST_F(EntryCommandsTest, ABrokenEntryIsTakenOutByItsKeyAndComesBackByUndo) {
  RemoveFileOfDayAndNight();
  const QStringList broken = Lines();
  view.Select({{5}});
  QTest::keyClick(&view, Qt::Key_Delete);
  EXPECT_EQ(Lines(), broken.mid(0, broken.size() - 1));
  EXPECT_EQ(SelectedText(), "R$DISC_Tariff 3-0TD and 6-1TD 2026");
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(Command("Undo: entry taken out")->isEnabled(), true);
  Undo();
  EXPECT_EQ(Lines(), broken);
}

TEST_F(EntryCommandsTest, OnlyBrokenEntriesCanBeTakenOut) {
  RemoveFileOfDayAndNight();
  for (const Places& selected :
       {Places{}, Places{{0}}, Places{{2}}, Places{{4}}, Places{{4}, {5}}, Places{{0}, {5}}}) {
    view.clearSelection();
    view.Select(selected);
    EXPECT_FALSE(Command("Take out broken entry")->isEnabled());
  }
  view.Select({{5}});
  EXPECT_TRUE(Command("Take out broken entry")->isEnabled());
  EXPECT_FALSE(Command("Remove group")->isEnabled()) << "they have one key";
}

TEST_F(EntryCommandsTest, AFileWithoutEntryIsPutIntoTheSelectedGroup) {
  EXPECT_FALSE(Command("Add entry for")->isEnabled());
  RemoveTheLastEntries(1);
  ASSERT_TRUE(Command("Add entry for")->isEnabled());
  EXPECT_EQ(OffersOf("Add entry for"), QStringList("Day and night"));
  const QStringList without = Lines();
  view.Select({{1}});
  Choose("Add entry for", 0);
  EXPECT_EQ(Lines().mid(7, 3), QStringList({"Lighting", ".LIGHTS", ".R$DISC_Day and night"}));
  EXPECT_EQ(SelectedText(), "R$DISC_Day and night");
  EXPECT_FALSE(Command("Add entry for")->isEnabled());
  Undo();
  EXPECT_EQ(Lines(), without);
  EXPECT_TRUE(Command("Add entry for")->isEnabled());
}

TEST_F(EntryCommandsTest, FilesThatOtherProgramsMakeOrRemoveAreFollowed) {
  RemoveTheLastEntries(2);
  const auto files = QStringList(QDir(workspace.Directory()).entryList({"*Day and night.xdct"}));
  ASSERT_EQ(files.size(), 1);
  QFile file(workspace.Directory() + '/' + files[0]);
  const QString elsewhere = file.fileName() + ".away";
  ASSERT_TRUE(file.rename(elsewhere));
  EXPECT_EQ(OffersOf("Add entry for"), QStringList("Tariff 3-0TD and 6-1TD 2026"));
  Choose("Add entry for", 0);
  EXPECT_FALSE(Command("Add entry for")->isEnabled());
  ASSERT_TRUE(QFile::rename(elsewhere, workspace.Directory() + '/' + files[0]));
  emit qApp->applicationStateChanged(Qt::ApplicationActive);
  EXPECT_TRUE(Command("Add entry for")->isEnabled());
}

TEST_F(EntryCommandsTest, AllFilesWithoutEntryArePutInAtOnce) {
  RemoveTheLastEntries(2);
  EXPECT_EQ(OffersOf("Add entry for"),
            QStringList({"Day and night", "Tariff 3-0TD and 6-1TD 2026", "", "(all of them)"}));
  view.Select({{2}});
  Choose("Add entry for", 3);
  EXPECT_EQ(TopLines().mid(4),
            QStringList({"R$DISC_Day and night", "R$DISC_Tariff 3-0TD and 6-1TD 2026"}));
  EXPECT_EQ(SelectedText().count('|'), 1) << "both are selected";
}

}  // namespace
}  // namespace configurator
