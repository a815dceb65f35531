#include "apps/configurator/DiscriminatorEntries.h"

#include <gmock/gmock.h>

#include "tests/support/ScriptedFiles.h"
#include "tools/XmlDocument.h"

namespace configurator {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A(2) 1 3, where 2 and 3 are discriminators: by rows A 0, 2 0/0, 1 1, 3 2.
class DiscriminatorEntriesTest : public testing::Test {
 protected:
  std::wstring Code() const {
    QVNarrowString code;
    EXPECT_TRUE(document.CreateXmlCode(code, false));
    return {code.ToView().begin(), code.ToView().end()};
  }

  XmlDocument document = [] {
    XmlDocument parsed;
    EXPECT_TRUE(parsed.Parse(
        "<deviceGroups><devices><device><id>1</id><type>T</type></device>"
        "<device><id>3</id><type>R$DISC</type></device></devices>"
        "<groups><group><devices><device><id>2</id><type>R$DISC</type></device></devices></group>"
        "</groups></deviceGroups>"));
    return XmlDocument(*parsed.Root());
  }();
  qv::XmlNode& tree = *document.Root();
};

TEST_F(DiscriminatorEntriesTest, AreFoundInAllGroups) {
  EXPECT_THAT(DiscriminatorEntriesOf(&tree),
              ElementsAre(DiscriminatorEntry{{0, 0}, L"2"}, DiscriminatorEntry{{2}, L"3"}));
  EXPECT_THAT(DiscriminatorEntriesOf(nullptr), IsEmpty());
}

TEST_F(DiscriminatorEntriesTest, ThoseThatHaveComeAreKnownByTheirIds) {
  const auto before = DiscriminatorEntriesOf(&tree);
  RemoveEntries(tree, {{2}});
  AddEntries(tree, {}, {L"4", L"3"});
  EXPECT_THAT(EntriesSince(before, DiscriminatorEntriesOf(&tree)), ElementsAre(TreePlace{2}));
  EXPECT_THAT(EntriesSince({}, DiscriminatorEntriesOf(&tree)),
              ElementsAre(TreePlace{0, 0}, TreePlace{2}, TreePlace{3}));
}

TEST_F(DiscriminatorEntriesTest, AreAddedBehindTheDevicesOfAGroup) {
  EXPECT_THAT(AddEntries(tree, {0}, {L"5", L"6"}), ElementsAre(TreePlace{0, 1}, TreePlace{0, 2}));
  EXPECT_EQ(DiscriminatorEntriesOf(&tree).at(2), (DiscriminatorEntry{{0, 2}, L"6"}));
  EXPECT_THAT(AddEntries(tree, {1}, {L"7"}), IsEmpty()) << "a device holds none";
  EXPECT_THAT(AddEntries(tree, {9}, {L"7"}), IsEmpty());
  EXPECT_THAT(AddEntries(tree, {}, {}), IsEmpty());
}

TEST_F(DiscriminatorEntriesTest, AreAddedWhereThereAreNoDevicesYet) {
  qv::XmlNode empty(L"deviceGroups");
  EXPECT_THAT(AddEntries(empty, {}, {L"5"}), ElementsAre(TreePlace{0}));
  EXPECT_THAT(DiscriminatorEntriesOf(&empty), ElementsAre(DiscriminatorEntry{{0}, L"5"}));
}

TEST_F(DiscriminatorEntriesTest, AreRemovedAndTheNextLineIsWhereToGoOn) {
  EXPECT_THAT(RemoveEntries(tree, {{1}}), ElementsAre(TreePlace{1}));
  EXPECT_EQ(Code().find(L"<id>1</id>"), std::wstring::npos);
  EXPECT_THAT(RemoveEntries(tree, {{1}}), ElementsAre(TreePlace{0})) << "the last of its level";
  EXPECT_THAT(RemoveEntries(tree, {{0, 0}}), ElementsAre(TreePlace{0})) << "the group around it";
  EXPECT_THAT(DiscriminatorEntriesOf(&tree), IsEmpty());
}

TEST_F(DiscriminatorEntriesTest, SeveralAreRemovedAtOnceAndGroupsStay) {
  EXPECT_THAT(RemoveEntries(tree, {{2}, {0, 0}, {0}, {7}}), ElementsAre(TreePlace{0}));
  EXPECT_THAT(DiscriminatorEntriesOf(&tree), IsEmpty());
  EXPECT_NE(Code().find(L"<group>"), std::wstring::npos);
  EXPECT_THAT(RemoveEntries(tree, {{0}, {7}}), IsEmpty());
}

TEST_F(DiscriminatorEntriesTest, FilesWithoutOneAreFoundByName) {
  qv::ScriptedFiles files;
  const auto put = [&](const char* id, const char* name, const wchar_t* file) {
    files.contents[std::wstring(L"/inst/") + file] =
        std::string("<main><id>") + id + "</id><name>" + name + "</name></main>";
  };
  put("3", "has one", L"3.has one.xdct");
  put("8", "B", L"8.B.xdct");
  put("9", "A", L"9.A.xdct");
  put("7", "another's name", L"7.C.xdct");
  files.contents[L"/inst/6.D.xdct"] = "<broken";
  EXPECT_THAT(DiscriminatorsWithoutEntry(DiscriminatorEntriesOf(&tree), L"/inst/", files),
              ElementsAre(DiscriminatorOnDisk{L"9", L"A"}, DiscriminatorOnDisk{L"8", L"B"}));
}

}  // namespace
}  // namespace configurator
