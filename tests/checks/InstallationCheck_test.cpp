#include "checks/InstallationCheck.h"

#include <gmock/gmock.h>

#include "tests/checks/Printing.h"
#include "tests/checks/Tree.h"
#include "tests/support/CountingProgress.h"
#include "tests/support/ScriptedFiles.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

/// An installation of two discriminators that have their entries.
class InstallationCheckTest : public testing::Test {
 protected:
  InstallationCheckTest() {
    files.contents[L"/cfg/1.a.xdct"] = "<main><id>1</id><name>a</name></main>";
    files.contents[L"/cfg/2.b.xdct"] =
        "<main><id>2</id><name>b</name><type>CONDITIONS</type></main>";
    installation.deviceGroups = &groups;
  }

  CheckedInstallation Checked() { return CheckInstallation(installation, progress); }

  const XmlNode groups = Tree(
      "<deviceGroups><devices><device><id>1</id><type>R$DISC</type></device><device><id>2</id>"
      "<type>R$DISC</type></device></devices></deviceGroups>");
  const QVWideString directory{L"/cfg/"};
  ScriptedFiles files;
  CountingProgress progress{0};
  InstallationToCheck installation{.directory = directory, .files = files};
};

TEST_F(InstallationCheckTest, AFlawlessInstallationIsReadOnceAndNotChanged) {
  const CheckedInstallation checked = Checked();
  EXPECT_THAT(checked.files, ElementsAre(L"1.a.xdct", L"2.b.xdct"));
  EXPECT_THAT(checked.findings, IsEmpty());
  EXPECT_EQ(checked.Faults(), 0U);
  EXPECT_THAT(files.log, ElementsAre(L"walk /cfg/*.xdct", L"read /cfg/1.a.xdct",
                                     L"read /cfg/2.b.xdct", L"walk /cfg/*.xdctI"));
  EXPECT_THAT(progress.steps, ElementsAre(Pair(0, 2), Pair(1, 2))) << "a wish to stop isn't heeded";
}

TEST_F(InstallationCheckTest, AHiddenTypeIsNoFault) {
  installation.isEmbedded = true;
  const CheckedInstallation checked = Checked();
  EXPECT_THAT(checked.findings,
              ElementsAre(Finding{.kind = FindingKind::HiddenType, .file = L"2.b.xdct"}));
  EXPECT_EQ(checked.Faults(), 0U);
  EXPECT_EQ(checked.Notes(), 1U);
  EXPECT_TRUE(checked.IsListed(L"1.a.xdct"));
  EXPECT_FALSE(checked.IsListed(L"2.b.xdct"));
}

TEST_F(InstallationCheckTest, FindingsComeByFileAndThoseOfTheConfigurationLast) {
  files.contents[L"/cfg/1.a.xdct"] = "<main>\n<id>";
  files.contents[L"/cfg/x.xdctI"] = "";
  files.contents[L"/cfg/d.xdct"] = "<main><dayTypes><day><name>D</name></day></dayTypes></main>";
  const CheckedInstallation checked = Checked();
  ASSERT_EQ(checked.findings.size(), 5U);
  EXPECT_EQ(checked.findings[0].kind, FindingKind::Unreadable);
  EXPECT_EQ(checked.findings[0].line, 2U);
  EXPECT_GT(checked.findings[0].column, 0U);
  EXPECT_NE(checked.findings[0].value, L"");
  EXPECT_EQ(checked.findings[1], (Finding{.kind = FindingKind::FileName, .file = L"d.xdct"}));
  EXPECT_EQ(checked.findings[2], (Finding{.kind = FindingKind::DayGaps,
                                          .file = L"d.xdct",
                                          .place = L"dayTypes/D",
                                          .value = L"1440"}));
  EXPECT_EQ(checked.findings[3],
            (Finding{.kind = FindingKind::DiscriminatorWithoutEntry, .file = L"d.xdct"}));
  EXPECT_EQ(checked.findings[4],
            (Finding{.kind = FindingKind::IndexWithoutUse, .file = L"x.xdctI"}));
  EXPECT_EQ(checked.Faults(), 4U);
  EXPECT_EQ(checked.Notes(), 1U);
  EXPECT_FALSE(checked.IsListed(L"d.xdct"));
}

TEST_F(InstallationCheckTest, TheEntryOfAFileThatCannotBeReadIsItsNames) {
  files.contents[L"/cfg/2.b.xdct"] = "";
  installation.deviceGroups = nullptr;
  const CheckedInstallation checked = Checked();
  ASSERT_EQ(checked.findings.size(), 2U);
  EXPECT_EQ(checked.findings[0],
            (Finding{.kind = FindingKind::DiscriminatorWithoutEntry, .file = L"1.a.xdct"}));
  EXPECT_EQ(checked.findings[1].kind, FindingKind::Unreadable);
}

TEST_F(InstallationCheckTest, AConfigurationThatIsNotGoodIsToldInPlaceOfItsEntries) {
  installation.deviceGroups = nullptr;
  installation.configuration = ConfigurationState::Foreign;
  EXPECT_THAT(Checked().findings, ElementsAre(Finding{.kind = FindingKind::ForeignConfiguration,
                                                      .file = L"configuration.xml"}));
  installation.configuration = ConfigurationState::Unreadable;
  files.contents[L"/cfg/configuration.xml"] = "<configuration>\n\n<a>";
  const CheckedInstallation checked = Checked();
  ASSERT_EQ(checked.findings.size(), 1U);
  EXPECT_EQ(checked.findings[0].kind, FindingKind::Unreadable);
  EXPECT_EQ(checked.findings[0].file, L"configuration.xml");
  EXPECT_EQ(checked.findings[0].line, 3U);
}

}  // namespace
}  // namespace qv
