#include <gtest/gtest.h>

#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include "tests/manager/ui/ManagerFixture.h"
#include "toolkit/ProgressDialog.h"

namespace qv {
namespace {

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
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::DiscriminatorListTitle));
    EXPECT_EQ(TopControl(addButton)->accessibleName(), TitleOf(Text::Add));
    EXPECT_EQ(TopControl(modifyButton)->accessibleName(), TitleOf(Text::Modify));
    EXPECT_EQ(TopControl(removeButton)->accessibleName(), TitleOf(Text::Remove));
    EXPECT_EQ(TopControl(exitButton)->accessibleName(), TitleOf(Text::Exit));
    EXPECT_EQ(qobject_cast<QGroupBox*>(TopControl(box))->title(), TitleOf(Text::Discriminators));
    EXPECT_EQ(List()->headerItem()->text(0), TitleOf(Text::Name));
    EXPECT_EQ(List()->headerItem()->text(1), TitleOf(Text::Description));
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
    for (int i = 0; i < 15; ++i) {
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

/// Adds a discriminator while reading is slow, and presses Escape at the progress of the refresh.
class SlowAdd {
 public:
  SlowAdd() {
    QObject::connect(&m_poll, &QTimer::timeout, [this] { Look(); });
    m_poll.start(5);
  }

  /// Of each progress window that came up, whether it offered Cancel.
  std::vector<bool> offered;

 private:
  void Look() {
    QWidget* top = TopWindow();
    if (auto* progress = qobject_cast<ProgressDialog*>(top)) {
      LookAtProgress(progress);
    } else if (m_next == 0 && qobject_cast<CDlgSetupDiscriminators*>(top)) {
      Then([] { Click(addButton); });
    } else if (m_next == 1 && top && top->findChild<QLineEdit*>()) {
      Then([] {
        qobject_cast<QLineEdit*>(TopControl(nameEdit))->setText(QStringLiteral("Peak"));
        Click(IDOK);
      });
    } else if (m_next == 2 && qobject_cast<CDlgSetupDiscriminators*>(top) && offered.size() == 2) {
      Then([] { Click(exitButton); });
    }
  }

  void LookAtProgress(ProgressDialog* progress) {
    if (!m_progress) {
      m_progress = progress;
      offered.push_back(progress->findChild<QPushButton*>() != nullptr);
    }
    if (m_next == 2) {
      QTest::keyClick(progress, Qt::Key_Escape);
    }
  }

  /// The steps open windows, and so must not run inside the timer that watches these.
  void Then(const std::function<void()>& step) {
    ++m_next;
    QTimer::singleShot(0, qApp, step);
  }

  QTimer m_poll;
  QPointer<ProgressDialog> m_progress;
  int m_next = 0;
};

TEST_F(SlowReading, ARefreshShowsProgressThatCannotBeCancelled) {
  CDlgSetupDiscriminators dialog(nullptr, nullptr);
  const SlowAdd user;
  EXPECT_EQ(dialog.DoModal(), IDOK);
  EXPECT_EQ(user.offered, (std::vector<bool>{true, false}));
  EXPECT_EQ(host->guids.notices, (std::vector<int>{8, 5}));
}

}  // namespace
}  // namespace qv
