#include "apps/configurator/MainWindow.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <filesystem>
#include <fstream>

#include "tests/apps/ExampleCopy.h"
#include "tests/apps/MainWindowFixture.h"

namespace configurator {
namespace {

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
  InManager([] { qv::Click(IDOK); });
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
  EXPECT_EQ(titles(), QStringList({"File", "Edit", "Settings", "Help", "&Discriminators…"}));

  Find<QAction>("language-es")->trigger();
  EXPECT_EQ(titles(),
            QStringList({"Archivo", "Editar", "Configuración", "Ayuda", "&Discriminadores…"}));
  EXPECT_TRUE(window->windowTitle().endsWith("Configurador"));
  EXPECT_EQ(window->findChild<QTreeView*>()->model()->headerData(1, Qt::Horizontal), "Tipo");
  EXPECT_EQ(Told(), "Listo");
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancelar");
  WithManager([](QWidget& manager) {
    EXPECT_EQ(manager.windowTitle(), "Configuración de discriminadores");
  });

  Find<QAction>("language-en")->trigger();
  EXPECT_EQ(titles(), QStringList({"File", "Edit", "Settings", "Help", "&Discriminators…"}));
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancel");
  EXPECT_TRUE(Find<QAction>("language-en")->isChecked());
  EXPECT_FALSE(Find<QAction>("language-es")->isChecked());
}

TEST_F(MainWindowTest, TheWindowThatOpensAnInstallationHasATitleNotAMenuText) {
  const auto openByMenu = [this] {
    for (QAction* action : window->findChildren<QAction*>()) {
      if (action->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_O)) {
        action->trigger();
      }
    }
    return 0;
  };
  qv::Drive(openByMenu, [] {
    EXPECT_EQ(qv::TopWindow()->windowTitle(), "Open installation");
    QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
  });
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
