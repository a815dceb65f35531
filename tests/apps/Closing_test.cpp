// What becomes of unsaved changes when the window is closed or another installation opened.
#include <gmock/gmock.h>

#include <QMessageBox>
#include <QTest>

#include "tests/apps/TreeEditingFixture.h"

namespace configurator {
namespace {

using testing::HasSubstr;

/// Closing, with a device moved and not saved.
class ClosingTest : public TreeEditingTest {
 protected:
  ClosingTest() {
    view.Select({{2}});
    QTest::keyClick(&view, Qt::Key_Down, Qt::AltModifier);
  }

  const std::string saved = installation.ConfigurationBytes();
};

TEST_F(ClosingTest, CancelGoesBack) {
  const QString asked = Message([this] { window->close(); }, QMessageBox::Cancel);
  EXPECT_THAT(asked.toStdString(), HasSubstr("not saved"));
  EXPECT_THAT(asked.toStdString(), HasSubstr(installation.Directory().toStdString()));
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(window->isWindowModified());
}

TEST_F(ClosingTest, DiscardLeavesTheFileAlone) {
  Message([this] { window->close(); }, QMessageBox::Discard);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(installation.ConfigurationBytes(), saved);
}

TEST_F(ClosingTest, SaveSavesFirst) {
  Message([this] { window->close(); }, QMessageBox::Save);
  EXPECT_FALSE(window->isVisible());
  EXPECT_NE(installation.ConfigurationBytes(), saved);
}

TEST_F(ClosingTest, AFailedSaveKeepsTheWindow) {
  std::filesystem::remove(installation.File("configuration.xml"));
  std::filesystem::create_directory(installation.File("configuration.xml"));
  QString told;
  Message(
      [&] {
        qv::WhenNextWindow([&] {
          qv::WhenNextWindow([&] {
            told = qobject_cast<QMessageBox*>(qv::TopWindow())->text();
            QTest::keyClick(qv::TopWindow(), Qt::Key_Return);
          });
        });
        window->close();
      },
      QMessageBox::Save);
  EXPECT_THAT(told.toStdString(), HasSubstr("could not be saved"));
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ClosingTest, OpeningAnotherInstallationAsksTheSame) {
  ExampleCopy other;
  Message([&] { window->Open(other.Directory()); }, QMessageBox::Cancel);
  EXPECT_EQ(workspace.Directory(), installation.Directory());
  EXPECT_NE(Lines(), before);
  Message([&] { window->Open(other.Directory()); }, QMessageBox::Discard);
  EXPECT_EQ(workspace.Directory(), other.Directory());
  EXPECT_EQ(installation.ConfigurationBytes(), saved);
}

TEST_F(ClosingTest, ANameThatIsBeingTypedIsAChange) {
  Undo();
  view.Select({{1}});
  QTest::keyClick(&view, Qt::Key_F2);
  view.findChild<QLineEdit*>()->setText("Street");
  EXPECT_NE(Message([this] { window->close(); }, QMessageBox::Save), "");
  EXPECT_NE(installation.ConfigurationBytes().find("<name>Street</name>"), std::string::npos);
}

TEST_F(ClosingTest, AfterUndoNothingIsAsked) {
  Undo();
  window->close();
  EXPECT_FALSE(window->isVisible());
}

TEST_F(MainWindowTest, LeavingTheManagerByEscapeAfterAChangeMakesClosingAsk) {
  const std::string saved = installation.ConfigurationBytes();
  RemoveDayAndNight([] { QTest::keyClick(qv::TopWindow(), Qt::Key_Escape); });
  EXPECT_NE(Message([this] { window->close(); }, QMessageBox::Save), "");
  EXPECT_NE(installation.ConfigurationBytes(), saved);
}

}  // namespace
}  // namespace configurator
