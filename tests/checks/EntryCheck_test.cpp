#include "checks/EntryCheck.h"

#include <gmock/gmock.h>

#include "tests/checks/Printing.h"
#include "tests/checks/Tree.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What is found in device groups of this content beside the files "a" of id 1, "b" of id 2, and
/// "c" of id 3, which can't be read.
Findings Found(const std::string& content) {
  const XmlNode groups = Tree("<deviceGroups>" + content + "</deviceGroups>");
  Findings findings;
  CheckEntries(&groups, {{L"a", true, L"1"}, {L"b", true, L"2"}, {L"c", false, L"3"}}, L"cfg",
               findings);
  return findings;
}

std::string Entry(const std::string& id, const std::string& type = "R$DISC") {
  return "<device><id>" + id + "</id><type>" + type + "</type></device>";
}

Finding Of(FindingKind kind, const wchar_t* place, const wchar_t* id) {
  return {.kind = kind, .file = L"cfg", .place = place, .value = id};
}

TEST(EntryCheck, EntriesAtAnyLevelFitTheirFiles) {
  EXPECT_THAT(
      Found("<devices>" + Entry("1") + Entry("3") + "</devices><groups><g><groups><g><devices>" +
            Entry("2") + "</devices></g></groups></g></groups>"),
      IsEmpty());
}

TEST(EntryCheck, FilesWithoutAnEntryAreToldUnlessTheyCannotBeRead) {
  EXPECT_THAT(Found(""),
              ElementsAre(Finding{.kind = FindingKind::DiscriminatorWithoutEntry, .file = L"a"},
                          Finding{.kind = FindingKind::DiscriminatorWithoutEntry, .file = L"b"}));
}

TEST(EntryCheck, EntriesWithoutAFileAndRepeatedOnesAreToldWithTheirPlace) {
  EXPECT_THAT(Found("<devices>" + Entry("1") + Entry("9") + "</devices><groups><x><devices>" +
                    Entry("1") + "</devices></x><y><name>Y</name><devices>" + Entry("9") +
                    Entry("2") + "</devices></y></groups>"),
              ElementsAre(Of(FindingKind::EntryWithoutDiscriminator, L"deviceGroups", L"9"),
                          Of(FindingKind::DuplicateEntry, L"deviceGroups/(x 1)", L"1"),
                          Of(FindingKind::EntryWithoutDiscriminator, L"deviceGroups/Y", L"9"),
                          Of(FindingKind::DuplicateEntry, L"deviceGroups/Y", L"9")));
}

TEST(EntryCheck, OnlyDevicesOfTheTypeOfDiscriminatorsAreEntries) {
  EXPECT_THAT(Found("<devices>" + Entry("1") + Entry("2") + Entry("9", "METER") +
                    "<other><id>9</id><type>R$DISC</type></other></devices>"),
              IsEmpty());
}

TEST(EntryCheck, WithoutDeviceGroupsThereAreNoEntries) {
  Findings findings;
  CheckEntries(nullptr, {{L"a", true, L"1"}}, L"cfg", findings);
  EXPECT_THAT(findings,
              ElementsAre(Finding{.kind = FindingKind::DiscriminatorWithoutEntry, .file = L"a"}));
}

}  // namespace
}  // namespace qv
