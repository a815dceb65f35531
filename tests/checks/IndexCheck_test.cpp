#include "checks/IndexCheck.h"

#include <gmock/gmock.h>

#include "tests/checks/Printing.h"
#include "tests/checks/Tree.h"
#include "tests/support/ScriptedFiles.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class IndexCheckTest : public testing::Test {
 protected:
  /// What is found of the index file of "f.xdct" with one hour type.
  Findings Found() {
    Findings findings;
    check.Check(L"f.xdct", Tree(withHourType), findings);
    return findings;
  }

  Findings Others() {
    Findings findings;
    check.CheckOthers(findings);
    return findings;
  }

  const std::string withHourType =
      "<main><hourTypes><hour><id>h</id><name>n</name><color>FFFFFF</color></hour></hourTypes>"
      "</main>";
  const std::string index = "<hourTypes><hour><name>n</name></hour></hourTypes>";
  ScriptedFiles files;
  const DiscriminatorDirectory directory{L"/cfg/", files};
  IndexCheck check{directory, files};
};

TEST_F(IndexCheckTest, AnIndexThatAgreesWithTheHourTypesIsGood) {
  files.contents[L"/cfg/f.xdctI"] = index;
  EXPECT_THAT(Found(), IsEmpty());
  EXPECT_THAT(Others(), IsEmpty());
}

TEST_F(IndexCheckTest, AnIndexThatIsMissingStaleOrUnreadableIsTold) {
  EXPECT_THAT(Found(), ElementsAre(Finding{.kind = FindingKind::IndexMissing, .file = L"f.xdct"}));
  files.contents[L"/cfg/f.xdctI"] = "<hourTypes/>";
  EXPECT_THAT(Found(), ElementsAre(Finding{.kind = FindingKind::IndexStale, .file = L"f.xdct"}));
  files.contents[L"/cfg/f.xdctI"] = "<hourTypes>";
  EXPECT_THAT(Found(),
              ElementsAre(Finding{.kind = FindingKind::IndexUnreadable, .file = L"f.xdct"}));
  files.contents[L"/cfg/f.xdctI"] = index;
  files.unreadable = {L"/cfg/f.xdctI"};
  EXPECT_THAT(Found(),
              ElementsAre(Finding{.kind = FindingKind::IndexUnreadable, .file = L"f.xdct"}));
  EXPECT_THAT(Others(), IsEmpty());
}

TEST_F(IndexCheckTest, AFileWithoutHourTypesNeedsNone) {
  files.contents[L"/cfg/f.xdctI"] = index;
  Findings findings;
  check.Check(L"f.xdct", Tree("<main/>"), findings);
  EXPECT_THAT(findings, IsEmpty());
  EXPECT_THAT(Others(),
              ElementsAre(Finding{.kind = FindingKind::IndexWithoutUse, .file = L"f.xdctI"}));
}

TEST_F(IndexCheckTest, WhatBelongsToNoFileIsToldAndWhatIsLeftAloneIsNot) {
  files.contents = {{L"/cfg/a.xdctI", ""}, {L"/cfg/b.xdctI", ""}, {L"/cfg/b.xdct", ""}};
  check.LeaveAlone(L"b.xdct");
  EXPECT_THAT(Others(),
              ElementsAre(Finding{.kind = FindingKind::IndexWithoutUse, .file = L"a.xdctI"}));
}

}  // namespace
}  // namespace qv
