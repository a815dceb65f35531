// Random sequences of what the manager dialog can do, once through the command line and once
// through the rules, which must leave the same files.
#include <gmock/gmock.h>

#include <map>
#include <nlohmann/json.hpp>
#include <random>

#include "apps/qvdisc/Words.h"
#include "discriminator/FileNames.h"
#include "editor/DiscriminatorForm.h"
#include "hostkit/Configuration.h"
#include "hostkit/DirectorySetup.h"
#include "hostkit/IndexFiles.h"
#include "manager/DiscriminatorClipboard.h"
#include "tests/apps/qvdisc/CommandLine.h"
#include "tests/manager/QuietListView.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Saving.h"
#include "tests/support/ScriptedPrompter.h"
#include "tools/XmlDocument.h"

namespace qvdisc {
namespace {

/// What a user does in one session of the manager.
struct Step {
  Verb verb = Verb::Add;
  std::string name;     ///< the row that is meant
  std::string newName;  ///< of `add` and `modify`
  bool slots = true;
  bool zero = true;
};

/// The rules alone, as the manager dialog drives them.
class Rules {
 public:
  explicit Rules(const std::filesystem::path& directory)
      : m_setup(directory.wstring(), L"", 0), m_configuration(m_mainCfg) {}

  const std::vector<int>& Notices() const { return m_fake.guids.notices; }

  void Do(const Step& step) {
    EXPECT_NE(m_configuration.Load(m_setup.CfgPath().ToView()), qv::Configuration::Loaded::Foreign);
    const qv::Host host{m_setup,           m_mainCfg, m_fake.guids,
                        m_fake.loadString, m_index,   m_fake.clipboard};
    qv::QuietListView view;
    qv::DiscriminatorList list(host, qv::Files::Disk(), m_prompter, view,
                               m_configuration.DeviceGroups());
    list.ReadInstallation();
    list.Refresh();
    std::vector<int> rows;
    for (std::size_t i = 0; i < list.Rows().size(); ++i) {
      if (Utf8(list.Rows()[i].shown.name.ToView()) == step.name) {
        rows.push_back(static_cast<int>(i));
      }
    }
    Perform(step, host, list, rows);
    EXPECT_TRUE(!list.Changed() || m_configuration.Save());
  }

 private:
  void Perform(const Step& step, const qv::Host& host, qv::DiscriminatorList& list,
               const std::vector<int>& rows) {
    const auto edit = [&](qv::XmlNode* groups, const QVWideString* path) {
      const auto form = qv::DiscriminatorForm::Open({host, qv::Files::Disk(), groups}, path);
      auto fields = form->InitialFields();
      fields.name = QVWideString(std::wstring(step.newName.begin(), step.newName.end()));
      fields.setZeroOutsideSlot = step.zero;
      form->SelectType(step.slots ? qv::DiscriminatorType::Slots
                                  : qv::DiscriminatorType::Conditions);
      const bool saved = Told(m_prompter, form->Save(fields));
      return qv::EditorEnd{saved, form->IsModified()};
    };
    qv::DiscriminatorClipboard clipboard(host, qv::Files::Disk(), list);
    switch (step.verb) {
      case Verb::Add:
        EXPECT_TRUE(list.OnAdd(edit).confirmed);
        return;
      case Verb::Modify:
        EXPECT_TRUE(list.OnModify(rows, edit).confirmed);
        return;
      case Verb::Remove:
        m_prompter.ExpectAsk(Text::RemoveDiscriminatorsQuestion, true);
        EXPECT_EQ(list.OnRemove(rows).outcome, qv::RemovalOutcome::Done);
        return;
      case Verb::Copy:
        return clipboard.Copy(rows);
      default:
        EXPECT_FALSE(clipboard.Paste().empty());
    }
  }

  qv::DirectorySetup m_setup;
  QVMainCfg m_mainCfg;
  qv::Configuration m_configuration;
  qv::FakeHost m_fake;
  qv::IndexFiles m_index;
  qv::ScriptedPrompter m_prompter;
};

/// The same steps as calls of the program.
class Program : public CommandLine {
 public:
  void TestBody() override {}

  void Perform(const Step& step) {
    const std::vector<std::string> fields = {"--name",         step.newName,
                                             "--type",         step.slots ? "SLOTS" : "CONDITIONS",
                                             "--zero-outside", step.zero ? "yes" : "no"};
    switch (step.verb) {
      case Verb::Add:
        return Succeed(Joined({"add"}, fields));
      case Verb::Modify:
        return Succeed(Joined({"modify", step.name}, fields));
      case Verb::Remove:
        return Succeed({"remove", step.name, "--yes"});
      case Verb::Copy: {
        const Ended ended = Do({"copy", step.name});
        EXPECT_EQ(ended.status, 0) << ended.errors;
        m_payload = ended.output;
        return;
      }
      default:
        return Succeed({"paste"}, m_payload);
    }
  }

  /// All notices of the calls so far.
  std::vector<int> notices;

 private:
  static std::vector<std::string> Joined(std::vector<std::string> a,
                                         const std::vector<std::string>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
  }

  void Succeed(std::vector<std::string> call, const std::string& input = {}) {
    call.push_back("--json");
    const Ended ended = Do(call, input);
    EXPECT_EQ(ended.status, 0) << ended.errors;
    const auto told = nlohmann::json::parse(ended.output)["notices"];
    notices.insert(notices.end(), told.begin(), told.end());
  }

  std::string m_payload;
};

/// The files of a directory with every GUID that a run makes by itself written as the name of its
/// discriminator, so that two runs can be compared.
Contents Comparable(const std::filesystem::path& directory) {
  std::map<std::string, std::string> nameOfId;
  Contents files;
  for (const auto& entry : std::filesystem::directory_iterator(directory)) {
    const std::string file = entry.path().filename().string();
    const std::size_t dot = file.find('.');
    const std::string stem = file.substr(0, file.rfind('.'));
    if (file.find(".xdct") != std::string::npos) {
      nameOfId[file.substr(0, dot)] = stem.substr(dot + 1);
    }
    files[file] = qv::FileBytes(entry.path());
  }
  Contents comparable;
  const auto named = [&](std::string text) {
    for (const auto& [id, name] : nameOfId) {
      for (std::size_t at = text.find(id); at != std::string::npos; at = text.find(id)) {
        text.replace(at, id.size(), "[" + name + "]");
      }
    }
    return text;
  };
  for (const auto& [file, bytes] : files) {
    std::string content = named(bytes);
    const std::size_t revision = content.find("<revision>");
    if (revision != std::string::npos) {
      constexpr std::size_t guidLength = 36;
      content.replace(revision, std::string("<revision>").size() + guidLength, "<revision>");
    }
    comparable[named(file)] = content;
  }
  return comparable;
}

class Sequence {
 public:
  explicit Sequence(unsigned seed) : m_random(seed) {}

  Step Next() {
    Step step{.verb = Pick<Verb>({Verb::Add, Verb::Modify, Verb::Remove, Verb::Copy, Verb::Paste}),
              .name = {},
              .newName = "name " + std::to_string(m_made++),
              .slots = Pick<bool>({true, true, false}),
              .zero = Pick<bool>({true, false})};
    if (m_names.empty()) {
      step.verb = Verb::Add;
    }
    if (step.verb == Verb::Paste && m_copied.empty()) {
      step.verb = Verb::Copy;
    }
    step.name = m_names.empty() ? "" : Pick(m_names);
    Follow(step);
    return step;
  }

 private:
  template <class Value>
  Value Pick(const std::vector<Value>& values) {
    return values[std::uniform_int_distribution<std::size_t>(0, values.size() - 1)(m_random)];
  }

  void Follow(const Step& step) {
    if (step.verb == Verb::Modify || step.verb == Verb::Remove) {
      std::erase(m_names, step.name);
    }
    if (step.verb == Verb::Add || step.verb == Verb::Modify) {
      m_names.push_back(step.newName);
    } else if (step.verb == Verb::Copy) {
      m_copied = step.name;
    }
  }

  std::mt19937 m_random;
  std::vector<std::string> m_names = {"Day and night", "Tariff 2-0TD 2026",
                                      "Transformer station state"};
  std::string m_copied;
  int m_made = 0;
};

TEST(Replay, TheCommandLineLeavesTheFilesThatTheRulesLeave) {
  for (unsigned seed = 0; seed < 12 && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    Program program;
    const Program untouched;
    Rules rules(untouched.directory.Path());
    Sequence sequence(seed);
    for (int i = 0; i < 25 && !testing::Test::HasFailure(); ++i) {
      const Step step = sequence.Next();
      SCOPED_TRACE(testing::Message() << i << " verb " << static_cast<int>(step.verb) << " "
                                      << step.name << " " << step.newName);
      program.Perform(step);
      rules.Do(step);
      EXPECT_EQ(program.notices, rules.Notices());
      EXPECT_EQ(Comparable(program.directory.Path()), Comparable(untouched.directory.Path()));
    }
  }
}

}  // namespace
}  // namespace qvdisc
