// Adds, changes, renames and switches a discriminator through the sample host's real windows, as a
// person would, and compares the files and the host's tree after each step.
#include <algorithm>
#include <map>

#include "tests/apps/MainWindowFixture.h"
#include "tools/XmlDocument.h"

namespace configurator {
namespace {

using FilesByName = std::map<std::string, std::string>;

/// The names of files without their ids, behind "+" for a new file, "-" for one that has gone and
/// "~" for one that has other bytes.
using Changes = std::vector<std::string>;

void AddChange(const char* kind, const std::string& name, Changes& changes) {
  changes.push_back(kind + name.substr(std::min(name.find('.'), name.size())));
}

Changes Between(const FilesByName& before, const FilesByName& now) {
  Changes changes;
  for (const auto& [name, bytes] : now) {
    const auto old = before.find(name);
    if (old == before.end()) {
      AddChange("+", name, changes);
    } else if (old->second != bytes) {
      AddChange("~", name, changes);
    }
  }
  for (const auto& [name, bytes] : before) {
    if (!now.contains(name)) {
      AddChange("-", name, changes);
    }
  }
  std::sort(changes.begin(), changes.end());
  return changes;
}

class ManagerFlow : public MainWindowTest, public testing::WithParamInterface<qv::Language> {
 protected:
  ManagerFlow() : MainWindowTest(GetParam()) {}

  /// What `step` changes on the disk.
  Changes ChangesOf(const std::function<void()>& step) const {
    const FilesByName before = installation.Files();
    step();
    return Between(before, installation.Files());
  }

  /// Opens the discriminator of this name, plays with its editor, and confirms that.
  Changes ChangesOfModifying(const char* name, const std::function<void()>& play) const {
    return ChangesOf([&] {
      const QStringList names = qv::Names(qv::discriminatorList);
      ASSERT_EQ(names.count(name), 1) << name;
      qv::ClickRow(qv::discriminatorList, static_cast<int>(names.indexOf(name)));
      qv::WhenNextWindow([&play] {
        play();
        qv::Click(IDOK);
      });
      qv::Click(qv::modifyButton);
    });
  }

  std::wstring TypeOfTheLastSavedDevice() const {
    XmlDocument saved;
    EXPECT_TRUE(saved.Load(installation.File("configuration.xml").wstring().c_str()));
    const auto* devices = saved.Root()->Node(L"deviceGroups")->Node(L"devices");
    return std::wstring((*std::prev(devices->ChildsEnd()))->Value(L"type").ToView());
  }
};

void AddPeak() {
  qv::WhenNextWindow([] {
    qv::Type(qv::discriminatorName, "Peak");
    qv::Press(qv::discriminatorName, Qt::Key_Return);
  });
  qv::Click(qv::addButton);
}

void TryToAddATakenName() {
  qv::WhenNextWindow([] {
    qv::Type(qv::discriminatorName, "dear HOURS");
    qv::AnswerNextBox(Text::DiscriminatorNameTaken, QMessageBox::Ok);
    qv::Click(IDOK);
    QTest::keyClick(qv::TopWindow(), Qt::Key_Escape);
  });
  qv::Click(qv::addButton);
}

void SwitchToConditions() {
  qv::TopControl(qv::typeCombo)->setFocus();
  qv::Press(qv::typeCombo, Qt::Key_Down);
}

TEST_P(ManagerFlow, AddChangeRenameSwitchAndCancel) {
  FilesByName beforeExit;
  InManager([&] {
    EXPECT_EQ(ChangesOf(AddPeak), (Changes{"+.Peak.xdct", "+.Peak.xdctI"}));
    EXPECT_EQ(ChangesOfModifying("Peak", [] { qv::Type(qv::descriptionEdit, "When it is dear"); }),
              Changes{"~.Peak.xdct"});
    EXPECT_EQ(ChangesOfModifying("Peak", [] {}), Changes())
        << "a save that changes nothing writes the same bytes";
    EXPECT_EQ(ChangesOfModifying("Peak", [] { qv::Type(qv::discriminatorName, "Dear hours"); }),
              (Changes{"+.Dear hours.xdct", "+.Dear hours.xdctI", "-.Peak.xdct", "-.Peak.xdctI"}));
    EXPECT_EQ(ChangesOfModifying("Dear hours", SwitchToConditions),
              (Changes{"-.Dear hours.xdctI", "~.Dear hours.xdct"}));
    EXPECT_EQ(ChangesOf(TryToAddATakenName), Changes());
    beforeExit = installation.Files();
    qv::Click(IDOK);
  });
  EXPECT_EQ(Between(beforeExit, installation.Files()), Changes{"~.xml"})
      << "the exit button has it saved";
  EXPECT_EQ(TypeOfTheLastSavedDevice(), L"R$DISC");
}

INSTANTIATE_TEST_SUITE_P(Languages, ManagerFlow,
                         testing::Values(qv::Language::English, qv::Language::Spanish),
                         [](const auto& test) {
                           return test.param == qv::Language::English ? "English" : "Spanish";
                         });

}  // namespace
}  // namespace configurator
