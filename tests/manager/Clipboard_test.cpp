#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "manager/ClipboardPayload.h"
#include "manager/DiscriminatorClipboard.h"
#include "tests/manager/QuietListView.h"
#include "tests/support/FakeHost.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/ScriptedPrompter.h"

namespace qv {
namespace {

const std::string alphaFile =
    "<main><id>a</id><name>alpha</name><revision>r</revision><hourTypes><hour><id>h</id>"
    "<name>P1</name><color>0000FF</color><value>1</value></hour></hourTypes></main>";
const std::string betaFile = "<root><id>b</id><name>beta</name><type>CONDITIONS</type></root>";

using NameList = std::vector<std::wstring>;

class ClipboardTest : public testing::Test {
 protected:
  class CountingView : public QuietListView {
   public:
    int refreshes = 0;

    void ShowRows(const std::vector<STagDiscriminatorRow>& /*rows*/) override { ++refreshes; }
  };

  void SetUp() override {
    files.contents[L"/cfg/a.alpha.xdct"] = alphaFile;
    files.contents[L"/cfg/b.beta.xdct"] = betaFile;
    deviceGroups.Create(L"deviceGroups");
    ListWith(deviceGroups.Root());
    list->Refresh();
    files.log.clear();
  }

  void ListWith(XmlNode* node) {
    list = std::make_unique<DiscriminatorList>(host.Services(), files, prompter, view, node);
    clipboard = std::make_unique<DiscriminatorClipboard>(host.Services(), files, *list);
  }

  std::vector<PastedDiscriminator> Paste() { return clipboard->Paste(); }

  std::vector<PastedDiscriminator> PasteText(const std::string& text) {
    host.clipboard.text = text;
    return Paste();
  }

  static std::string Payload(const std::string& items) {
    return "<discriminatorClipboard>" + items + "</discriminatorClipboard>";
  }
  static std::string Item(const std::string& document) {
    return "<discriminator>" + document + "</discriminator>";
  }

  std::vector<std::wstring> Names() const {
    std::vector<std::wstring> names;
    for (const auto& row : list->Rows()) {
      names.emplace_back(row.shown.name.ToView());
    }
    return names;
  }

  /// The row with this name; the test fails if there is none.
  const STagDiscriminatorRow& Row(const wchar_t* name) const {
    for (const auto& row : list->Rows()) {
      if (row.shown.name == name) {
        return row;
      }
    }
    ADD_FAILURE() << "no such row";
    return list->Rows().front();
  }

  std::wstring PathOf(const wchar_t* name) const {
    return L"/cfg/" + std::wstring(Row(name).shown.fileStem.ToView()) + L".xdct";
  }

  std::size_t Entries() const {
    const XmlNode* devices = deviceGroups.Root()->Node(L"devices");
    return devices ? static_cast<std::size_t>(
                         std::distance(devices->ChildsBegin(), devices->ChildsEnd()))
                   : 0;
  }

  FakeHost host;
  ScriptedFiles files;
  ScriptedPrompter prompter;
  XmlDocument deviceGroups;
  CountingView view;
  std::unique_ptr<DiscriminatorList> list;
  std::unique_ptr<DiscriminatorClipboard> clipboard;
};

TEST_F(ClipboardTest, ThePayloadHoldsTheDocumentsAsTheyStand) {
  clipboard->Copy({0, 1});
  XmlDocument payload;
  ASSERT_TRUE(payload.Parse(host.clipboard.text->c_str()));
  XmlDocument expected;
  ASSERT_TRUE(expected.Parse(Payload(Item(alphaFile) + Item(betaFile)).c_str()));
  EXPECT_EQ(*payload.Root(), *expected.Root());
  EXPECT_TRUE(host.clipboard.text->starts_with("<discriminatorClipboard><discriminator><main>"));
  EXPECT_TRUE(host.clipboard.text->ends_with("</root></discriminator></discriminatorClipboard>"));
}

TEST_F(ClipboardTest, WithoutARowTheClipboardStaysAsItIs) {
  host.clipboard.text = "before";
  clipboard->Copy({});
  EXPECT_EQ(host.clipboard.text, "before");
}

TEST_F(ClipboardTest, FilesThatCannotBeLoadedArePassedOver) {
  files.contents[L"/cfg/a.alpha.xdct"] = "<main>";
  clipboard->Copy({0, 1});
  EXPECT_EQ(host.clipboard.text->find("alpha"), std::string::npos);
  files.contents.clear();
  clipboard->Copy({0, 1});
  EXPECT_EQ(host.clipboard.text, Payload(""));
}

TEST_F(ClipboardTest, PastingMakesNewDiscriminators) {
  clipboard->Copy({0, 1});
  Paste();
  EXPECT_EQ(Names(), (NameList{L"alpha", L"alpha_1", L"beta", L"beta_1"}));
  XmlDocument pasted;
  ASSERT_TRUE(pasted.Load(PathOf(L"alpha_1").c_str(), files));
  EXPECT_EQ(pasted.Root()->Value(L"id").Length(), 36U);
  EXPECT_EQ(pasted.Root()->Value(L"revision").Length(), 36U);
  EXPECT_NE(pasted.Root()->Value(L"revision"), pasted.Root()->Value(L"id"));
  EXPECT_EQ(pasted.Root()->Node(L"hourTypes")->Node(L"hour")->Value(L"id"), L"h");
  EXPECT_EQ(Entries(), 2U);
  EXPECT_EQ(host.guids.notices, (std::vector<int>{8, 5, 8, 5}));
  EXPECT_TRUE(list->Changed());
  EXPECT_TRUE(host.createIndex.calls.empty());
}

TEST_F(ClipboardTest, PastingTwiceCountsOn) {
  clipboard->Copy({0});
  Paste();
  Paste();
  EXPECT_EQ(Names(), (NameList{L"alpha", L"alpha_1", L"alpha_2", L"beta"}));
  clipboard->Copy({1});
  Paste();
  EXPECT_EQ(Row(L"alpha_1_1").shown.name, L"alpha_1_1") << "the name as it came is alpha_1";
}

TEST_F(ClipboardTest, TheIndexFileIsWrittenBesideWithoutIdsAndColours) {
  clipboard->Copy({0});
  Paste();
  XmlDocument index;
  ASSERT_TRUE(index.Load((PathOf(L"alpha_1") + L"I").c_str(), files));
  XmlDocument expected;
  ASSERT_TRUE(
      expected.Parse("<hourTypes><hour><name>P1</name><value>1</value></hour></hourTypes>"));
  EXPECT_EQ(*index.Root(), *expected.Root());
}

TEST_F(ClipboardTest, WithoutHourTypesThereIsNoIndexFile) {
  clipboard->Copy({1});
  Paste();
  EXPECT_FALSE(files.contents.contains(PathOf(L"beta_1") + L"I"));
}

TEST_F(ClipboardTest, TheRootTagIsKept) {
  clipboard->Copy({1});
  Paste();
  EXPECT_NE(files.contents[PathOf(L"beta_1")].find("<root>"), std::string::npos);
}

TEST_F(ClipboardTest, TheNameSearchIgnoresCase) {
  PasteText(Payload(Item("<main><name>ALPHA</name></main>")));
  EXPECT_EQ(Row(L"ALPHA_1").shown.name, L"ALPHA_1");
}

TEST_F(ClipboardTest, EqualNamesInOnePayloadStayEqual) {
  PasteText(Payload(Item("<main><name>n</name></main>") + Item("<main><name>n</name></main>")));
  EXPECT_EQ(Names(), (NameList{L"alpha", L"beta", L"n", L"n"}));
  EXPECT_NE(list->Rows()[2].shown.fileStem, list->Rows()[3].shown.fileStem);
}

TEST_F(ClipboardTest, ANameOfAFileThatIsNotListedCountsAsFree) {
  files.contents[L"/cfg/x.hidden.xdct"] = "<";
  PasteText(Payload(Item("<main><name>hidden</name></main>")));
  EXPECT_EQ(Row(L"hidden").shown.name, L"hidden");
}

TEST_F(ClipboardTest, ItemsOfOtherKindsArePassedOver) {
  PasteText(Payload("<other><main><name>x</name></main></other>" + Item("<body/>") +
                    Item("<main><name/></main>") + Item("<main/>")));
  EXPECT_EQ(Names(), (NameList{L"alpha", L"beta"}));
  EXPECT_EQ(Entries(), 0U);
  EXPECT_FALSE(list->Changed());
  EXPECT_EQ(view.refreshes, 2) << "a payload is always followed by a refresh";
}

TEST_F(ClipboardTest, OfAMainAndARootTheMainCounts) {
  PasteText(Payload(Item("<root><name>r</name></root><main><name>m</name></main>")));
  EXPECT_EQ(Names(), (NameList{L"alpha", L"beta", L"m"}));
}

TEST_F(ClipboardTest, AnythingElseOnTheClipboardDoesNothing) {
  for (const char* text : {"", "hello", "<main/>", "<discriminator/>", "<discriminatorClipboard>",
                           "<DiscriminatorClipboard/>"}) {
    PasteText(text);
    EXPECT_EQ(view.refreshes, 1) << text;
    EXPECT_EQ(clipboard->Offer(0), (ClipboardOffer{false, false})) << text;
  }
  host.clipboard.text.reset();
  Paste();
  EXPECT_EQ(view.refreshes, 1);
  EXPECT_TRUE(files.log.empty());
}

TEST_F(ClipboardTest, ADocumentOfAnyDepthThatCanBeReadCanBePasted) {
  constexpr int innerLevels = 510;
  std::string deep = "<main><id>9</id><name>deep</name>";
  for (int i = 0; i < innerLevels; ++i) {
    deep += "<x>";
  }
  deep += "v";
  for (int i = 0; i < innerLevels; ++i) {
    deep += "</x>";
  }
  files.contents[L"/cfg/9.deep.xdct"] = deep + "</main>";
  list->Refresh();
  const auto found = std::find_if(list->Rows().begin(), list->Rows().end(),
                                  [](const auto& row) { return row.shown.name == L"deep"; });
  ASSERT_NE(found, list->Rows().end());
  clipboard->Copy({static_cast<int>(found - list->Rows().begin())});
  EXPECT_TRUE(clipboard->Offer(0).paste);
  Paste();
  EXPECT_TRUE(std::any_of(list->Rows().begin(), list->Rows().end(),
                          [](const auto& row) { return row.shown.name == L"deep_1"; }));
}

TEST_F(ClipboardTest, ForeignTextOfAnySizeDoesNothing) {
  constexpr std::size_t size = std::size_t{50} * 1024 * 1024;
  std::string document = "<html>";
  while (document.size() < size) {
    document += "<p>something else</p>";
  }
  for (const std::string& text :
       {std::string(size, 'x'), std::string(size, ' '), document + "</html>"}) {
    PasteText(text.c_str());
    EXPECT_EQ(view.refreshes, 1);
    EXPECT_EQ(clipboard->Offer(0), (ClipboardOffer{false, false}));
  }
}

TEST_F(ClipboardTest, APayloadThatAMailProgramHasWrappedStillWorks) {
  PasteText(
      "\r\n<discriminatorClipboard>\r\n  <discriminator>\r\n<main>\r\n<name>mailed</name>\r\n"
      "<hourTypes>\r\n</hourTypes></main>\r\n</discriminator>\r\n</discriminatorClipboard>\r\n");
  EXPECT_EQ(Row(L"mailed").shown.name, L"mailed");
}

TEST_F(ClipboardTest, AFailedWriteStillMakesTheEntryAndTheNotices) {
  files.diskSpace = 10;
  PasteText(Payload(Item("<main><name>n</name><hourTypes/></main>")));
  EXPECT_EQ(files.contents.size(), 2U);
  EXPECT_EQ(Entries(), 1U);
  EXPECT_EQ(host.guids.notices, (std::vector<int>{8, 5}));
  EXPECT_TRUE(list->Changed());
  EXPECT_EQ(Names(), (NameList{L"alpha", L"beta"}));
}

TEST_F(ClipboardTest, APasteTellsTheStemOfEachDiscriminatorInItsOrder) {
  clipboard->Copy({1, 0});
  const auto pasted = Paste();
  EXPECT_EQ(pasted, (std::vector<PastedDiscriminator>{{Row(L"beta_1").shown.fileStem, true},
                                                      {Row(L"alpha_1").shown.fileStem, true}}));
}

TEST_F(ClipboardTest, APasteTellsWhichFilesCouldNotBeWritten) {
  files.longestName = 255;
  const auto pasted = PasteText(
      Payload(Item("<main><name>a/b</name></main>") + Item("<main><name>n</name></main>") +
              Item("<main><name>" + std::string(250, 'n') + "</name></main>")));
  ASSERT_EQ(pasted.size(), 3U);
  EXPECT_FALSE(pasted[0].written);
  EXPECT_TRUE(pasted[0].fileStem.ToView().ends_with(L".a/b"));
  EXPECT_EQ(pasted[1], (PastedDiscriminator{Row(L"n").shown.fileStem, true}));
  EXPECT_FALSE(pasted[2].written);
}

TEST_F(ClipboardTest, AnIndexThatCannotBeWrittenLeavesTheDiscriminatorWritten) {
  files.longestName = 36 + std::size(L".n.xdct") - 1;
  EXPECT_TRUE(PasteText(Payload(Item("<main><name>n</name><hourTypes/></main>")))[0].written);
  EXPECT_FALSE(files.contents.contains(PathOf(L"n") + L"I"));
}

TEST_F(ClipboardTest, APasteOfNothingTellsOfNone) {
  EXPECT_TRUE(PasteText("hello").empty());
  EXPECT_TRUE(PasteText(Payload("")).empty());
  EXPECT_TRUE(PasteText(Payload(Item("<main><name/></main>") + Item("<body/>"))).empty());
}

TEST_F(ClipboardTest, NamesThatCanNameNoFileMakeEntriesOnly) {
  const std::size_t before = files.contents.size();
  files.longestName = 255;
  PasteText(Payload(Item("<main><name>" + std::string(250, 'n') + "</name></main>") +
                    Item("<main><name>a/b</name></main>")));
  EXPECT_EQ(files.contents.size(), before);
  EXPECT_EQ(Entries(), 2U);
  EXPECT_EQ(host.guids.notices, (std::vector<int>{8, 5, 8, 5}));
  EXPECT_TRUE(list->Changed());
}

TEST_F(ClipboardTest, ANameThatIsTooLongForTheIndexOnlyMakesTheFile) {
  files.longestName = 255;
  // 36 characters of id, a dot, the name and ".xdct"; the index file has one more.
  const std::string name(255 - 36 - 1 - 5, 'n');
  PasteText(Payload(Item("<main><name>" + name + "</name><hourTypes/></main>")));
  EXPECT_EQ(std::count_if(files.contents.begin(), files.contents.end(),
                          [](const auto& file) { return file.first.size() > 200; }),
            1);
  EXPECT_EQ(Entries(), 1U);
}

TEST_F(ClipboardTest, TheEntryOfEachItemHasTheIdOfItsFile) {
  clipboard->Copy({0, 1});
  Paste();
  std::set<std::wstring> ids;
  std::set<std::wstring> revisions;
  const XmlNode* devices = deviceGroups.Root()->Node(L"devices");
  for (const wchar_t* name : {L"alpha_1", L"beta_1"}) {
    XmlDocument document;
    ASSERT_TRUE(document.Load(PathOf(name).c_str(), files));
    const QVWideString id = document.Root()->Value(L"id");
    EXPECT_TRUE(devices->NodeV(L"device?id=%s?", id));
    ids.insert(std::wstring(id.ToView()));
    revisions.insert(std::wstring(document.Root()->Value(L"revision").ToView()));
  }
  EXPECT_EQ(ids.size(), 2U);
  EXPECT_EQ(revisions.size(), 2U);
}

TEST_F(ClipboardTest, ANameThatLeadsElsewhereIsNeverWrittenTo) {
  PasteText(Payload(Item("<main><name>/../../etc/passwd</name><hourTypes/></main>")));
  EXPECT_EQ(files.contents.size(), 2U);
  EXPECT_EQ(Entries(), 1U);
  EXPECT_EQ(host.guids.notices, (std::vector<int>{8, 5}));
}

TEST_F(ClipboardTest, OnAnEmbeddedInstallationConditionsAreWrittenButNotShown) {
  host.AddDevice(L"KORVAXEMBEDDED");
  list->ReadInstallation();
  PasteText(Payload(Item("<main><name>c</name><type>CONDITIONS</type></main>")));
  EXPECT_EQ(files.contents.size(), 3U);
  EXPECT_EQ(Entries(), 1U);
  EXPECT_EQ(Names(), NameList{L"alpha"});
}

TEST_F(ClipboardTest, WithoutATreeAPasteMakesFilesAndNoEntries) {
  ListWith(nullptr);
  PasteText(Payload(Item("<main><name>n</name></main>")));
  EXPECT_EQ(files.contents.size(), 3U);
  EXPECT_FALSE(host.mainCfg.Root()->Node(L"deviceGroups"));
}

TEST_F(ClipboardTest, TheMenuOffersWhatCanBeDone) {
  EXPECT_EQ(clipboard->Offer(0), (ClipboardOffer{false, false}));
  EXPECT_EQ(clipboard->Offer(2), (ClipboardOffer{true, false}));
  host.clipboard.text = Payload("");
  EXPECT_EQ(clipboard->Offer(0), (ClipboardOffer{false, true}));
  EXPECT_EQ(clipboard->Offer(1), (ClipboardOffer{true, true}));
}

}  // namespace
}  // namespace qv
