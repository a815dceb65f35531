#include <gtest/gtest.h>

#include <cerrno>

#include "discriminator/DeviceLinks.h"
#include "manager/DiscriminatorList.h"
#include "tests/manager/QuietListView.h"
#include "tests/support/FakeHost.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/ScriptedPrompter.h"

namespace qv {
namespace {

/// Four discriminators with index files, and an entry for each in the device groups.
class RemovalTest : public testing::Test {
 protected:
  /// Keeps the numbers of the rows that went, and the notices that had come before each.
  class View : public QuietListView {
   public:
    explicit View(const std::vector<int>& notices) : m_notices(notices) {}

    std::vector<int> removed;
    std::vector<std::vector<int>> noticesBefore;
    int refreshes = 0;

    void ShowRows(const std::vector<STagDiscriminatorRow>& /*rows*/) override { ++refreshes; }
    void RemoveRow(int row) override {
      removed.push_back(row);
      noticesBefore.push_back(m_notices);
    }

   private:
    const std::vector<int>& m_notices;
  };

  void SetUp() override {
    for (const wchar_t* name : {L"alpha", L"beta", L"delta", L"gamma"}) {
      const std::wstring id = std::wstring(1, name[0]);
      const std::string narrow(name, name + std::wcslen(name));
      files.contents[Path(name)] =
          "<main><id>" + narrow.substr(0, 1) + "</id><name>" + narrow + "</name></main>";
      files.contents[Path(name) + L"I"] = "<hourTypes/>";
      AddEntry(*deviceGroups.Root(), id.c_str());
    }
    list.Refresh();
    view.refreshes = 0;
    files.log.clear();
  }

  static std::wstring Path(const std::wstring& name) {
    return L"/cfg/" + name.substr(0, 1) + L"." + name + L".xdct";
  }

  static void AddEntry(XmlNode& group, const wchar_t* id, const wchar_t* type = L"R$DISC") {
    XmlNode* devices = group.Node(L"devices");
    devices = devices ? devices : group.NewChild(L"devices", nullptr);
    XmlNode* device = devices->NewChild(L"device", nullptr);
    device->SetValue(L"id", id);
    device->SetValue(L"type", type);
  }

  RemovalEnd Remove(const std::vector<int>& rows, bool answer = true) {
    prompter.ExpectAsk(Text::RemoveDiscriminatorsQuestion, answer);
    return list.OnRemove(rows);
  }

  /// What is told of a write-protected file.
  static Refusal NotDeleted(const std::wstring& name) {
    const std::error_code reason(EACCES, std::generic_category());
    return Refused(Text::DiscriminatorFileNotDeleted, AboutFile(Path(name), reason));
  }

  std::wstring Names() const {
    std::wstring names;
    for (const auto& row : list.Rows()) {
      names += std::wstring(row.shown.name.ToView()) + L" ";
    }
    return names;
  }

  bool HasEntry(const wchar_t* id) const {
    return deviceGroups.Root()->Node(L"devices")->NodeV(L"device?id=%s?", id) != nullptr;
  }

  XmlDocument& Prepared() {
    deviceGroups.Create(L"deviceGroups");
    return deviceGroups;
  }

  FakeHost host;
  ScriptedFiles files;
  ScriptedPrompter prompter;
  XmlDocument deviceGroups;
  View view{host.guids.notices};
  DiscriminatorList list{host.Services(), files, prompter, view, Prepared().Root()};
};

using Log = std::vector<std::wstring>;

TEST_F(RemovalTest, WithoutARowNothingIsAsked) {
  EXPECT_EQ(list.OnRemove({}).outcome, RemovalOutcome::NothingSelected);
}

TEST_F(RemovalTest, TheQuestionNamesWhatGoes) {
  EXPECT_EQ(Remove({1, 3}, false).outcome, RemovalOutcome::Declined);
  EXPECT_EQ(prompter.Heard().back().addition,
            (Addition{{Text::ItemToRemove, {L"beta"}}, {Text::ItemToRemove, {L"gamma"}}}));
}

TEST_F(RemovalTest, OfManyTheQuestionNamesFiveAndHowManyMore) {
  for (const wchar_t* name : {L"omega", L"phi", L"xi"}) {
    const std::string narrow(name, name + std::wcslen(name));
    files.contents[Path(name)] =
        "<main><id>" + narrow.substr(0, 1) + "</id><name>" + narrow + "</name></main>";
  }
  list.Refresh();
  EXPECT_EQ(Remove({0, 1, 2, 3, 4, 5, 6}, false).outcome, RemovalOutcome::Declined);
  const Addition& addition = prompter.Heard().back().addition;
  ASSERT_EQ(addition.size(), 6U);
  EXPECT_EQ(addition[4], (AddedLine{Text::ItemToRemove, {L"omega"}}));
  EXPECT_EQ(addition[5], (AddedLine{Text::AndMore, {L"2"}}));
}

TEST_F(RemovalTest, NoChangesNothing) {
  const auto end = Remove({0, 1}, false);
  EXPECT_EQ(end.outcome, RemovalOutcome::Declined);
  EXPECT_EQ(end.refusal, std::nullopt) << "the user said No, and needs not be told";
  EXPECT_EQ(Names(), L"alpha beta delta gamma ");
  EXPECT_TRUE(files.log.empty());
  EXPECT_TRUE(host.guids.notices.empty());
  EXPECT_FALSE(list.Changed());
}

TEST_F(RemovalTest, SeveralRowsGoFromTheTopWithOneQuestion) {
  const auto end = Remove({0, 1, 3});
  EXPECT_EQ(end.outcome, RemovalOutcome::Done);
  EXPECT_EQ(files.log, (Log{L"remove " + Path(L"alpha"), L"remove " + Path(L"alpha") + L"I",
                            L"remove " + Path(L"beta"), L"remove " + Path(L"beta") + L"I",
                            L"remove " + Path(L"gamma"), L"remove " + Path(L"gamma") + L"I"}));
  EXPECT_EQ(host.guids.notices, (std::vector<int>{5, 8, 5, 8, 5, 8}));
  EXPECT_EQ(view.removed, (std::vector<int>{0, 0, 1}));
  EXPECT_EQ(Names(), L"delta ");
  EXPECT_FALSE(HasEntry(L"a"));
  EXPECT_TRUE(HasEntry(L"d"));
  EXPECT_TRUE(list.Changed());
}

TEST_F(RemovalTest, ARowGoesBetweenItsTwoNotices) {
  prompter.ExpectAsk(Text::RemoveDiscriminatorsQuestion, true);
  EXPECT_EQ(list.OnRemove({1, 2}).outcome, RemovalOutcome::Done);
  EXPECT_EQ(view.noticesBefore, (std::vector<std::vector<int>>{{5}, {5, 8, 5}}));
}

TEST_F(RemovalTest, TheDirectoryIsNotReadAgain) {
  EXPECT_EQ(Remove({0, 2}).outcome, RemovalOutcome::Done);
  EXPECT_EQ(view.refreshes, 0);
  EXPECT_EQ(files.log.size(), 4U) << "of each discriminator its two files";
}

TEST_F(RemovalTest, TheRowThatMovedUpIsSelectedOrElseTheNewLastOne) {
  EXPECT_EQ(Remove({1}).rowToSelect, 1);
  EXPECT_EQ(Remove({2}).rowToSelect, 1);
  EXPECT_EQ(Remove({0}).rowToSelect, 0);
  EXPECT_EQ(Remove({0}).rowToSelect, std::nullopt);
  EXPECT_TRUE(list.Rows().empty());
}

TEST_F(RemovalTest, AMissingFileCountsAsDeleted) {
  files.contents.erase(Path(L"alpha"));
  EXPECT_EQ(Remove({0}).outcome, RemovalOutcome::Done);
  EXPECT_EQ(Names(), L"beta delta gamma ");
  EXPECT_FALSE(HasEntry(L"a"));
}

TEST_F(RemovalTest, AFileThatCannotBeDeletedStopsTheRemoval) {
  files.writeProtected.insert(Path(L"beta"));
  prompter.ExpectAsk(Text::RemoveDiscriminatorsQuestion, true);
  const auto end = list.OnRemove({0, 1, 2});
  EXPECT_EQ(end.outcome, RemovalOutcome::Stopped);
  EXPECT_EQ(end.refusal, NotDeleted(L"beta"));
  EXPECT_EQ(end.rowToSelect, std::nullopt);
  EXPECT_EQ(Names(), L"beta delta gamma ");
  EXPECT_TRUE(files.contents.contains(Path(L"beta") + L"I"));
  EXPECT_TRUE(HasEntry(L"b"));
  EXPECT_EQ(host.guids.notices, (std::vector<int>{5, 8}));
  EXPECT_TRUE(list.Changed());
}

TEST_F(RemovalTest, AFirstFileThatCannotBeDeletedChangesNothing) {
  files.writeProtected.insert(Path(L"alpha"));
  prompter.ExpectAsk(Text::RemoveDiscriminatorsQuestion, true);
  EXPECT_EQ(list.OnRemove({0}).refusal, NotDeleted(L"alpha"));
  EXPECT_TRUE(view.removed.empty());
  EXPECT_FALSE(list.Changed());
}

TEST_F(RemovalTest, AnIndexFileThatStaysIsPassedOver) {
  files.writeProtected.insert(Path(L"alpha") + L"I");
  files.contents.erase(Path(L"beta") + L"I");
  EXPECT_EQ(Remove({0, 1}).outcome, RemovalOutcome::Done);
  EXPECT_EQ(Names(), L"delta gamma ");
}

TEST_F(RemovalTest, WithoutATreeTheFilesGoAndBothNoticesCome) {
  DiscriminatorList alone(host.Services(), files, prompter, view, nullptr);
  alone.Refresh();
  prompter.ExpectAsk(Text::RemoveDiscriminatorsQuestion, true);
  EXPECT_EQ(alone.OnRemove({0}).outcome, RemovalOutcome::Done);
  EXPECT_FALSE(files.contents.contains(Path(L"alpha")));
  EXPECT_EQ(host.guids.notices, (std::vector<int>{5, 8}));
}

TEST_F(RemovalTest, EveryEntryOfTheIdGoesAtEveryLevelAndOfAnyType) {
  ASSERT_TRUE(deviceGroups.Parse(
      "<g><devices><device><id>1</id></device><device><id>2</id></device>"
      "<device><type>METER</type><id>1</id></device><other><id>1</id></other></devices>"
      "<groups><any><devices><device><id>1</id></device></devices>"
      "<groups><deep><devices><device><id>1</id></device></devices></deep></groups></any>"
      "<empty/></groups></g>"));
  RemoveDiscriminatorFromDeviceGroupsNode(deviceGroups.Root(), L"1");
  XmlDocument expected;
  ASSERT_TRUE(
      expected.Parse("<g><devices><device><id>2</id></device><other><id>1</id></other></devices>"
                     "<groups><any><devices/><groups><deep><devices/></deep></groups></any>"
                     "<empty/></groups></g>"));
  EXPECT_EQ(*deviceGroups.Root(), *expected.Root());
}

TEST_F(RemovalTest, ANullTreeIsPassedOver) {
  RemoveDiscriminatorFromDeviceGroupsNode(nullptr, L"1");
}

}  // namespace
}  // namespace qv
