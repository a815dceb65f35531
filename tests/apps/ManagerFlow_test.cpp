// Adds, changes, renames and switches a discriminator through the sample host's real windows, as a
// person would, and compares the files and the host's tree after each step.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <algorithm>
#include <map>
#include <memory>

#include "apps/configurator/MainWindow.h"
#include "tests/apps/ExampleCopy.h"
#include "tests/support/DialogDriver.h"
#include "tools/XmlDocument.h"

namespace configurator {
namespace {

constexpr int ok = 1;
constexpr int nameEdit = 5270;
constexpr int descriptionEdit = 5267;
constexpr int typeCombo = 5351;
constexpr int list = 5265;
constexpr int add = 5348;
constexpr int modify = 5349;

using FilesByName = std::map<std::string, std::string>;

class ManagerFlow : public testing::TestWithParam<qv::Language> {
 protected:
  ManagerFlow() {
    EXPECT_FALSE(workspace.SetLanguage(GetParam()));
    EXPECT_FALSE(workspace.Open(installation.Directory()));
    window = std::make_unique<MainWindow>(workspace);
    window->show();
  }

  void InManager(const std::function<void()>& script) {
    qv::Drive(
        [this] {
          auto* button = window->findChild<QPushButton*>(QStringLiteral("discriminators"));
          QTest::mouseClick(button, Qt::LeftButton);
          return 0;
        },
        script);
  }

  FilesByName Files() const {
    FilesByName files;
    for (const auto& entry : std::filesystem::directory_iterator(installation.File("."))) {
      files[entry.path().filename().string()] = qv::FileBytes(entry.path());
    }
    return files;
  }

  /// The names of files that are in `now` and not in `before`, or have other bytes, without their
  /// ids.
  static std::vector<std::string> Changes(const FilesByName& before, const FilesByName& now) {
    std::vector<std::string> changes;
    for (const auto& [name, bytes] : now) {
      const auto old = before.find(name);
      if (old == before.end() || old->second != bytes) {
        changes.push_back(name.substr(std::min(name.find('.'), name.size())));
      }
    }
    std::sort(changes.begin(), changes.end());
    return changes;
  }

  static void SelectRow(const char* name) {
    auto* rows = qobject_cast<QTreeWidget*>(qv::TopControl(list));
    const auto found = rows->findItems(QString::fromUtf8(name), Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1);
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, {},
                      rows->visualItemRect(found.first()).center());
  }

  static void TypeInto(int id, const char* text) {
    auto* edit = qobject_cast<QLineEdit*>(qv::TopControl(id));
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, QString::fromUtf8(text));
  }

  using Changed = std::vector<std::string>;

  ExampleCopy installation;
  Workspace workspace{ProgramDirectories::OfThisProgram()};
  std::unique_ptr<MainWindow> window;
};

TEST_P(ManagerFlow, AddChangeRenameSwitchAndCancel) {
  FilesByName before = Files();
  InManager([&] {
    qv::WhenNextWindow([] {
      TypeInto(nameEdit, "Peak");
      QTest::keyClick(qv::TopControl(nameEdit), Qt::Key_Return);
    });
    qv::Click(add);
    EXPECT_EQ(Changes(before, Files()), (Changed{".Peak.xdct", ".Peak.xdctI"}));
    before = Files();

    SelectRow("Peak");
    qv::WhenNextWindow([] {
      TypeInto(descriptionEdit, "When it is dear");
      qv::Click(ok);
    });
    qv::Click(modify);
    EXPECT_EQ(Changes(before, Files()), Changed{".Peak.xdct"});
    before = Files();

    SelectRow("Peak");
    qv::WhenNextWindow([] { qv::Click(ok); });
    qv::Click(modify);
    EXPECT_EQ(Files(), before) << "a save that changes nothing writes the same bytes";

    SelectRow("Peak");
    qv::WhenNextWindow([] {
      TypeInto(nameEdit, "Dear hours");
      qv::Click(ok);
    });
    qv::Click(modify);
    EXPECT_EQ(Changes(before, Files()), (Changed{".Dear hours.xdct", ".Dear hours.xdctI"}));
    EXPECT_EQ(Files().size(), before.size());
    before = Files();

    SelectRow("Dear hours");
    qv::WhenNextWindow([] {
      qv::TopControl(typeCombo)->setFocus();
      QTest::keyClick(qv::TopControl(typeCombo), Qt::Key_Down);
      qv::Click(ok);
    });
    qv::Click(modify);
    EXPECT_EQ(Changes(before, Files()), Changed{".Dear hours.xdct"});
    EXPECT_EQ(Files().size(), before.size() - 1) << "the index file is gone";
    before = Files();

    qv::WhenNextWindow([] {
      TypeInto(nameEdit, "dear HOURS");
      qv::AnswerNextBox(Text::DiscriminatorNameTaken, QMessageBox::Ok);
      qv::Click(ok);
      QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
    });
    qv::Click(add);
    EXPECT_EQ(Files(), before);
    qv::Click(ok);
  });
  EXPECT_EQ(Changes(before, Files()), Changed{".xml"}) << "the exit button has it saved";
  XmlDocument saved;
  ASSERT_TRUE(saved.Load(installation.File("configuration.xml").wstring().c_str()));
  const auto* devices = saved.Root()->Node(L"deviceGroups")->Node(L"devices");
  EXPECT_EQ((*std::prev(devices->ChildsEnd()))->Value(L"type"), L"R$DISC");
}

INSTANTIATE_TEST_SUITE_P(Languages, ManagerFlow,
                         testing::Values(qv::Language::English, qv::Language::Spanish),
                         [](const auto& test) {
                           return test.param == qv::Language::English ? "English" : "Spanish";
                         });

}  // namespace
}  // namespace configurator
