#include <QFile>
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
    EXPECT_EQ(TheList()->topLevelItemCount(), 0);
    ExpectNoneSelected();
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, AMissingDirectoryGivesAnEmptyList) {
  host->setup.cfgPath = L"/no/such/directory/";
  Run([] {
    EXPECT_EQ(TheList()->topLevelItemCount(), 0);
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, RowsShowNameDescriptionAndPictureSortedByName) {
  AddFile("1", "beta", "second");
  AddFile("2", "Alpha", "first");
  AddFile("3", "_gamma", "underscore stands before letters");
  Run([] {
    EXPECT_EQ(Shown(), QStringList({"_gamma", "Alpha", "beta"}));
    EXPECT_EQ(TheList()->topLevelItem(1)->text(1), "first");
    EXPECT_FALSE(TheList()->topLevelItem(0)->icon(0).isNull());
    EXPECT_EQ(TheList()->selectedItems().size(), 0);
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
    EXPECT_EQ(Caption(discriminatorsBox), TitleOf(Text::Discriminators));
    EXPECT_EQ(TheList()->headerItem()->text(0), TitleOf(Text::Name));
    EXPECT_EQ(TheList()->headerItem()->text(1), TitleOf(Text::Description));
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, AMissingPictureLeavesRowsAndButtonsWithoutOne) {
  host->setup.imagePath = L"/no/such/images/";
  AddFile("1", "alpha", "");
  Run([] {
    EXPECT_TRUE(TheList()->topLevelItem(0)->icon(0).isNull());
    EXPECT_TRUE(TopControl<QPushButton>(addButton)->icon().isNull());
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, ConditionsAreHiddenOnAnEmbeddedInstallation) {
  AddFile("1", "alpha", "", "CONDITIONS");
  AddFile("2", "beta", "");
  host->AddDevice(embeddedDriver);
  Run([] {
    EXPECT_EQ(Shown(), QStringList({"beta"}));
    Click(exitButton);
  });
  EXPECT_TRUE(QFile::exists(directory.filePath("1.alpha.xdct")));
}

TEST_F(SetupDiscriminators, ButtonsFollowTheSelection) {
  AddFile("1", "alpha", "");
  AddFile("2", "beta", "");
  Run([] {
    ExpectNoneSelected();
    ClickRow(discriminatorList, 0);
    ExpectOneSelected();
    ClickRow(discriminatorList, 1, Qt::ControlModifier);
    ExpectSeveralSelected();
    ClickRow(discriminatorList, 0, Qt::ControlModifier);
    ClickRow(discriminatorList, 1, Qt::ControlModifier);
    ExpectNoneSelected();
    Click(exitButton);
  });
}

TEST_F(SetupDiscriminators, EveryWayOutWithoutAChangeGivesCancel) {
  const std::vector<std::function<void()>> waysOut = {
      [] { Click(exitButton); },
      [] { QTest::keyClick(TopWindow(), Qt::Key_Escape); },
      [] { TopWindow()->close(); },
      [] { Press(discriminatorList, Qt::Key_Return); },
  };
  for (const auto& leave : waysOut) {
    EXPECT_EQ(Run(leave), IDCANCEL);
  }
}

TEST_F(SetupDiscriminators, TheFirstColumnHasHalfTheRoomAndTheSecondTheRest) {
  Run([] {
    const auto expectColumns = [] {
      const int room = TheList()->viewport()->width();
      EXPECT_EQ(TheList()->header()->sectionSize(0), room / 2);
      EXPECT_EQ(TheList()->header()->sectionSize(1), room - room / 2);
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
      const QRect inside = TopControl(discriminatorsBox)->geometry();
      EXPECT_TRUE(TopWindow()->rect().contains(inside));
      for (int id : {discriminatorList, addButton, modifyButton, removeButton}) {
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
    EXPECT_TRUE(TheList()->hasFocus());
    ClickRow(discriminatorList, 0);
    for (int id : {addButton, modifyButton, removeButton, exitButton, discriminatorList}) {
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
  PutFile("1.a&b.xdct",
          "<main><id>1</id><name>a&amp;b</name><description>&lt;b&gt;</description></main>");
  Run([] {
    EXPECT_EQ(Shown(), QStringList({"a&b"}));
    EXPECT_EQ(TheList()->topLevelItem(0)->text(1), "<b>");
    Click(exitButton);
  });
}

/// Makes reading slow enough that the progress window comes up: many names of one big file.
class SlowReading : public SetupDiscriminators {
 protected:
  void SetUp() override {
    const auto leaves = QByteArray("<leaf>text</leaf>").repeated(200'000);
    const QString big = PutFile("big", "<main>" + leaves + "</main>");
    for (int i = 0; i < 15; ++i) {
      ASSERT_TRUE(QFile::link(big, directory.filePath(QStringLiteral("%1.n.xdct").arg(i))));
    }
  }
};

TEST_F(SlowReading, CancellingTheFirstReadingEndsTheDialog) {
  CDlgSetupDiscriminators dialog(nullptr, nullptr);
  const int result = Play(dialog, [] {
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
        Edit(discriminatorName)->setText(QStringLiteral("Peak"));
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
