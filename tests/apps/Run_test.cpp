// What a run of the program leaves for the next one.
#include "apps/configurator/Run.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QTest>
#include <QTimer>
#include <functional>

#include "apps/configurator/MainWindow.h"
#include "apps/configurator/Settings.h"
#include "apps/configurator/StartWindow.h"
#include "tests/apps/ExampleCopy.h"
#include "tests/support/DialogDriver.h"

namespace configurator {
namespace {

MainWindow* ShownMainWindow() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* main = qobject_cast<MainWindow*>(window); main && main->isVisible()) {
      return main;
    }
  }
  return nullptr;
}

/// The program with settings of its own.
class RunTest : public testing::Test {
 protected:
  int Start() const { return configurator::Run(arguments); }

  /// Runs the program; once its main window is up, `play` is called and the window closed.
  void InMain(const std::function<void(MainWindow&)>& play) {
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
      if (MainWindow* window = ShownMainWindow()) {
        poll.stop();
        qv::Settle();
        play(*window);
        window->close();
      }
    });
    poll.start(0);
    EXPECT_EQ(Start(), 0);
    EXPECT_FALSE(poll.isActive()) << "the main window was never shown";
  }

  const ExampleCopy installation;
  const qv::TemporaryDirectory directory;
  const QString file = QString::fromStdString((directory.Path() / "a.ini").string());
  Arguments arguments = [this] {
    Arguments read;
    read.installation = installation.Directory().toStdString();
    read.settings = file.toStdString();
    return read;
  }();
};

TEST_F(RunTest, TheSizeOfTheWindowIsRemembered) {
  InMain([](MainWindow& window) { window.resize(611, 433); });
  InMain([](MainWindow& window) { EXPECT_EQ(window.size(), QSize(611, 433)); });
}

TEST_F(RunTest, TheLanguageThatIsChosenIsRememberedButNotThatOfTheCall) {
  arguments.language = qv::Language::English;
  InMain([](MainWindow&) {});
  EXPECT_FALSE(Settings(file).Language());
  InMain([](MainWindow& window) { window.findChild<QAction*>("language-es")->trigger(); });
  EXPECT_EQ(Settings(file).Language(), qv::Language::Spanish);
  arguments.language.reset();
  InMain([](MainWindow& window) {
    EXPECT_TRUE(window.windowTitle().endsWith("Configurador")) << qPrintable(window.windowTitle());
  });
}

TEST_F(RunTest, TheLastInstallationIsOpenedIfNoneIsNamed) {
  const ExampleCopy other;
  InMain([&](MainWindow& window) { window.Open(other.Directory()); });
  EXPECT_EQ(Settings(file).Installation(), other.Directory());
  arguments.installation.clear();
  const QString name = other.Directory().section('/', -1);
  InMain([&](MainWindow& window) { EXPECT_TRUE(window.windowTitle().startsWith(name)); });
}

TEST_F(RunTest, WithoutALastInstallationTheStartWindowIsShown) {
  arguments.installation.clear();
  const auto leave = [] {
    EXPECT_TRUE(qobject_cast<StartWindow*>(qv::TopWindow()));
    EXPECT_FALSE(qv::TopWindow()->findChild<QWidget*>("note"));
    QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
  };
  EXPECT_EQ(qv::Drive([this] { return Start(); }, leave), 0);
  EXPECT_EQ(Settings(file).Installation(), "");
}

TEST_F(RunTest, ALastInstallationThatHasGoneIsToldInTheStartWindow) {
  arguments.installation.clear();
  Settings(file).SetInstallation("/nowhere");
  const auto leave = [] {
    EXPECT_TRUE(qv::TopWindow()->findChild<QWidget*>("note"));
    QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
  };
  EXPECT_EQ(qv::Drive([this] { return Start(); }, leave), 0);
}

TEST_F(RunTest, ARunThatEndsByItselfLeavesNothing) {
  arguments.picture = (directory.Path() / "a.png").string();
  EXPECT_EQ(Start(), 0);
  EXPECT_TRUE(std::filesystem::exists(*arguments.picture));
  EXPECT_FALSE(QFile::exists(file));
}

}  // namespace
}  // namespace configurator
