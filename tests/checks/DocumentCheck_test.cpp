#include "checks/DocumentCheck.h"

#include <gmock/gmock.h>

#include "tests/checks/Printing.h"
#include "tests/checks/Tree.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(DocumentCheck, AnEmptyDocumentIsFlawless) {
  EXPECT_THAT(CheckDocument(Tree("<main/>")), IsEmpty());
}

TEST(DocumentCheck, PartsComeBeforeSlotsAndSlotsBeforeDates) {
  const XmlNode root = Tree(
      "<main><calendar><year><year>2026</year><month1><day1>D</day1><day2>d</day2></month1></year>"
      "</calendar><dayTypes><day><id>d</id><name>Day</name><slot><id>h</id><from>00:00</from>"
      "<to>12:00</to></slot><slot><id>H</id><from>12:00</from><to>24:00</to></slot></day></"
      "dayTypes>"
      "<hourTypes><hour><id>h</id><name>a</name></hour><hour><id>i</id><name>a</name></hour>"
      "</hourTypes><conditions><condition><id>c</id><name>1</name></condition><condition><id>c</id>"
      "<name>2</name></condition></conditions></main>");
  EXPECT_THAT(CheckDocument(root),
              ElementsAre(Finding{.kind = FindingKind::DuplicatePart,
                                  .place = L"hourTypes",
                                  .value = L"a",
                                  .expected = L"name"},
                          Finding{.kind = FindingKind::DuplicatePart,
                                  .place = L"conditions",
                                  .value = L"c",
                                  .expected = L"id"},
                          Finding{.kind = FindingKind::DeadHourType,
                                  .place = L"dayTypes/Day/slot 2 (12:00-24:00)",
                                  .value = L"H"},
                          Finding{.kind = FindingKind::DeadDayType,
                                  .place = L"calendar/2026-01-01",
                                  .value = L"D"}));
}

}  // namespace
}  // namespace qv
