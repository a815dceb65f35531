#include "apps/configurator/StartWindow.h"

#include <gtest/gtest.h>

#include <QCommandLinkButton>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <fstream>

#include "tests/apps/ExampleCopy.h"
#include "tests/support/DialogDriver.h"

namespace configurator {
namespace {

/// The window as a user meets it, with a directory that they may choose.
class StartWindowTest : public testing::Test {
 protected:
  StartWindowTest() { EXPECT_FALSE(workspace.SetLanguage(qv::Language::English)); }

  /// Runs the window while `script` plays the user.
  int Play(const std::function<void()>& script) {
    StartWindow window(workspace, note);
    return qv::Drive([&] { return window.exec(); }, script);
  }

  /// Presses the choice by its key, gives the path to the window that asks for a directory, and
  /// closes the box that says `refusal`, if it has words.
  static void Choose(Qt::Key key, const QString& path, const char* refusal = nullptr) {
    bool isDone = false;
    qv::WhenNextWindow([&, path, refusal] {
      auto* ask = qobject_cast<QFileDialog*>(qv::TopWindow());
      ASSERT_TRUE(ask);
      ask->findChild<QLineEdit*>("fileNameEdit")->setText(path);
      if (refusal) {
        qv::WhenNextWindow([refusal] { CloseBox(refusal); });
      }
      QMetaObject::invokeMethod(ask, "accept");
      isDone = true;
    });
    QTest::keyClick(qv::TopWindow(), key, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDone; }));
  }

  static void CloseBox(const char* words) {
    auto* box = qobject_cast<QMessageBox*>(qv::TopWindow());
    ASSERT_TRUE(box);
    EXPECT_TRUE(box->text().contains(words)) << qPrintable(box->text());
    box->close();
  }

  QString Chosen() const { return QString::fromStdString(directory.Path().string()); }

  Workspace workspace{ProgramDirectories::OfThisProgram()};
  qv::TemporaryDirectory directory;
  QString note;
};

TEST_F(StartWindowTest, EscapeLeavesIt) {
  EXPECT_EQ(Play([] { QTest::keyClick(qv::TopWindow(), Qt::Key_Escape); }), QDialog::Rejected);
  EXPECT_EQ(workspace.Directory(), "");
}

TEST_F(StartWindowTest, OffersThreeWaysAndTellsWhyItIsThere) {
  note = "no <b>markup</b>";
  Play([this] {
    const QWidget* window = qv::TopWindow();
    QStringList choices;
    for (const auto* choice : window->findChildren<QCommandLinkButton*>()) {
      choices += choice->text();
      EXPECT_FALSE(choice->description().isEmpty());
    }
    EXPECT_EQ(choices,
              QStringList({"&Open installation…", "&New installation…", "&Take the example…"}));
    const auto* told = window->findChild<QLabel*>("note");
    ASSERT_TRUE(told);
    EXPECT_EQ(told->text(), note);
    EXPECT_EQ(told->textFormat(), Qt::PlainText);
    QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
  });
}

TEST_F(StartWindowTest, WithoutReasonTellsNone) {
  Play([] {
    EXPECT_FALSE(qv::TopWindow()->findChild<QLabel*>("note"));
    QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
  });
}

TEST_F(StartWindowTest, OpensAnInstallation) {
  const ExampleCopy installation;
  EXPECT_EQ(Play([&] { Choose(Qt::Key_O, installation.Directory()); }), QDialog::Accepted);
  EXPECT_EQ(workspace.Directory(), installation.Directory());
  EXPECT_FALSE(workspace.IsNew());
}

TEST_F(StartWindowTest, ABrokenOneIsToldAndTheWindowStays) {
  std::ofstream(directory.Path() / "configuration.xml") << "<configuration>";
  EXPECT_EQ(Play([&] {
              Choose(Qt::Key_O, Chosen(), "line 1, column 16");
              QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
            }),
            QDialog::Rejected);
}

TEST_F(StartWindowTest, MakesAnInstallationWithItsFile) {
  EXPECT_EQ(Play([&] { Choose(Qt::Key_N, Chosen()); }), QDialog::Accepted);
  EXPECT_EQ(workspace.Directory(), Chosen());
  EXPECT_FALSE(workspace.IsNew());
  EXPECT_TRUE(std::filesystem::exists(directory.Path() / "configuration.xml"));
}

TEST_F(StartWindowTest, MakesNoneWhereThereIsOne) {
  std::ofstream(directory.Path() / "configuration.xml") << "<configuration/>";
  EXPECT_EQ(Play([&] {
              Choose(Qt::Key_N, Chosen(), "already");
              QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
            }),
            QDialog::Rejected);
  EXPECT_EQ(qv::FileBytes(directory.Path() / "configuration.xml"), "<configuration/>");
}

TEST_F(StartWindowTest, TakesACopyOfTheExample) {
  EXPECT_EQ(Play([&] { Choose(Qt::Key_T, Chosen()); }), QDialog::Accepted);
  EXPECT_EQ(workspace.Directory(), Chosen() + "/Example installation");
  EXPECT_TRUE(workspace.Config().DeviceGroups());
  EXPECT_TRUE(std::filesystem::exists(
      directory.Path() /
      "Example installation/3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b.Day and night.xdct"));
}

TEST_F(StartWindowTest, NoCopyIsPutIntoTheExample) {
  EXPECT_EQ(Play([&] {
              Choose(Qt::Key_T, workspace.ExampleDirectory(), "could not be copied");
              QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
            }),
            QDialog::Rejected);
}

}  // namespace
}  // namespace configurator
