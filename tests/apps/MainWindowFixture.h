#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <filesystem>
#include <functional>
#include <memory>

#include "apps/configurator/MainWindow.h"
#include "apps/configurator/StatusLine.h"
#include "library/QVDiscriminator.h"
#include "tests/apps/ExampleCopy.h"
#include "tests/support/ControlDriver.h"
#include "tests/support/ControlNumbers.h"
#include "tests/support/DialogDriver.h"

namespace configurator {

/// The real window on a copy of the example installation, in English unless told otherwise.
class MainWindowTest : public testing::Test {
 protected:
  explicit MainWindowTest(qv::Language language = qv::Language::English) {
    EXPECT_FALSE(workspace.SetLanguage(language));
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

  /// Opens the manager by its button, and lets `script` play with it and leave it.
  void InManager(const std::function<void()>& script) {
    qv::Drive(
        [this] {
          QTest::mouseClick(Find<QPushButton>("discriminators"), Qt::LeftButton);
          return 0;
        },
        script);
  }

  /// The same with a manager that is left by Escape afterwards.
  void WithManager(const std::function<void(QWidget&)>& script) {
    InManager([&] {
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
    InManager([&] {
      qv::ClickRow(qv::discriminatorList, 0);
      qv::AnswerNextBox(Text::RemoveDiscriminatorsQuestion, QMessageBox::Yes);
      qv::Click(qv::removeButton);
      leave();
    });
    EXPECT_FALSE(std::filesystem::exists(
        installation.File("3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b.Day and night.xdct")));
    EXPECT_EQ(TopLines().last(), "R$DISC_Tariff 3-0TD and 6-1TD 2026");
    EXPECT_EQ(Told(), "Device groups changed (5) · Discriminator files changed (8)");
  }

  /// The message box that `run` brings up: its text, after it has been answered.
  QString Message(const std::function<void()>& run,
                  QMessageBox::StandardButton answer = QMessageBox::Ok) {
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
          ASSERT_TRUE(box->button(answer));
          box->button(answer)->click();
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

}  // namespace configurator
