#include "discriminator/ui/CDlgSetupDiscriminators.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "hostkit/DirectorySetup.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "toolkit/ProgressDialog.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

constexpr int exitButton = 1;
constexpr int box = 5264;
constexpr int list = 5265;
constexpr int removeButton = 5347;
constexpr int addButton = 5348;
constexpr int modifyButton = 5349;
constexpr int nameEdit = 5270;

class SetupDiscriminators : public testing::Test {
 protected:
  void SetUp() override {
    host->setup.cfgPath = ToWide(directory.path() + QLatin1Char('/'));
    host->setup.imagePath = ToWide(QStringLiteral(IMAGE_FOLDER "/"));
  }

  void AddFile(const QString& id, const QString& name, const QString& description,
               const QString& type = QStringLiteral("SLOTS")) {
    const auto content = QStringLiteral(
                             "<main><id>%1</id><name>%2</name><description>%3</description>"
                             "<type>%4</type></main>")
                             .arg(id, name, description, type);
    QFile file(directory.filePath(id + QLatin1Char('.') + name + QStringLiteral(".xdct")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content.toUtf8());
  }

  int Run(const std::function<void()>& script) {
    CDlgSetupDiscriminators dialog(nullptr, nullptr);
    return Drive([&] { return dialog.DoModal(); }, script);
  }

  static QTreeWidget* List() { return qobject_cast<QTreeWidget*>(TopControl(list)); }

  static QStringList Names() {
    QStringList names;
    for (int i = 0; i < List()->topLevelItemCount(); ++i) {
      names << List()->topLevelItem(i)->text(0);
    }
    return names;
  }

  static void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
    const QRect place = List()->visualItemRect(List()->topLevelItem(row));
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, modifiers, place.center());
  }

  static void ExpectButtons(bool add, bool modify, bool remove) {
    EXPECT_EQ(TopControl(addButton)->isEnabled(), add);
    EXPECT_EQ(TopControl(modifyButton)->isEnabled(), modify);
    EXPECT_EQ(TopControl(removeButton)->isEnabled(), remove);
  }

  QTemporaryDir directory;
  InstalledFakeHost host;
};

TEST_F(SetupDiscriminators, AnEmptyDirectoryGivesAnEmptyListWithAddAlone) {
  Run([] {
    EXPECT_EQ(List()->topLevelItemCount(), 0);
    ExpectButtons(true, false, false);
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, AMissingDirectoryGivesAnEmptyList) {
  host->setup.cfgPath = L"/no/such/directory/";
  Run([] {
    EXPECT_EQ(List()->topLevelItemCount(), 0);
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, RowsShowNameDescriptionAndPictureSortedByName) {
  AddFile("1", "beta", "second");
  AddFile("2", "Alpha", "first");
  AddFile("3", "_gamma", "underscore stands before letters");
  Run([] {
    EXPECT_EQ(Names(), QStringList({"_gamma", "Alpha", "beta"}));
    EXPECT_EQ(List()->topLevelItem(1)->text(1), "first");
    EXPECT_FALSE(List()->topLevelItem(0)->icon(0).isNull());
    EXPECT_EQ(List()->selectedItems().size(), 0);
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, TextsComeByNumber) {
  Run([] {
    EXPECT_EQ(TopWindow()->windowTitle(), "[32367]");
    EXPECT_EQ(TopControl(addButton)->accessibleName(), "[415]");
    EXPECT_EQ(TopControl(modifyButton)->accessibleName(), "[416]");
    EXPECT_EQ(TopControl(removeButton)->accessibleName(), "[420]");
    EXPECT_EQ(TopControl(exitButton)->accessibleName(), "[419]");
    EXPECT_EQ(qobject_cast<QGroupBox*>(TopControl(box))->title(), "[32370]");
    EXPECT_EQ(List()->headerItem()->text(0), "[355]");
    EXPECT_EQ(List()->headerItem()->text(1), "[284]");
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, AMissingPictureLeavesRowsAndButtonsWithoutOne) {
  host->setup.imagePath = L"/no/such/images/";
  AddFile("1", "alpha", "");
  Run([] {
    EXPECT_TRUE(List()->topLevelItem(0)->icon(0).isNull());
    EXPECT_TRUE(qobject_cast<QPushButton*>(TopControl(addButton))->icon().isNull());
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, ConditionsAreHiddenOnAnEmbeddedInstallation) {
  AddFile("1", "alpha", "", "CONDITIONS");
  AddFile("2", "beta", "");
  ASSERT_TRUE(host->mainCfg.Parse(
      "<c><commSystem><device><driver>KORVAXEMBEDDED</driver></device></commSystem></c>"));
  Run([] {
    EXPECT_EQ(Names(), QStringList({"beta"}));
    Click(exitButton);
  });
  EXPECT_TRUE(QFile::exists(directory.filePath("1.alpha.xdct")));
}

TEST_F(SetupDiscriminators, ButtonsFollowTheSelection) {
  AddFile("1", "alpha", "");
  AddFile("2", "beta", "");
  Run([] {
    ExpectButtons(true, false, false);
    ClickRow(0);
    ExpectButtons(true, true, true);
    ClickRow(1, Qt::ControlModifier);
    ExpectButtons(true, false, true);
    ClickRow(0, Qt::ControlModifier);
    ClickRow(1, Qt::ControlModifier);
    ExpectButtons(true, false, false);
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, EveryWayOutWithoutAChangeGivesCancel) {
  const std::vector<std::function<void()>> waysOut = {
      [] { Click(exitButton); },
      [] { QTest::keyClick(TopWindow(), Qt::Key_Escape); },
      [] { TopWindow()->close(); },
      [] { QTest::keyClick(List(), Qt::Key_Return); },
  };
  for (const auto& leave : waysOut) {
    EXPECT_EQ(Run(leave), IDCANCEL);
  }
}

TEST_F(SetupDiscriminators, TheFirstColumnHasHalfTheRoomAndTheSecondTheRest) {
  Run([] {
    const auto expectColumns = [] {
      const int room = List()->viewport()->width();
      EXPECT_EQ(List()->header()->sectionSize(0), room / 2);
      EXPECT_EQ(List()->header()->sectionSize(1), room - room / 2);
    };
    expectColumns();
    TopWindow()->resize(TopWindow()->size() + QSize(101, 30));
    Settle();
    expectColumns();
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, TheOpeningSizeIsTheLeastSize) {
  Run([] {
    const QSize opening = TopWindow()->size();
    TopWindow()->resize(100, 100);
    Settle();
    EXPECT_EQ(TopWindow()->size(), opening);
    TopWindow()->resize(opening + QSize(200, 100));
    Settle();
    EXPECT_EQ(TopWindow()->size(), opening + QSize(200, 100));
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, ControlsFillTheWindowWithoutOverlap) {
  Run([] {
    for (const QSize& size : {TopWindow()->size(), QSize(900, 700), QSize(1600, 1000)}) {
      TopWindow()->resize(size);
      Settle();
      const QRect inside = TopControl(box)->geometry();
      EXPECT_TRUE(TopWindow()->rect().contains(inside));
      for (int id : {list, addButton, modifyButton, removeButton}) {
        EXPECT_TRUE(inside.contains(TopControl(id)->geometry())) << id;
      }
      EXPECT_FALSE(inside.intersects(TopControl(exitButton)->geometry()));
      EXPECT_GT(TopControl(removeButton)->y(), TopControl(addButton)->y());
      EXPECT_EQ(TopControl(modifyButton)->y(), TopControl(addButton)->y());
    }
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, TheListHasTheFocusAndTabVisitsTheButtons) {
  AddFile("1", "alpha", "");
  Run([] {
    EXPECT_TRUE(List()->hasFocus());
    ClickRow(0);
    for (int id : {addButton, modifyButton, removeButton, exitButton, list}) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      EXPECT_EQ(QApplication::focusWidget(), TopControl(id)) << id;
    }
    Click(exitButton);
  });
}

/// Fills the editor that the next event opens, and leaves it by this control.
void EditNext(const QString& name, int leaveBy) {
  WhenNextWindow([=] {
    auto* edit = qobject_cast<QLineEdit*>(TopControl(nameEdit));
    ASSERT_TRUE(edit);
    edit->selectAll();
    QTest::keyClicks(edit, name);
    Click(leaveBy);
  });
}

TEST_F(SetupDiscriminators, AddMakesAFileARowAndAnEntry) {
  XmlDocument groups;
  groups.Create(L"deviceGroups");
  CDlgSetupDiscriminators dialog(groups.Root(), nullptr);
  const int result = Drive([&] { return dialog.DoModal(); },
                           [] {
                             EditNext("Peak", IDOK);
                             Click(addButton);
                             EXPECT_EQ(Names(), QStringList{"Peak"});
                             EXPECT_TRUE(List()->selectedItems().isEmpty());
                             ExpectButtons(true, false, false);
                             EditNext("Night", IDOK);
                             QTest::keyClick(List(), Qt::Key_Insert);
                             EXPECT_EQ(Names(), QStringList({"Night", "Peak"}));
                             Click(exitButton);
                           });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(host->guids.notices, (std::vector<int>{8, 5, 8, 5}));
  EXPECT_EQ(std::distance(groups.Root()->Node(L"devices")->ChildsBegin(),
                          groups.Root()->Node(L"devices")->ChildsEnd()),
            2);
}

TEST_F(SetupDiscriminators, EscapeAfterAnAddGivesCancelAlthoughTheFileIsThere) {
  EXPECT_EQ(Run([] {
              EditNext("Peak", IDOK);
              Click(addButton);
              QTest::keyClick(TopWindow(), Qt::Key_Escape);
            }),
            IDCANCEL);
  EXPECT_EQ(QDir(directory.path()).entryList({"*.Peak.xdct"}).size(), 1);
  EXPECT_TRUE(host->mainCfg.Root()->Node(L"deviceGroups")->Node(L"devices"));
}

TEST_F(SetupDiscriminators, ACancelledAddChangesNothing) {
  EXPECT_EQ(Run([] {
              EditNext("Peak", IDCANCEL);
              Click(addButton);
              EXPECT_TRUE(Names().isEmpty());
              Click(exitButton);
            }),
            IDCANCEL);
  EXPECT_TRUE(host->guids.notices.empty());
}

TEST_F(SetupDiscriminators, ADoubleClickOrModifyOpensTheRow) {
  AddFile("1", "alpha", "");
  EXPECT_EQ(Run([] {
              EditNext("beta", IDOK);
              const QRect row = List()->visualItemRect(List()->topLevelItem(0));
              QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, row.center());
              EXPECT_EQ(Names(), QStringList{"beta"});
              ClickRow(0);
              EditNext("gamma", IDOK);
              Click(modifyButton);
              EXPECT_EQ(Names(), QStringList{"gamma"});
              Click(exitButton);
            }),
            IDOK);
  EXPECT_EQ(host->guids.notices, (std::vector<int>{8, 8}));
  EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files), QStringList{"1.gamma.xdct"});
}

TEST_F(SetupDiscriminators, AModifyThatChangesNothingGivesOkAndNoNotice) {
  const auto content =
      "<main><id>1</id><name>alpha</name><description/><setZeroOutsideSlot>T</setZeroOutsideSlot>"
      "<type>SLOTS</type></main>";
  QFile file(directory.filePath("1.alpha.xdct"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(content);
  file.close();
  EXPECT_EQ(Run([] {
              ClickRow(0);
              EditNext("alpha", IDOK);
              Click(modifyButton);
              Click(exitButton);
            }),
            IDOK);
  EXPECT_TRUE(host->guids.notices.empty());
}

TEST_F(SetupDiscriminators, ADoubleClickOnAnEmptyListOpensNothing) {
  Run([] {
    QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_TRUE(qobject_cast<CDlgSetupDiscriminators*>(TopWindow()));
    Click(exitButton);
  });
  EXPECT_TRUE(host->mainCfg.Root()->Node(L"deviceGroups"));
}

TEST_F(SetupDiscriminators, AFileThatHasGoneMeanwhileOpensNothing) {
  AddFile("1", "alpha", "");
  Run([this] {
    ClickRow(0);
    QFile::remove(directory.filePath("1.alpha.xdct"));
    Click(modifyButton);
    EXPECT_TRUE(qobject_cast<CDlgSetupDiscriminators*>(TopWindow()));
    EXPECT_EQ(Names(), QStringList{"alpha"});
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, RemovingAsksOnceAndSelectsTheRowThatMovedUp) {
  for (const char* name : {"alpha", "beta", "gamma"}) {
    AddFile(QString(QLatin1Char(name[0])), name, "");
  }
  EXPECT_EQ(Run([] {
              ClickRow(1);
              AnswerNextBox(32368, QMessageBox::Yes);
              Click(removeButton);
              EXPECT_EQ(Names(), QStringList({"alpha", "gamma"}));
              EXPECT_TRUE(List()->topLevelItem(1)->isSelected());
              ExpectButtons(true, true, true);
              ClickRow(0);
              QTest::keyClick(List(), Qt::Key_Down, Qt::ShiftModifier);
              AnswerNextBox(32368, QMessageBox::Yes);
              QTest::keyClick(List(), Qt::Key_Delete, Qt::ControlModifier);
              EXPECT_TRUE(Names().isEmpty());
              ExpectButtons(true, false, false);
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
              ClickRow(1);
              AnswerNextBox(32368, QMessageBox::No);
              Click(removeButton);
              EXPECT_EQ(Names().size(), 2);
              EXPECT_TRUE(List()->topLevelItem(1)->isSelected());
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
              ClickRow(0);
              ClickRow(2, Qt::ShiftModifier);
              // The question and the message come one after the other.
              WhenNextWindow([] {
                qobject_cast<QMessageBox*>(TopWindow())->button(QMessageBox::Yes)->click();
                AnswerNextBox(32369, QMessageBox::Ok);
              });
              Click(removeButton);
              EXPECT_EQ(Names(), QStringList({"beta", "gamma"}));
              EXPECT_EQ(List()->selectedItems().size(), 2);
              Click(exitButton);
            }),
            IDOK);
}

TEST_F(SetupDiscriminators, CopyAndPasteByKeysMakeNewRows) {
  AddFile("1", "alpha", "a");
  EXPECT_EQ(Run([] {
              ClickRow(0);
              QTest::keyClick(List(), Qt::Key_C, Qt::ControlModifier);
              QTest::keyClick(List(), Qt::Key_V, Qt::ControlModifier);
              QTest::keyClick(List(), Qt::Key_V, Qt::ControlModifier);
              EXPECT_EQ(Names(), QStringList({"alpha", "alpha_1", "alpha_2"}));
              EXPECT_TRUE(List()->selectedItems().isEmpty());
              EXPECT_EQ(TopWindow()->cursor().shape(), Qt::ArrowCursor);
              Click(exitButton);
            }),
            IDOK);
  EXPECT_EQ(host->guids.notices, (std::vector<int>{8, 5, 8, 5}));
}

/// The captions of the menu that a right click brings up; none if it brings none.
QStringList MenuAt(QWidget* viewport) {
  QStringList captions;
  QTimer::singleShot(0, viewport, [&captions] {
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
      for (const QAction* action : menu->actions()) {
        captions << action->text();
      }
      menu->close();
    }
  });
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
  QApplication::sendEvent(viewport, &event);
  Settle();
  return captions;
}

TEST_F(SetupDiscriminators, TheMenuOffersCopyAndPasteAsFarAsTheyCanBeDone) {
  AddFile("1", "alpha", "a");
  Run([this] {
    EXPECT_EQ(MenuAt(List()->viewport()), QStringList());
    ClickRow(0);
    EXPECT_EQ(MenuAt(List()->viewport()), QStringList({"[732]\tCtrl+C"}));
    host->clipboard.text = "<discriminatorClipboard/>";
    EXPECT_EQ(MenuAt(List()->viewport()), QStringList({"[732]\tCtrl+C", "[742]\tCtrl+V"}));
    List()->clearSelection();
    EXPECT_EQ(MenuAt(List()->viewport()), QStringList({"[742]\tCtrl+V"}));
    host->clipboard.text = "<main/>";
    EXPECT_EQ(MenuAt(List()->viewport()), QStringList());
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, WithoutServicesTheResultIsMinusOne) {
  QVVornelGuids::Install(nullptr);
  CDlgSetupDiscriminators dialog(nullptr, nullptr);
  EXPECT_EQ(dialog.DoModal(), -1);
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(SetupDiscriminators, MarkupInNamesIsShownAsItStands) {
  QFile file(directory.filePath("1.a&b.xdct"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("<main><id>1</id><name>a&amp;b</name><description>&lt;b&gt;</description></main>");
  file.close();
  Run([] {
    EXPECT_EQ(Names(), QStringList({"a&b"}));
    EXPECT_EQ(List()->topLevelItem(0)->text(1), "<b>");
    Click(exitButton);
  });
}

/// Makes reading slow enough that the progress window comes up: many names of one big file.
class SlowReading : public SetupDiscriminators {
 protected:
  void SetUp() override {
    SetupDiscriminators::SetUp();
    QFile file(directory.filePath("big"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<main>" + QByteArray("<leaf>text</leaf>").repeated(200'000) + "</main>");
    for (int i = 0; i < 200; ++i) {
      ASSERT_TRUE(file.link(directory.filePath(QStringLiteral("%1.n.xdct").arg(i))));
    }
  }
};

TEST_F(SlowReading, CancellingTheFirstReadingEndsTheDialog) {
  CDlgSetupDiscriminators dialog(nullptr, nullptr);
  const int result = Drive([&] { return dialog.DoModal(); },
                           [] {
                             auto* progress = qobject_cast<ProgressDialog*>(TopWindow());
                             ASSERT_TRUE(progress);
                             auto* cancel = progress->findChild<QPushButton*>();
                             ASSERT_TRUE(cancel);
                             QTest::mouseClick(cancel, Qt::LeftButton);
                             progress->hide();
                           });
  EXPECT_EQ(result, IDCANCEL);
  EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace qv
