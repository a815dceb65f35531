#include "apps/configurator/MainWindow.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>

#include "apps/configurator/StatusLine.h"
#include "host/Text.h"
#include "library/QVDiscriminator.h"
#include "tests/apps/ExampleCopy.h"
#include "tests/support/DialogDriver.h"

namespace configurator {
namespace {

/// Control of the manager.
constexpr int removeButton = 5347;

/// The real window on a copy of the example installation, in English.
class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest() {
    EXPECT_FALSE(workspace.SetLanguage(Language::English));
    EXPECT_FALSE(workspace.Open(installation.Directory()));
    window = std::make_unique<MainWindow>(workspace);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  template <class Child>
  Child* Find(const char* name) {
    auto* child = window->findChild<Child*>(QString::fromLatin1(name));
    EXPECT_TRUE(child) << name;
    return child;
  }

  /// Opens the manager by its button, and lets `script` play with it; it ends by Escape.
  void WithManager(const std::function<void(QWidget&)>& script) {
    qv::Drive(
        [this] {
          QTest::mouseClick(Find<QPushButton>("discriminators"), Qt::LeftButton);
          return 0;
        },
        [&] {
          ASSERT_TRUE(qobject_cast<CDlgSetupDiscriminators*>(qv::TopWindow()));
          script(*qv::TopWindow());
          QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
        });
  }

  int RowsOfManager() {
    int rows = -1;
    WithManager([&](QWidget& manager) {
      rows = manager.findChild<QAbstractItemView*>()->model()->rowCount();
    });
    return rows;
  }

  /// Runs the manager, removes "Day and night" there, and leaves it by `leave`.
  void RemoveDayAndNight(const std::function<void()>& leave) {
    qv::Drive(
        [this] {
          Find<QPushButton>("discriminators")->click();
          return 0;
        },
        [&] {
          auto* rows = qv::TopWindow()->findChild<QAbstractItemView*>();
          rows->selectionModel()->select(rows->model()->index(0, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
          qv::AnswerNextBox(Number(Text::RemoveDiscriminatorsQuestion), QMessageBox::Yes);
          qv::Click(removeButton);
          leave();
        });
    EXPECT_FALSE(std::filesystem::exists(
        installation.File("3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b.Day and night.xdct")));
    EXPECT_EQ(TopLines().last(), "R$DISC_Tariff 3-0TD and 6-1TD 2026");
    EXPECT_EQ(Told(), "Device groups changed (5) · Discriminator files changed (8)");
  }

  /// The message box that `run` brings up: its text, after it has been confirmed.
  QString Message(const std::function<void()>& run) {
    QString text;
    qv::Drive(
        [&] {
          run();
          return 0;
        },
        [&] {
          auto* box = qobject_cast<QMessageBox*>(qv::TopWindow());
          ASSERT_TRUE(box);
          text = box->text();
          box->button(QMessageBox::Ok)->click();
        });
    return text;
  }

  /// The texts of the tree's lines at the top, without those below them.
  QStringList TopLines() {
    const auto* model = window->findChild<QTreeView*>()->model();
    QStringList lines;
    for (int row = 0; row < model->rowCount(); ++row) {
      lines += model->index(row, 0).data().toString();
    }
    return lines;
  }

  QString Told() { return window->findChild<StatusLine*>()->Told(); }

  ExampleCopy installation;
  Workspace workspace{ProgramDirectories::OfThisProgram()};
  std::unique_ptr<MainWindow> window;
};

TEST_F(MainWindowTest, ShowsTheDeviceGroups) {
  EXPECT_EQ(TopLines(),
            QStringList({"Transformer station", "Lighting", "BILLING", "R$DISC_Tariff 2-0TD 2026",
                         "R$DISC_Tariff 3-0TD and 6-1TD 2026", "R$DISC_Day and night"}));
}

TEST_F(MainWindowTest, TellsWhichInstallationIsOpen) {
  const QString name = installation.Directory().section(QLatin1Char('/'), -1);
  EXPECT_TRUE(window->windowTitle().startsWith(name + "[*] ")) << qPrintable(window->windowTitle());
  EXPECT_EQ(Find<QLabel>("path")->text(), installation.Directory());
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(MainWindowTest, TheButtonRunsTheManagerAndEscapeLeavesTheConfigurationAlone) {
  const std::string before = installation.ConfigurationBytes();
  WithManager([&](QWidget& manager) {
    EXPECT_EQ(manager.parentWidget(), window.get());
    EXPECT_EQ(manager.findChild<QAbstractItemView*>()->model()->rowCount(), 4);
  });
  EXPECT_EQ(installation.ConfigurationBytes(), before);
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(MainWindowTest, TheExitButtonWithNothingChangedLeavesTheConfigurationAlone) {
  const std::string before = installation.ConfigurationBytes();
  workspace.Config().SetEmbedded(true);  // so that a saving would show
  qv::Drive(
      [this] {
        Find<QPushButton>("discriminators")->click();
        return 0;
      },
      [] { qv::Click(IDOK); });
  EXPECT_EQ(installation.ConfigurationBytes(), before);
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(MainWindowTest, AChangeLeftByTheExitButtonIsSaved) {
  RemoveDayAndNight([] { qv::Click(IDOK); });
  EXPECT_EQ(installation.ConfigurationBytes().find("3cb7ab9e"), std::string::npos);
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(MainWindowTest, AChangeLeftByEscapeIsShownAndNotSaved) {
  const std::string before = installation.ConfigurationBytes();
  RemoveDayAndNight([] { QTest::keyClick(qv::TopWindow(), Qt::Key_Escape); });
  EXPECT_EQ(installation.ConfigurationBytes(), before);
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(MainWindowTest, TheTreeIsReadAgainHoweverTheManagerWasLeft) {
  WithManager([this](QWidget&) {
    std::filesystem::remove(
        installation.File("3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b.Day and night.xdct"));
  });
  EXPECT_EQ(TopLines().last(), "3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b");
}

TEST_F(MainWindowTest, WithoutDeviceGroupsTheManagerIsGivenNone) {
  ExampleCopy other;
  std::filesystem::remove(other.File("configuration.xml"));
  window->Open(other.Directory());
  EXPECT_EQ(TopLines(), QStringList());
  EXPECT_EQ(Told(), "New configuration: Save creates its file");
  EXPECT_EQ(RowsOfManager(), 4);
  EXPECT_FALSE(workspace.Config().DeviceGroups());
  EXPECT_FALSE(std::filesystem::exists(other.File("configuration.xml")));
}

TEST_F(MainWindowTest, SwitchesTheLanguageOfAllTexts) {
  const auto titles = [this] {
    QStringList texts;
    for (const QAction* action : window->menuBar()->actions()) {
      texts += action->text().remove(QLatin1Char('&'));
    }
    return texts + QStringList(Find<QPushButton>("discriminators")->text());
  };
  EXPECT_EQ(titles(), QStringList({"File", "Settings", "Help", "&Discriminators…"}));

  Find<QAction>("language-es")->trigger();
  EXPECT_EQ(titles(), QStringList({"Archivo", "Configuración", "Ayuda", "&Discriminadores…"}));
  EXPECT_TRUE(window->windowTitle().endsWith("Configurador"));
  EXPECT_EQ(window->findChild<QTreeView*>()->model()->headerData(1, Qt::Horizontal), "Tipo");
  EXPECT_EQ(Told(), "Listo");
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancelar");
  WithManager([](QWidget& manager) {
    EXPECT_EQ(manager.windowTitle(), "Configuración de discriminadores");
  });

  Find<QAction>("language-en")->trigger();
  EXPECT_EQ(titles(), QStringList({"File", "Settings", "Help", "&Discriminators…"}));
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancel");
  EXPECT_TRUE(Find<QAction>("language-en")->isChecked());
  EXPECT_FALSE(Find<QAction>("language-es")->isChecked());
}

TEST_F(MainWindowTest, ShowsEachNotice) {
  QVVornelGuids::get()->invalidateGuid(QVVornelGuids::Discriminators, true);
  EXPECT_EQ(Told(), "Discriminator files changed (8)");
  QVVornelGuids::get()->invalidateGuid(QVVornelGuids::DeviceGroups, true);
  EXPECT_EQ(Told(), "Discriminator files changed (8) · Device groups changed (5)");
}

TEST_F(MainWindowTest, TheNoticesOfARunOfTheManagerStandAlone) {
  QVVornelGuids::get()->invalidateGuid(QVVornelGuids::Discriminators, true);
  WithManager(
      [](QWidget&) { QVVornelGuids::get()->invalidateGuid(QVVornelGuids::DeviceGroups, true); });
  EXPECT_EQ(Told(), "Device groups changed (5)");
}

TEST_F(MainWindowTest, AnEmbeddedInstallationHidesTheConditions) {
  EXPECT_FALSE(Find<QAction>("embedded")->isChecked());
  EXPECT_EQ(RowsOfManager(), 4);
  Find<QAction>("embedded")->trigger();
  EXPECT_EQ(RowsOfManager(), 3);
  EXPECT_TRUE(window->isWindowModified());
  Find<QAction>("embedded")->trigger();
  EXPECT_EQ(RowsOfManager(), 4);
  EXPECT_FALSE(window->isWindowModified());
}

TEST_F(MainWindowTest, SavesByItsShortcut) {
  Find<QAction>("embedded")->trigger();
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Told(), "Configuration saved");
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_NE(installation.ConfigurationBytes().find("KORVAXEMBEDDED"), std::string::npos);
  window->Open(installation.Directory());
  EXPECT_TRUE(Find<QAction>("embedded")->isChecked());
}

TEST_F(MainWindowTest, AFailedSavingIsToldAndTheChangeStays) {
  Find<QAction>("embedded")->trigger();
  std::filesystem::remove(installation.File("configuration.xml"));
  std::filesystem::create_directory(installation.File("configuration.xml"));
  const QString told = Message([this] { Find<QAction>("save")->trigger(); });
  EXPECT_TRUE(told.contains("could not be saved")) << qPrintable(told);
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_TRUE(workspace.Config().IsEmbedded());
}

TEST_F(MainWindowTest, ABrokenConfigurationIsRefusedAndTheInstallationStays) {
  ExampleCopy broken;
  std::ofstream(broken.File("configuration.xml")) << "<configuration>";
  const QString told = Message([&] { window->Open(broken.Directory()); });
  EXPECT_TRUE(told.contains(broken.Directory() + "/configuration.xml")) << qPrintable(told);
  EXPECT_EQ(workspace.Directory(), installation.Directory());
  EXPECT_EQ(Find<QLabel>("path")->text(), installation.Directory());
  EXPECT_EQ(TopLines().size(), 6);
  EXPECT_EQ(broken.ConfigurationBytes(), "<configuration>");
}

TEST_F(MainWindowTest, AForeignConfigurationAndAMissingDirectoryAreRefused) {
  ExampleCopy foreign;
  std::ofstream(foreign.File("configuration.xml")) << "<main/>";
  EXPECT_TRUE(Message([&] {
                window->Open(foreign.Directory());
              }).contains("is not the configuration of an installation"));
  EXPECT_TRUE(
      Message([&] { window->Open(foreign.Directory() + "/none"); }).contains("does not exist"));
  EXPECT_EQ(workspace.Directory(), installation.Directory());
}

TEST_F(MainWindowTest, TheManagerWorksOnTheInstallationOpenedLast) {
  ExampleCopy other;
  std::filesystem::remove(other.File("3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b.Day and night.xdct"));
  window->Open(other.Directory());
  EXPECT_EQ(RowsOfManager(), 3);
  EXPECT_EQ(Find<QLabel>("path")->text(), other.Directory());
}

TEST_F(MainWindowTest, TheManagerOpensByItsKey) {
  bool opened = false;
  qv::Drive(
      [&] {
        QTest::keyClick(window.get(), Qt::Key_D, Qt::AltModifier);
        // A button pressed by its key stays down for a moment before it acts.
        EXPECT_TRUE(QTest::qWaitFor([&] { return opened; }));
        return 0;
      },
      [&] {
        opened = true;
        QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
      });
}

TEST_F(MainWindowTest, ClosesByItsShortcutWithoutASaving) {
  const std::string before = installation.ConfigurationBytes();
  QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(installation.ConfigurationBytes(), before);
}

TEST_F(MainWindowTest, TabReachesTheTreeAndTheButton) {
  auto* tree = window->findChild<QTreeView*>();
  tree->setFocus();
  QTest::keyClick(tree, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), Find<QPushButton>("discriminators"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget(), tree);
}

TEST_F(MainWindowTest, TellsAboutItself) {
  const QString told = Message([this] { Find<QAction>("about")->trigger(); });
  EXPECT_TRUE(told.contains(CONFIGURATOR_VERSION)) << qPrintable(told);
}

}  // namespace
}  // namespace configurator
