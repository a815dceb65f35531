// Thousands of random operations on the manager's rules, compared after each with a simple model:
// files and their contents, index files, entries, notices, texts, and the flag for the host.

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

#include "discriminator/FileNames.h"
#include "editor/DiscriminatorForm.h"
#include "hostkit/IndexFiles.h"
#include "manager/DiscriminatorClipboard.h"
#include "tests/manager/QuietListView.h"
#include "tests/manager/UsersTree.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Saving.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/ScriptedPrompter.h"
#include "tools/Names.h"

namespace qv {
namespace {

/// What the model knows of one discriminator.
struct Known {
  std::wstring name;
  bool slots = true;
  std::wstring revision;

  friend bool operator==(const Known&, const Known&) = default;
};

class Walk {
 public:
  explicit Walk(unsigned seed) : m_random(seed) { m_list.Refresh(); }

  void Step() {
    m_notices.clear();
    host.guids.notices.clear();
    files.log.clear();
    switch (Below(8)) {
      case 0:
      case 1:
        Add();
        break;
      case 2:
        Modify();
        break;
      case 3:
        Remove();
        break;
      case 4:
        Copy();
        break;
      case 5:
        Paste();
        break;
      case 6:
        MoveEntryIntoGroup(*m_groups.Root(), m_random);
        break;
      default:
        m_list.OnAdd([](XmlNode*, const QVWideString*) { return EditorEnd{}; });
    }
    Check();
  }

 private:
  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

  std::wstring SomeName() {
    static const wchar_t* const names[] = {L"alpha",   L"Beta",  L"GAMMA",
                                           L"alpha_1", L"ñandú", L"a b"};
    return names[Below(6)];
  }

  std::vector<int> SomeRows() {
    std::vector<int> rows;
    for (int row = 0; row < static_cast<int>(m_list.Rows().size()); ++row) {
      if (Below(3) == 0) {
        rows.push_back(row);
      }
    }
    return rows;
  }

  std::wstring IdOfRow(int row) const {
    return std::wstring(
        IdOfStem(m_list.Rows()[static_cast<std::size_t>(row)].shown.fileStem).ToView());
  }

  bool IsTaken(const std::wstring& name, const std::wstring& ownName) const {
    return !EqualUppered(name, ownName) &&
           std::any_of(m_known.begin(), m_known.end(),
                       [&](const auto& entry) { return EqualUppered(entry.second.name, name); });
  }

  /// Runs the editor's rules as its dialog would, with what the user types, and tells the model.
  DiscriminatorList::RunEditor Editor(const std::wstring& name, bool switchType, bool diskFails) {
    return [=, this](XmlNode* copy, const QVWideString* path) {
      const auto form = DiscriminatorForm::Open({m_services, files, copy}, path);
      const auto save = [&] { return Told(m_prompter, form->Save({name.c_str(), L"", true})); };
      const std::wstring id(form->Root().Value(L"id").ToView());
      const Known before = path ? m_known.at(id) : Known{};
      if (switchType) {
        form->SelectType(form->Type() == DiscriminatorType::Slots ? DiscriminatorType::Conditions
                                                                  : DiscriminatorType::Slots);
      }
      const bool slots = form->Type() == DiscriminatorType::Slots;
      if (IsTaken(name, before.name)) {
        m_prompter.ExpectShow(Text::DiscriminatorNameTaken);
        EXPECT_FALSE(save());
        return EditorEnd{};
      }
      if (diskFails) {
        files.diskSpace = static_cast<std::size_t>(Below(50));
        m_prompter.ExpectShow(Text::DiscriminatorNotSaved);
        EXPECT_FALSE(save());
        files.diskSpace.reset();
        m_known.erase(id);
        if (Below(2) == 0) {
          return EditorEnd{};  // the user gives up: the old file is gone, nothing else has happened
        }
        m_entries[id] += path ? 0 : 1;
      }
      EXPECT_TRUE(save());
      const std::wstring revision(form->Root().Value(L"revision").ToView());
      const bool changed = name != before.name || slots != before.slots;
      EXPECT_EQ(form->IsModified(), changed);
      EXPECT_EQ(revision != before.revision, changed);
      m_known[id] = {name, slots, revision};
      m_entries[id] += path ? 0 : 1;
      return EditorEnd{true, form->IsModified()};
    };
  }

  void Add() {
    const auto before = m_known.size();
    m_list.OnAdd(Editor(SomeName(), Below(3) == 0, Below(6) == 0));
    if (m_known.size() > before) {
      m_notices = {8, 5};
      m_changed = true;
    }
  }

  void Modify() {
    const auto rows = SomeRows();
    const auto editor =
        Editor(Below(2) == 0 ? SomeName() : KeptName(rows), Below(4) == 0, Below(6) == 0);
    const EditorEnd end = m_list.OnModify(rows, editor);
    if (end.confirmed && end.modified) {
      m_notices = {8};
    }
    m_changed |= end.confirmed;
    m_list.Refresh();  // an editor that was given up after a failure leaves a row without file
  }

  std::wstring KeptName(const std::vector<int>& rows) const {
    return rows.empty() ? L"unused" : m_known.at(IdOfRow(rows.front())).name;
  }

  void Remove() {
    const auto rows = SomeRows();
    std::vector<std::wstring> ids;
    for (const int row : rows) {
      ids.push_back(IdOfRow(row));
    }
    const bool answer = Below(4) != 0;
    const int count = static_cast<int>(ids.size());
    const auto stopAt = static_cast<std::size_t>(Below(4) == 0 && count > 0 ? Below(count) : count);
    if (!rows.empty()) {
      m_prompter.ExpectAsk(Text::RemoveDiscriminatorsQuestion, answer);
    }
    if (answer && stopAt < ids.size()) {
      files.writeProtected = {PathOf(ids[stopAt])};
    }
    const RemovalEnd end = m_list.OnRemove(rows);
    EXPECT_EQ(end.outcome, RemovalThatEnds(rows, answer, stopAt));
    EXPECT_EQ(end.refusal.has_value(), end.outcome == RemovalOutcome::Stopped);
    files.writeProtected.clear();
    for (std::size_t i = 0; answer && i < stopAt; ++i) {
      m_known.erase(ids[i]);
      m_entries.erase(ids[i]);
      m_notices.insert(m_notices.end(), {5, 8});
      m_changed = true;
    }
  }

  static RemovalOutcome RemovalThatEnds(const std::vector<int>& rows, bool answer,
                                        std::size_t stopAt) {
    if (rows.empty()) {
      return RemovalOutcome::NothingSelected;
    }
    if (!answer) {
      return RemovalOutcome::Declined;
    }
    return stopAt < rows.size() ? RemovalOutcome::Stopped : RemovalOutcome::Done;
  }

  void Copy() {
    const auto rows = SomeRows();
    std::vector<std::wstring> names;
    for (const int row : rows) {
      const std::wstring id = IdOfRow(row);
      if (Below(8) == 0) {
        files.unreadable.insert(PathOf(id));
      } else {
        names.push_back(m_known.at(id).name);
      }
    }
    m_clipboard.Copy(rows);
    files.unreadable.clear();
    if (!rows.empty()) {
      m_payload = names;
    }
    if (Below(8) == 0) {
      host.clipboard.text = "something else";
      m_payload.clear();
    }
  }

  void Paste() {
    const auto before = Ids();
    const auto rowsBefore = NamesOfRows();
    const bool diskFails = Below(6) == 0;
    if (diskFails) {
      files.diskSpace = 0;
    }
    m_clipboard.Paste();
    files.diskSpace.reset();
    std::multiset<std::wstring> expected;
    for (const std::wstring& name : m_payload) {
      if (!diskFails) {
        expected.insert(FreeName(name, rowsBefore));
      }
      m_notices.insert(m_notices.end(), {8, 5});
      m_changed = true;
    }
    std::multiset<std::wstring> pasted;
    for (const auto& row : m_list.Rows()) {
      const std::wstring id(IdOfStem(row.shown.fileStem).ToView());
      if (!before.contains(id)) {
        pasted.insert(std::wstring(row.shown.name.ToView()));
        m_known[id] = Stored(id);
        EXPECT_TRUE(m_revisions.insert(m_known[id].revision).second) << "a revision of its own";
        EXPECT_EQ(Entries().count(id), 1U);
      }
    }
    EXPECT_EQ(pasted, expected);
    // Each item has its entry, also one that the disk did not take.
    const auto entries = Entries();
    const auto entriesBefore = m_entries.size();
    m_entries.insert(entries.begin(), entries.end());
    EXPECT_EQ(m_entries.size(), entriesBefore + m_payload.size());
  }

  static std::wstring FreeName(const std::wstring& name, const std::vector<std::wstring>& taken) {
    std::wstring candidate = name;
    const auto isTaken = [&] {
      return std::any_of(taken.begin(), taken.end(),
                         [&](const auto& other) { return EqualUppered(other, candidate); });
    };
    for (int i = 1; isTaken(); ++i) {
      candidate = name + L"_" + std::to_wstring(i);
    }
    return candidate;
  }

  std::vector<std::wstring> NamesOfRows() const {
    std::vector<std::wstring> names;
    for (const auto& row : m_list.Rows()) {
      names.emplace_back(row.shown.name.ToView());
    }
    return names;
  }

  std::set<std::wstring> Ids() const {
    std::set<std::wstring> ids;
    for (const auto& [id, known] : m_known) {
      ids.insert(id);
    }
    return ids;
  }

  std::wstring PathOf(const std::wstring& id) const {
    return L"/cfg/" + id + L"." + m_known.at(id).name + L".xdct";
  }

  /// What the file of this id holds; its name is looked up on the disk.
  Known Stored(const std::wstring& id) {
    for (const auto& [path, content] : files.contents) {
      XmlDocument document;
      if (path.starts_with(L"/cfg/" + id + L".") && path.ends_with(L".xdct") &&
          document.Load(path.c_str(), files)) {
        const XmlNode& root = *document.Root();
        EXPECT_EQ(root.Node(L"hourTypes") != nullptr, root.Value(L"type") == L"SLOTS");
        EXPECT_EQ(root.Node(L"conditions") != nullptr, root.Value(L"type") != L"SLOTS");
        return {std::wstring(root.Value(L"name").ToView()), root.Value(L"type") == L"SLOTS",
                std::wstring(root.Value(L"revision").ToView())};
      }
    }
    ADD_FAILURE() << "no file";
    return {};
  }

  void Check() {
    std::set<std::wstring> expectedFiles;
    for (const auto& [id, known] : m_known) {
      EXPECT_EQ(Stored(id), known);
      expectedFiles.insert(PathOf(id));
      if (known.slots) {
        expectedFiles.insert(PathOf(id) + L"I");
      }
    }
    std::set<std::wstring> actualFiles;
    for (const auto& [path, content] : files.contents) {
      actualFiles.insert(path);
    }
    EXPECT_EQ(actualFiles, expectedFiles);
    EXPECT_EQ(m_list.Rows().size(), m_known.size());
    EXPECT_EQ(host.guids.notices, m_notices);
    EXPECT_EQ(m_list.Changed(), m_changed);
    EXPECT_EQ(Entries(), m_entries);
  }

  std::map<std::wstring, int> Entries() const { return EntriesOf(*m_groups.Root()); }

  FakeHost host;
  ScriptedFiles files;
  std::mt19937 m_random;
  ScriptedPrompter m_prompter;
  XmlDocument m_groups;
  IndexFiles m_index{files};
  Host m_services{host.setup, host.mainCfg, host.guids, host.loadString, m_index, host.clipboard};
  QuietListView m_view;
  DiscriminatorList m_list{m_services, files, m_prompter, m_view, Groups()};
  DiscriminatorClipboard m_clipboard{m_services, files, m_list};

  std::map<std::wstring, Known> m_known;  ///< by id
  std::map<std::wstring, int> m_entries;  ///< how many each id has
  std::vector<std::wstring> m_payload;    ///< the names on the clipboard
  std::set<std::wstring> m_revisions;     ///< of what was pasted
  std::vector<int> m_notices;
  bool m_changed = false;

  XmlNode* Groups() {
    m_groups.Create(L"deviceGroups");
    return m_groups.Root();
  }
};

TEST(RandomWalk, FilesEntriesNoticesAndTextsFollowTheModel) {
  constexpr unsigned sequences = 2000;
  for (unsigned seed = 0; seed < sequences && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    Walk walk(seed);
    // Some sequences are long, so that much piles up.
    const int steps = seed % 50 == 0 ? 100 : 12;
    for (int step = 0; step < steps && !testing::Test::HasFailure(); ++step) {
      SCOPED_TRACE(step);
      walk.Step();
    }
  }
}

}  // namespace
}  // namespace qv
