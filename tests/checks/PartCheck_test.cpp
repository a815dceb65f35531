#include "checks/PartCheck.h"

#include <gmock/gmock.h>

#include "discriminator/Fields.h"
#include "tests/checks/Printing.h"
#include "tests/checks/Tree.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Finding Twice(const wchar_t* field, const wchar_t* value) {
  return {
      .kind = FindingKind::DuplicatePart, .place = L"hourTypes", .value = value, .expected = field};
}

class PartCheckTest : public testing::Test {
 protected:
  PartIds IdsOf(const std::string& parts) {
    return CheckParts(Tree("<main><hourTypes>" + parts + "</hourTypes></main>"), tag::HourTypes,
                      tag::Hour, findings);
  }

  Findings findings;
};

TEST_F(PartCheckTest, TheIdsOfThePartsAreGiven) {
  EXPECT_THAT(IdsOf("<hour><id>b</id><name>1</name></hour><other><id>c</id></other>"
                    "<hour><id>a</id><name>2</name></hour>"),
              ElementsAre(L"a", L"b"));
  EXPECT_THAT(findings, IsEmpty());
}

TEST_F(PartCheckTest, EachRepetitionIsTold) {
  EXPECT_THAT(IdsOf("<hour><id>a</id><name>1</name></hour><hour><id>a</id><name>1</name></hour>"
                    "<hour><id>b</id><name>1</name></hour>"),
              ElementsAre(L"a", L"b"));
  EXPECT_THAT(findings,
              ElementsAre(Twice(L"id", L"a"), Twice(L"name", L"1"), Twice(L"name", L"1")));
}

TEST_F(PartCheckTest, NamesDifferByCaseAndAMissingFieldIsAnEmptyOne) {
  EXPECT_THAT(IdsOf("<hour><id>a</id><name>x</name></hour><hour><name>X</name></hour>"
                    "<hour><id/><name>y</name></hour>"),
              ElementsAre(L"", L"a"));
  EXPECT_THAT(findings, ElementsAre(Twice(L"id", L"")));
}

TEST_F(PartCheckTest, ADocumentWithoutTheContainerHasNoParts) {
  EXPECT_THAT(CheckParts(Tree("<main/>"), tag::DayTypes, tag::Day, findings), IsEmpty());
  EXPECT_THAT(findings, IsEmpty());
}

}  // namespace
}  // namespace qv
