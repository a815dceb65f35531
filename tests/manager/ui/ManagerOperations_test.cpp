#include <QDir>
#include <map>

#include "tests/manager/ui/ManagerFixture.h"

namespace qv {
namespace {

TEST_F(SetupDiscriminators, AddMakesAFileARowAndAnEntry) {
  XmlDocument groups;
  groups.Create(L"deviceGroups");
  CDlgSetupDiscriminators dialog(groups.Root(), nullptr);
  const int result = Play(dialog, [] {
    EditNext("Peak", IDOK);
    Click(addButton);
    EXPECT_EQ(Shown(), QStringList{"Peak"});
    EXPECT_TRUE(TheList()->selectedItems().isEmpty());
    ExpectNoneSelected();
    EditNext("Night", IDOK);
    Press(discriminatorList, Qt::Key_Insert);
    EXPECT_EQ(Shown(), QStringList({"Night", "Peak"}));
    Click(exitButton);
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(host->guids.notices, (std::vector<int>{8, 5, 8, 5}));
  EXPECT_EQ(std::distance(groups.Root()->Node(L"devices")->ChildsBegin(),
                          groups.Root()->Node(L"devices")->ChildsEnd()),
            2);
}

TEST_F(SetupDiscriminators, TheCloseBoxGivesCancelAlsoAfterAChange) {
  EXPECT_EQ(Run([] {
              EditNext("Peak", IDOK);
              Click(addButton);
              TopWindow()->close();
            }),
            IDCANCEL);
}

TEST_F(SetupDiscriminators, AFileWithoutIdIsSavedUnderANewOneAndHasNoEntry) {
  PutFile(".old.xdct", "<main><name>old</name></main>");
  XmlDocument groups;
  groups.Create(L"deviceGroups");
  CDlgSetupDiscriminators dialog(groups.Root(), nullptr);
  Play(dialog, [] {
    EXPECT_EQ(Shown(), QStringList{"old"});
    ClickRow(discriminatorList, 0);
    EditNext("old", IDOK);
    Click(modifyButton);
    Click(exitButton);
  });
  ASSERT_EQ(Files().size(), 1);
  EXPECT_EQ(Files()[0].size(), 36 + QString(".old.xdct").size());
  EXPECT_FALSE(groups.Root()->Node(L"devices"));
}

TEST_F(SetupDiscriminators, FilesFromAnywhereAreShownOrLeftOutAndDoNoHarm) {
  const QByteArray siblings = QByteArray("<x/>").repeated(100'000);
  const std::map<QString, QByteArray> files = {
      {"1.encoding.xdct", "<?xml version='1.0' encoding='no-such'?><main/>"},
      {"1.latin.xdct", "<main><id>1</id><name>latin</name><description>\xF1</description></main>"},
      {"1.cut.xdct", "<main><id>1</id><name>cut</na"},
      {"1.deep.xdct", QByteArray("<a>").repeated(100'000)},
      {"1.empty.xdct", ""},
      {"1.fields.xdct", "<main/>"},
      {"1.guid.xdct", "<main><id>1</id><id>2</id><name>guid</name></main>"},
      {"1.wide.xdct", "<main><id>1</id><name>wide</name>" + siblings + "</main>"},
      {"1.path.xdct", "<main><id>1</id><name>../../path</name></main>"},
  };
  for (const auto& [name, content] : files) {
    PutFile(name, content);
  }
  Run([] {
    EXPECT_EQ(Shown(), QStringList({"guid", "wide"}));
    for (int row = 0; row < 2; ++row) {
      ClickRow(discriminatorList, row);
      EditNext(Shown()[row], IDOK);
      Click(modifyButton);
    }
    EXPECT_EQ(Shown(), QStringList({"guid", "wide"}));
    Click(exitButton);
  });
  EXPECT_EQ(Files().size(), static_cast<int>(files.size()));
}

TEST_F(SetupDiscriminators, EscapeAfterAnAddGivesCancelAlthoughTheFileIsThere) {
  EXPECT_EQ(Run([] {
              EditNext("Peak", IDOK);
              Click(addButton);
              QTest::keyClick(TopWindow(), Qt::Key_Escape);
            }),
            IDCANCEL);
  EXPECT_EQ(Files().filter(".Peak.xdct").size(), 1);
  EXPECT_TRUE(host->mainCfg.Root()->Node(L"deviceGroups")->Node(L"devices"));
}

TEST_F(SetupDiscriminators, ACancelledAddChangesNothing) {
  EXPECT_EQ(Run([] {
              EditNext("Peak", IDCANCEL);
              Click(addButton);
              EXPECT_TRUE(Shown().isEmpty());
              Click(exitButton);
            }),
            IDCANCEL);
  EXPECT_TRUE(host->guids.notices.empty());
}

TEST_F(SetupDiscriminators, ADoubleClickOrModifyOpensTheRow) {
  AddFile("1", "alpha", "");
  EXPECT_EQ(Run([] {
              EditNext("beta", IDOK);
              DoubleClickRow(discriminatorList, 0);
              EXPECT_EQ(Shown(), QStringList{"beta"});
              ClickRow(discriminatorList, 0);
              EditNext("gamma", IDOK);
              Click(modifyButton);
              EXPECT_EQ(Shown(), QStringList{"gamma"});
              Click(exitButton);
            }),
            IDOK);
  EXPECT_EQ(host->guids.notices, (std::vector<int>{8, 8}));
  EXPECT_EQ(Files(), QStringList{"1.gamma.xdct"});
}

TEST_F(SetupDiscriminators, AModifyThatChangesNothingGivesOkAndNoNotice) {
  PutFile("1.alpha.xdct",
          "<main><id>1</id><name>alpha</name><description/>"
          "<setZeroOutsideSlot>T</setZeroOutsideSlot><type>SLOTS</type></main>");
  EXPECT_EQ(Run([] {
              ClickRow(discriminatorList, 0);
              EditNext("alpha", IDOK);
              Click(modifyButton);
              Click(exitButton);
            }),
            IDOK);
  EXPECT_TRUE(host->guids.notices.empty());
}

TEST_F(SetupDiscriminators, AfterAModifyTheArrowKeysGoOnFromTheChangedRow) {
  for (const char* name : {"alpha", "beta", "gamma"}) {
    AddFile(QString(QLatin1Char(name[0])), name, "");
  }
  Run([] {
    ClickRow(discriminatorList, 0);
    EditNext("zeta", IDOK);
    Click(modifyButton);
    EXPECT_EQ(Shown(), QStringList({"beta", "gamma", "zeta"}));
    EXPECT_EQ(TheList()->currentIndex().row(), 2);
    ExpectNoneSelected();
    EXPECT_EQ(TopWindow()->focusWidget(), TheList()) << "not the exit button";
    Press(discriminatorList, Qt::Key_Up);
    EXPECT_TRUE(TheList()->topLevelItem(1)->isSelected());
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, ADoubleClickOnAnEmptyListOpensNothing) {
  Run([] {
    DoubleClickBelowRows(discriminatorList);
    EXPECT_TRUE(qobject_cast<CDlgSetupDiscriminators*>(TopWindow()));
    Click(exitButton);
  });
  EXPECT_TRUE(host->mainCfg.Root()->Node(L"deviceGroups"));
}

TEST_F(SetupDiscriminators, AFileThatHasGoneMeanwhileOpensNothing) {
  AddFile("1", "alpha", "");
  Run([this] {
    ClickRow(discriminatorList, 0);
    QFile::remove(directory.filePath("1.alpha.xdct"));
    Click(modifyButton);
    EXPECT_TRUE(qobject_cast<CDlgSetupDiscriminators*>(TopWindow()));
    EXPECT_EQ(Shown(), QStringList{"alpha"});
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, RemovingAsksOnceAndSelectsTheRowThatMovedUp) {
  for (const char* name : {"alpha", "beta", "gamma"}) {
    AddFile(QString(QLatin1Char(name[0])), name, "");
  }
  EXPECT_EQ(Run([] {
              ClickRow(discriminatorList, 1);
              AnswerNextBox(Text::RemoveDiscriminatorsQuestion, QMessageBox::Yes);
              Click(removeButton);
              EXPECT_EQ(Shown(), QStringList({"alpha", "gamma"}));
              EXPECT_TRUE(TheList()->topLevelItem(1)->isSelected());
              ExpectOneSelected();
              ClickRow(discriminatorList, 0);
              Press(discriminatorList, Qt::Key_Down, Qt::ShiftModifier);
              AnswerNextBox(Text::RemoveDiscriminatorsQuestion, QMessageBox::Yes);
              Press(discriminatorList, Qt::Key_Delete, Qt::ControlModifier);
              EXPECT_TRUE(Shown().isEmpty());
              ExpectNoneSelected();
              Click(exitButton);
            }),
            IDOK);
  EXPECT_EQ(host->guids.notices, (std::vector<int>{5, 8, 5, 8, 5, 8}));
  EXPECT_TRUE(QDir(directory.path()).isEmpty());
}

TEST_F(SetupDiscriminators, AnsweringNoKeepsRowsAndSelection) {
  AddFile("1", "alpha", "");
  AddFile("2", "beta", "");
  EXPECT_EQ(Run([] {
              ClickRow(discriminatorList, 1);
              AnswerNextBox(Text::RemoveDiscriminatorsQuestion, QMessageBox::No);
              Click(removeButton);
              EXPECT_EQ(Shown().size(), 2);
              EXPECT_TRUE(TheList()->topLevelItem(1)->isSelected());
              Click(exitButton);
            }),
            IDCANCEL);
}

TEST_F(SetupDiscriminators, AFileThatCannotBeDeletedStopsTheRemovalAndStaysSelected) {
  for (const char* name : {"alpha", "beta", "gamma"}) {
    AddFile(QString(QLatin1Char(name[0])), name, "");
  }
  QFile::setPermissions(directory.filePath("b.beta.xdct"), QFile::ReadOwner);
  EXPECT_EQ(Run([] {
              ClickRow(discriminatorList, 0);
              ClickRow(discriminatorList, 2, Qt::ShiftModifier);
              // The question and the message come one after the other.
              WhenNextWindow([] {
                AnswerBox(Text::RemoveDiscriminatorsQuestion, QMessageBox::Yes);
                AnswerNextBox(Text::DiscriminatorFileNotDeleted, QMessageBox::Ok);
              });
              Click(removeButton);
              EXPECT_EQ(Shown(), QStringList({"beta", "gamma"}));
              EXPECT_EQ(TheList()->selectedItems().size(), 2);
              Click(exitButton);
            }),
            IDOK);
}

TEST_F(SetupDiscriminators, ARemovalThatStoppedLeavesTheButtonsAsTheyWere) {
  AddFile("a", "alpha", "");
  AddFile("b", "beta", "");
  QFile::setPermissions(directory.filePath("b.beta.xdct"), QFile::ReadOwner);
  Run([] {
    ClickRow(discriminatorList, 0);
    ClickRow(discriminatorList, 1, Qt::ShiftModifier);
    EXPECT_FALSE(TopControl(modifyButton)->isEnabled());
    WhenNextWindow([] {
      AnswerBox(Text::RemoveDiscriminatorsQuestion, QMessageBox::Yes);
      AnswerNextBox(Text::DiscriminatorFileNotDeleted, QMessageBox::Ok);
    });
    Click(removeButton);
    EXPECT_EQ(TheList()->selectedItems().size(), 1);
    EXPECT_FALSE(TopControl(modifyButton)->isEnabled());
    EXPECT_TRUE(TopControl(removeButton)->isEnabled());
    Click(exitButton);
  });
}

}  // namespace
}  // namespace qv
