#include "manager/DiscriminatorList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>

#include "tests/manager/QuietListView.h"
#include "tests/support/CountingProgress.h"
#include "tests/support/FakeHost.h"
#include "tests/support/ScriptedFiles.h"
#include "tests/support/ScriptedPrompter.h"
#include "tests/support/TemporaryDirectory.h"
#include "tools/Names.h"
#include "tools/Utf8.h"

namespace qv {
namespace {

using Names = std::vector<std::wstring>;

/// A host, a disk in memory and the list over them.
class DiscriminatorListTest : public testing::Test {
 protected:
  void Add(const std::wstring& id, const std::wstring& name, const std::string& rest = "") {
    const std::string fields =
        "<id>" + ToUtf8(id).value() + "</id><name>" + ToUtf8(name).value() + "</name>";
    files.contents[L"/cfg/" + id + L"." + name + L".xdct"] = "<main>" + fields + rest + "</main>";
  }

  /// Adds discriminators with the ids 1, 2, and so on.
  void AddAll(const Names& names) {
    for (const auto& name : names) {
      Add(std::to_wstring(++m_added), name);
    }
  }

  Names Refreshed() {
    CountingProgress progress;
    EXPECT_TRUE(list.Refresh(progress));
    return RowNames();
  }

  Names RowNames() const {
    Names names;
    for (const auto& row : list.Rows()) {
      names.emplace_back(row.shown.name.ToView());
    }
    return names;
  }

  FakeHost host;
  ScriptedFiles files;
  ScriptedPrompter prompter;
  QuietListView view;
  DiscriminatorList list{host.Services(), files, prompter, view, nullptr};

 private:
  int m_added = 0;
};

TEST_F(DiscriminatorListTest, ReadsNothingBeforeTheFirstRefresh) {
  AddAll({L"A"});
  list.ReadInstallation();
  EXPECT_TRUE(list.Rows().empty());
  EXPECT_TRUE(files.log.empty());
  EXPECT_FALSE(list.Changed());
}

TEST_F(DiscriminatorListTest, EmptyDirectoryGivesNoRows) {
  files.directories.insert(L"/cfg/");
  CountingProgress progress;
  EXPECT_TRUE(list.Refresh(progress));
  EXPECT_TRUE(list.Rows().empty());
  EXPECT_TRUE(progress.steps.empty());
}

TEST_F(DiscriminatorListTest, DirectoryWithoutDiscriminatorFilesGivesNoRows) {
  files.contents[L"/cfg/configuration.xml"] = "<configuration/>";
  files.contents[L"/cfg/1.A.xdctI"] = "<hourTypes/>";
  files.contents[L"/cfg/1.A.XDCT"] = "<main><id>1</id><name>A</name></main>";
  EXPECT_EQ(Refreshed(), Names());
  EXPECT_EQ(files.log, (Names{L"walk /cfg/*.xdct"}));
}

TEST_F(DiscriminatorListTest, RowShowsNameAndDescription) {
  Add(L"1", L"A", "<description>About A</description>");
  Refreshed();
  ASSERT_EQ(list.Rows().size(), 1U);
  EXPECT_EQ(list.Rows()[0].ordinal, 0);
  EXPECT_EQ(list.Rows()[0].shown.fileStem, L"1.A");
  EXPECT_EQ(list.Rows()[0].shown.name, L"A");
  EXPECT_EQ(list.Rows()[0].shown.description, L"About A");
}

TEST_F(DiscriminatorListTest, PathOfARowLeadsToItsFile) {
  AddAll({L"b", L"a"});
  Refreshed();
  EXPECT_EQ(list.PathOf(0), L"/cfg/2.a.xdct");
  EXPECT_EQ(list.PathOf(1), L"/cfg/1.b.xdct");
}

TEST_F(DiscriminatorListTest, DirectoryIsThatOfTheHost) {
  AddAll({L"A"});
  files.contents[L"/other/2.B.xdct"] = "<main><id>2</id><name>B</name></main>";
  host.setup.cfgPath = L"/other/";
  EXPECT_EQ(Refreshed(), Names{L"B"});
}

TEST_F(DiscriminatorListTest, FilesInDirectoriesBelowAreNotListed) {
  files.contents[L"/cfg/sub/1.A.xdct"] = "<main><id>1</id><name>A</name></main>";
  EXPECT_EQ(Refreshed(), Names());
}

TEST_F(DiscriminatorListTest, UnusableFilesAreLeftOutInSilence) {
  AddAll({L"A", L"B", L"C", L"D", L"E", L"F"});
  files.contents[L"/cfg/2.B.xdct"].pop_back();
  files.unreadable.insert(L"/cfg/3.C.xdct");
  files.breakingReads.insert(L"/cfg/4.D.xdct");
  auto renamed = files.contents.extract(L"/cfg/5.E.xdct");
  renamed.key() = L"/cfg/5.e.xdct";
  files.contents.insert(std::move(renamed));
  files.directories.insert(L"/cfg/7.G.xdct");
  const auto before = files.contents;
  EXPECT_EQ(Refreshed(), (Names{L"A", L"F"}));
  EXPECT_EQ(files.contents, before);
  EXPECT_TRUE(host.guids.notices.empty());
}

TEST_F(DiscriminatorListTest, UnknownTypesAndRootsAreListed) {
  Add(L"1", L"A", "<type>SEASONS</type>");
  files.contents[L"/cfg/2.B.xdct"] = "<root><id>2</id><name>B</name></root>";
  host.AddDevice(L"KORVAXEMBEDDED");
  list.ReadInstallation();
  EXPECT_EQ(Refreshed(), (Names{L"A", L"B"}));
}

TEST_F(DiscriminatorListTest, EqualIdsAreBothListed) {
  Add(L"1", L"A");
  Add(L"1", L"B");
  EXPECT_EQ(Refreshed(), (Names{L"A", L"B"}));
}

TEST_F(DiscriminatorListTest, EqualNamesAreBothListedInTheOrderInWhichTheyWereFound) {
  Add(L"2", L"A");
  Add(L"1", L"A");
  EXPECT_EQ(Refreshed(), (Names{L"A", L"A"}));
  EXPECT_EQ(list.Rows()[0].shown.fileStem, L"1.A");
  EXPECT_EQ(list.Rows()[1].shown.fileStem, L"2.A");
}

TEST_F(DiscriminatorListTest, ConditionsAreListedOnOtherInstallations) {
  Add(L"1", L"A", "<type>CONDITIONS</type>");
  EXPECT_EQ(Refreshed(), Names{L"A"});
  host.AddDevice(L"MODBUSTCP");
  list.ReadInstallation();
  EXPECT_EQ(Refreshed(), Names{L"A"});
}

TEST_F(DiscriminatorListTest, ConditionsAreHiddenOnEmbeddedOnesAndStayOnTheDisk) {
  Add(L"1", L"A", "<type>CONDITIONS</type>");
  Add(L"2", L"B", "<type>SLOTS</type>");
  const auto before = files.contents;
  host.AddDevice(L"MODBUSTCP");
  host.AddDevice(L"KORVAXEMBEDDED");
  list.ReadInstallation();
  EXPECT_EQ(Refreshed(), Names{L"B"});
  EXPECT_EQ(files.contents, before);
  EXPECT_EQ(files.log, (Names{L"walk /cfg/*.xdct", L"read /cfg/1.A.xdct", L"read /cfg/2.B.xdct"}));
}

TEST_F(DiscriminatorListTest, InstallationIsLookedUpAfreshWhenRead) {
  Add(L"1", L"A", "<type>CONDITIONS</type>");
  XmlNode* device = host.AddDevice(L"KORVAXEMBEDDED");
  list.ReadInstallation();
  EXPECT_EQ(Refreshed(), Names());
  device->SetValue(L"driver", L"MODBUSTCP");
  EXPECT_EQ(Refreshed(), Names()) << "a refresh doesn't look again";
  list.ReadInstallation();
  EXPECT_EQ(Refreshed(), Names{L"A"});
}

TEST_F(DiscriminatorListTest, EmptyConfigurationHidesNothing) {
  Add(L"1", L"A", "<type>CONDITIONS</type>");
  host.mainCfg.Reset();
  list.ReadInstallation();
  EXPECT_EQ(Refreshed(), Names{L"A"});
}

/// Names as they are found and as they are sorted.
struct Sorting {
  const char* name;
  Names found;
  Names sorted;
};

void PrintTo(const Sorting& value, std::ostream* out) { *out << value.name; }

class SortedNames : public DiscriminatorListTest, public testing::WithParamInterface<Sorting> {};

TEST_P(SortedNames, StandInTheOrderOfTheirLowerCase) {
  AddAll(GetParam().found);
  EXPECT_EQ(Refreshed(), GetParam().sorted);
}

const Sorting sortings[] = {
    {"Letters", {L"c", L"a", L"b"}, {L"a", L"b", L"c"}},
    {"CaseIsIgnored", {L"b", L"C", L"A", L"d"}, {L"A", L"b", L"C", L"d"}},
    {"UnderscoreBeforeLetters", {L"b", L"Z", L"_", L"A_", L"AA"}, {L"_", L"A_", L"AA", L"b", L"Z"}},
    {"DigitsByCharacter", {L"10", L"9", L"1", L"a1"}, {L"1", L"10", L"9", L"a1"}},
    {"ShorterFirst", {L"abc", L"AB", L"a"}, {L"a", L"AB", L"abc"}},
    {"BlanksFirst", {L"a1", L"a b", L"a"}, {L"a", L"a b", L"a1"}},
    {"AccentsBehindLetters", {L"\u00C1b", L"z", L"\u00E1a"}, {L"z", L"\u00E1a", L"\u00C1b"}},
    {"OtherAlphabets", {L"\u0411", L"\u0430", L"\u0412"}, {L"\u0430", L"\u0411", L"\u0412"}},
};

INSTANTIATE_TEST_SUITE_P(Table, SortedNames, testing::ValuesIn(sortings),
                         [](const auto& test) { return test.param.name; });

TEST_F(DiscriminatorListTest, NamesThatDifferOnlyInCaseAreAdjacent) {
  AddAll({L"night", L"Other", L"NIGHT", L"a", L"Night", L"nigh", L"nights"});
  const Names names = Refreshed();
  ASSERT_EQ(names.size(), 7U);
  for (std::size_t i = 2; i < 5; ++i) {
    EXPECT_TRUE(EqualUppered(names[i], L"night")) << i;
  }
}

TEST_F(DiscriminatorListTest, OrdinalsCountTheRowsInTheOrderInWhichTheyWereFound) {
  AddAll({L"c", L"broken", L"a", L"B"});
  files.contents[L"/cfg/2.broken.xdct"] = "";
  EXPECT_EQ(Refreshed(), (Names{L"a", L"B", L"c"}));
  EXPECT_EQ(list.Rows()[0].ordinal, 1);
  EXPECT_EQ(list.Rows()[1].ordinal, 2);
  EXPECT_EQ(list.Rows()[2].ordinal, 0);
}

TEST_F(DiscriminatorListTest, EmptyRecordHasNoOrdinal) {
  EXPECT_EQ(STagDiscriminatorRow().ordinal, -1);
}

TEST_F(DiscriminatorListTest, RefreshReplacesTheRows) {
  AddAll({L"b", L"a"});
  EXPECT_EQ(Refreshed(), (Names{L"a", L"b"}));
  EXPECT_EQ(Refreshed(), (Names{L"a", L"b"}));
  EXPECT_EQ(list.Rows()[0].ordinal, 1);
  files.contents.erase(L"/cfg/1.b.xdct");
  EXPECT_EQ(RowNames(), (Names{L"a", L"b"})) << "a snapshot until the next refresh";
  EXPECT_EQ(Refreshed(), Names{L"a"});
  EXPECT_EQ(list.Rows()[0].ordinal, 0);
}

TEST_F(DiscriminatorListTest, NothingIsWrittenAndNobodyIsNoticed) {
  AddAll({L"a", L"b"});
  files.contents[L"/cfg/3.broken.xdct"] = "<main>";
  files.contents[L"/cfg/1.a.xdctI"] = "<hourTypes/>";
  const auto before = files.contents;
  Refreshed();
  EXPECT_EQ(files.log, (Names{L"walk /cfg/*.xdct", L"read /cfg/1.a.xdct", L"read /cfg/2.b.xdct",
                              L"read /cfg/3.broken.xdct"}));
  EXPECT_EQ(files.contents, before);
  EXPECT_TRUE(host.guids.notices.empty());
  EXPECT_TRUE(host.createIndex.calls.empty());
  EXPECT_FALSE(list.Changed());
}

TEST_F(DiscriminatorListTest, ProgressCountsEachFileThatTheWalkFinds) {
  AddAll({L"a", L"broken", L"c"});
  files.contents[L"/cfg/2.broken.xdct"] = "";
  CountingProgress progress;
  EXPECT_TRUE(list.Refresh(progress));
  const std::vector<std::pair<std::size_t, std::size_t>> expected = {{0, 3}, {1, 3}, {2, 3}};
  EXPECT_EQ(progress.steps, expected);
}

TEST_F(DiscriminatorListTest, StopAtAnyStepLeavesNoRowsAndReadsNoFurther) {
  AddAll({L"a", L"b", L"c", L"d"});
  for (std::size_t stopAt = 0; stopAt < 4; ++stopAt) {
    Refreshed();
    files.log.clear();
    CountingProgress progress(stopAt);
    EXPECT_FALSE(list.Refresh(progress)) << stopAt;
    EXPECT_TRUE(list.Rows().empty()) << stopAt;
    EXPECT_EQ(files.log.size(), 1 + stopAt) << "the walk and the files before";
    EXPECT_EQ(progress.steps.size(), 1 + stopAt);
  }
}

TEST_F(DiscriminatorListTest, RefreshAfterAStopFindsAll) {
  AddAll({L"a", L"b"});
  CountingProgress progress(1);
  EXPECT_FALSE(list.Refresh(progress));
  EXPECT_EQ(Refreshed(), (Names{L"a", L"b"}));
}

TEST_F(DiscriminatorListTest, EachOfTenThousandFilesIsReadOnce) {
  constexpr int count = 10000;
  for (int i = 0; i < count; ++i) {
    Add(L"id" + std::to_wstring(i), L"name " + std::to_wstring((i * 7919) % count));
  }
  const Names names = Refreshed();
  EXPECT_EQ(names.size(), static_cast<std::size_t>(count));
  EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
  EXPECT_EQ(files.log.size(), static_cast<std::size_t>(count) + 1);
}

TEST_F(DiscriminatorListTest, MissingDirectoryOfTheDiskGivesNoRows) {
  const TemporaryDirectory directory;
  host.setup.cfgPath = (directory.WidePath() + L"missing/").c_str();
  DiscriminatorList onDisk(host.Services(), Files::Disk(), prompter, view, nullptr);
  CountingProgress progress;
  EXPECT_TRUE(onDisk.Refresh(progress));
  EXPECT_TRUE(onDisk.Rows().empty());
  EXPECT_FALSE(std::filesystem::exists(directory.Path() / "missing")) << "and isn't made";
}

}  // namespace
}  // namespace qv
