#include "checks/TwinCheck.h"

#include <gmock/gmock.h>

#include "tests/checks/Printing.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Findings Found(const SeenFiles& seen) {
  Findings findings;
  CheckTwins(seen, findings);
  return findings;
}

TEST(TwinCheck, FilesOfTheirOwnIdAndNameAreGood) {
  EXPECT_THAT(Found({{L"a", true, L"1", L"x"}, {L"b", true, L"2", L"y"}}), IsEmpty());
}

TEST(TwinCheck, EachTwinIsToldWithItsIdAndWithItsNameInWhateverCase) {
  EXPECT_THAT(
      Found({{L"a", true, L"1", L"x"}, {L"b", true, L"1", L"y"}, {L"c", true, L"I", L"X"}}),
      ElementsAre(Finding{.kind = FindingKind::DuplicateId, .file = L"a", .value = L"1"},
                  Finding{.kind = FindingKind::DuplicateName, .file = L"a", .value = L"x"},
                  Finding{.kind = FindingKind::DuplicateId, .file = L"b", .value = L"1"},
                  Finding{.kind = FindingKind::DuplicateName, .file = L"c", .value = L"X"}));
}

TEST(TwinCheck, AFileThatCannotBeReadIsNoTwin) {
  EXPECT_THAT(Found({{L"a", true, L"1", L""}, {L"b", false, L"1"}}), IsEmpty());
}

}  // namespace
}  // namespace qv
