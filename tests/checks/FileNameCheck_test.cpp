#include "checks/FileNameCheck.h"

#include <gmock/gmock.h>

#include "tests/checks/Printing.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FileNameCheckTest : public testing::Test {
 protected:
  bool Agrees(const wchar_t* file, const wchar_t* id, const wchar_t* name) {
    findings.clear();
    return CheckFileName({file, true, id, name}, findings);
  }

  Findings findings;
};

TEST_F(FileNameCheckTest, ANameThatRepeatsTheFieldsIsGood) {
  EXPECT_TRUE(Agrees(L"1.a b.xdct", L"1", L"a b"));
  EXPECT_TRUE(Agrees(L"1.2.a.xdct", L"1.2", L"a")) << "dots are anywhere";
  EXPECT_THAT(findings, IsEmpty());
}

TEST_F(FileNameCheckTest, EachPartThatDiffersIsTold) {
  EXPECT_FALSE(Agrees(L"1.A.xdct", L"2", L"a"));
  EXPECT_THAT(findings, ElementsAre(Finding{.kind = FindingKind::IdDiffers,
                                            .file = L"1.A.xdct",
                                            .value = L"2",
                                            .expected = L"1"},
                                    Finding{.kind = FindingKind::NameDiffers,
                                            .file = L"1.A.xdct",
                                            .value = L"a",
                                            .expected = L"A"}));
  EXPECT_FALSE(Agrees(L"1.a.xdct", L"1", L"b"));
  EXPECT_EQ(findings.size(), 1U);
}

TEST_F(FileNameCheckTest, ANameOfAnotherFormIsTold) {
  EXPECT_FALSE(Agrees(L"a.xdct", L"1", L"a"));
  EXPECT_THAT(findings, ElementsAre(Finding{.kind = FindingKind::FileName, .file = L"a.xdct"}));
}

TEST(FileNameCheck, TheIdStandsBeforeTheFirstDot) {
  EXPECT_EQ(IdInFileName(L"1.a.b.xdct"), L"1");
  EXPECT_EQ(IdInFileName(L".xdct"), L"");
}

}  // namespace
}  // namespace qv
