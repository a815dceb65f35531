#include <gtest/gtest.h>

#include <stdexcept>

#include "manager/DiscriminatorList.h"
#include "tests/manager/QuietListView.h"
#include "tests/support/FakeHost.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/ScriptedPrompter.h"

namespace qv {
namespace {

/// Writes down what happens, in order: notices as their numbers, "refresh", "editor".
class AddModify : public testing::Test {
 protected:
  class Guids : public QVVornelGuids {
   public:
    explicit Guids(std::vector<std::string>& events) : m_events(events) {}
    void invalidateGuid(int id, bool) override { m_events.push_back(std::to_string(id)); }

   private:
    std::vector<std::string>& m_events;
  };

  /// What stands in the host's tree when the rows are shown tells where the assignment comes.
  class View : public QuietListView {
   public:
    View(const XmlDocument& deviceGroups, std::vector<std::string>& events)
        : m_deviceGroups(deviceGroups), m_events(events) {}

    void ShowRows(const std::vector<STagDiscriminatorRow>& rows) override {
      const bool assigned = m_deviceGroups.Root()->Node(L"touched") != nullptr;
      m_events.emplace_back(assigned ? "refresh after assignment" : "refresh");
      shown = rows.size();
    }

    std::size_t shown = 0;

   private:
    const XmlDocument& m_deviceGroups;
    std::vector<std::string>& m_events;
  };

  void SetUp() override {
    files.contents[L"/cfg/1.alpha.xdct"] = "<main><id>1</id><name>alpha</name></main>";
    files.contents[L"/cfg/2.beta.xdct"] = "<main><id>2</id><name>beta</name></main>";
    deviceGroups.Create(L"deviceGroups");
  }

  std::unique_ptr<DiscriminatorList> ListWith(XmlNode* node) {
    auto list = std::make_unique<DiscriminatorList>(services, files, prompter, view, node);
    list->Refresh();
    events.clear();
    return list;
  }

  /// An editor that ends like this, after having added an entry to the copy.
  DiscriminatorList::RunEditor Editor(EditorEnd end) {
    return [this, end](XmlNode* copy, const QVWideString* filePath) {
      events.emplace_back("editor");
      opened = filePath ? std::optional(std::wstring(filePath->ToView())) : std::nullopt;
      if (copy) {
        copy->NewChild(L"touched", nullptr);
      }
      return end;
    };
  }

  using Events = std::vector<std::string>;

  FakeHost host;
  ScriptedFiles files;
  ScriptedPrompter prompter;
  XmlDocument deviceGroups;
  Events events;
  Guids guids{events};
  View view{deviceGroups, events};
  Host services{host.setup, host.mainCfg, guids, host.loadString, host.createIndex, host.clipboard};
  std::optional<std::wstring> opened;
};

constexpr EditorEnd cancelled = {false, true};
constexpr EditorEnd savedWithChange = {true, true};
constexpr EditorEnd savedWithoutChange = {true, false};

TEST_F(AddModify, AConfirmedAddTellsRefreshesAssignsAndTellsAgain) {
  const auto list = ListWith(deviceGroups.Root());
  EXPECT_EQ(list->OnAdd(Editor(savedWithChange)), savedWithChange);
  EXPECT_EQ(events, (Events{"editor", "8", "refresh", "5"}));
  EXPECT_EQ(opened, std::nullopt);
  EXPECT_TRUE(deviceGroups.Root()->Node(L"touched"));
  EXPECT_TRUE(list->Changed());
}

TEST_F(AddModify, WhatAnEditorSavedIsReadAgainAndShown) {
  const auto list = ListWith(deviceGroups.Root());
  const auto saving = [this](XmlNode*, const QVWideString*) {
    files.contents[L"/cfg/3.gamma.xdct"] = "<main><id>3</id><name>gamma</name></main>";
    files.contents.erase(L"/cfg/1.alpha.xdct");
    files.contents.erase(L"/cfg/2.beta.xdct");
    files.log.clear();
    return savedWithChange;
  };
  list->OnAdd(saving);
  EXPECT_EQ(view.shown, 1U);
  EXPECT_EQ(list->Rows().front().shown.name, L"gamma");
  list->OnModify({0}, saving);
  EXPECT_EQ(view.shown, 1U);
  EXPECT_EQ(files.log, (std::vector<std::wstring>{L"walk /cfg/*.xdct", L"read /cfg/3.gamma.xdct"}));
}

TEST_F(AddModify, ACancelledAddLeavesNoTrace) {
  const auto list = ListWith(deviceGroups.Root());
  EXPECT_EQ(list->OnAdd(Editor(cancelled)), cancelled);
  EXPECT_EQ(events, Events{"editor"});
  EXPECT_FALSE(deviceGroups.Root()->Node(L"touched"));
  EXPECT_FALSE(list->Changed());
}

TEST_F(AddModify, AnEditorThatThrowsLeavesTheDocumentAsItWas) {
  const auto list = ListWith(deviceGroups.Root());
  const XmlNode before(*deviceGroups.Root());
  const DiscriminatorList::RunEditor thrower = [](XmlNode* copy, const QVWideString*) -> EditorEnd {
    copy->NewChild(L"touched", nullptr);
    throw std::runtime_error("editor");
  };
  EXPECT_THROW(list->OnAdd(thrower), std::runtime_error);
  EXPECT_THROW(list->OnModify({0}, thrower), std::runtime_error);
  EXPECT_EQ(*deviceGroups.Root(), before);
  EXPECT_FALSE(list->Changed());
}

TEST_F(AddModify, WithoutANodeTheFirstAddMakesOneEvenIfCancelled) {
  const auto list = ListWith(nullptr);
  list->OnAdd(Editor(cancelled));
  const XmlNode* made = host.mainCfg.Root()->Node(L"deviceGroups");
  ASSERT_TRUE(made);
  EXPECT_FALSE(made->Node(L"touched"));
  list->OnAdd(Editor(savedWithChange));
  EXPECT_EQ(host.mainCfg.Root()->Node(L"deviceGroups"), made);
  EXPECT_TRUE(made->Node(L"touched"));
  EXPECT_EQ(std::distance(host.mainCfg.Root()->ChildsBegin(), host.mainCfg.Root()->ChildsEnd()), 1);
}

TEST_F(AddModify, WithoutAnyDocumentAnAddStillWritesItsFile) {
  host.mainCfg.Reset();
  const auto list = ListWith(nullptr);
  list->OnAdd(Editor(savedWithChange));
  EXPECT_EQ(events, (Events{"editor", "8", "refresh", "5"}));
}

TEST_F(AddModify, AModifyWithAChangeTellsAndRefreshes) {
  const auto list = ListWith(deviceGroups.Root());
  EXPECT_EQ(list->OnModify({1}, Editor(savedWithChange)), savedWithChange);
  EXPECT_EQ(events, (Events{"editor", "8", "refresh"}));
  EXPECT_EQ(opened, L"/cfg/2.beta.xdct");
  EXPECT_FALSE(deviceGroups.Root()->Node(L"touched")) << "modifying never changes the entries";
  EXPECT_TRUE(list->Changed());
}

TEST_F(AddModify, AModifyThatChangedNothingStillCountsAsAChange) {
  const auto list = ListWith(deviceGroups.Root());
  EXPECT_EQ(list->OnModify({0}, Editor(savedWithoutChange)), savedWithoutChange);
  EXPECT_EQ(events, (Events{"editor", "refresh"}));
  EXPECT_TRUE(list->Changed());
}

TEST_F(AddModify, AnAnnouncedDiscriminatorHasAnEntryBeforeItsTwoNotices) {
  const auto list = ListWith(deviceGroups.Root());
  files.log.clear();
  XmlDocument announced;
  ASSERT_TRUE(announced.Parse("<main><id>3</id><name>gamma</name></main>"));
  list->Announce(*announced.Root());
  EXPECT_EQ(events, (Events{"8", "5"}));
  EXPECT_TRUE(deviceGroups.Root()->Node(L"devices")->NodeV(L"device?id=%s?", L"3"));
  EXPECT_TRUE(list->Changed());
  EXPECT_EQ(list->Rows().size(), 2U) << "its row comes with the next refresh";
  EXPECT_TRUE(files.log.empty());
}

TEST_F(AddModify, WithoutATreeAnAnnouncedDiscriminatorHasItsNotices) {
  const auto list = ListWith(nullptr);
  list->Announce(XmlNode(L"main"));
  EXPECT_EQ(events, (Events{"8", "5"}));
  EXPECT_TRUE(list->Changed());
  EXPECT_FALSE(host.mainCfg.Root()->Node(L"deviceGroups"));
}

TEST_F(AddModify, ACancelledModifyDoesNothing) {
  const auto list = ListWith(deviceGroups.Root());
  EXPECT_EQ(list->OnModify({0}, Editor(cancelled)), cancelled);
  EXPECT_EQ(events, Events{"editor"});
  EXPECT_FALSE(list->Changed());
}

TEST_F(AddModify, OfSeveralRowsTheFirstIsOpened) {
  const auto list = ListWith(deviceGroups.Root());
  list->OnModify({0, 1}, Editor(cancelled));
  EXPECT_EQ(opened, L"/cfg/1.alpha.xdct");
}

TEST_F(AddModify, AModifyWithoutARowOpensNothingButMayMakeTheNode) {
  const auto list = ListWith(nullptr);
  EXPECT_EQ(list->OnModify({}, Editor(savedWithChange)), EditorEnd());
  EXPECT_TRUE(events.empty());
  EXPECT_FALSE(list->Changed());
  EXPECT_TRUE(host.mainCfg.Root()->Node(L"deviceGroups"));
}

}  // namespace
}  // namespace qv
