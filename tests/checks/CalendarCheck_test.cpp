#include "checks/CalendarCheck.h"

#include <gmock/gmock.h>

#include "tests/checks/Printing.h"
#include "tests/checks/Tree.h"

namespace qv {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What is found in a calendar with these years, of which day type only "d" is there.
Findings Found(const std::string& years) {
  const XmlNode calendar = Tree("<calendar>" + years + "</calendar>");
  Findings findings;
  CheckCalendar(&calendar, {L"d"}, findings);
  return findings;
}

TEST(CalendarCheck, DatesWithoutTheirDayTypeAreTold) {
  EXPECT_THAT(
      Found("<year><year>2026</year><month2><day1>d</day1><day28>x</day28></month2></year>"
            "<year><year>2027</year><month12><day31/></month12></year>"),
      ElementsAre(
          Finding{.kind = FindingKind::DeadDayType, .place = L"calendar/2026-02-28", .value = L"x"},
          Finding{.kind = FindingKind::DeadDayType, .place = L"calendar/2027-12-31"}));
}

TEST(CalendarCheck, OnlyNumberedTagsAreMonthsAndDays) {
  EXPECT_THAT(Found("<year><year>2026</year><month><day1>x</day1></month>"
                    "<month1x><day1>x</day1></month1x><mon><day1>x</day1></mon>"
                    "<month1><day>x</day><day-1>x</day-1><da>x</da></month1></year>"
                    "<other><month1><day1>x</day1></month1></other>"),
              IsEmpty());
}

TEST(CalendarCheck, ADocumentWithoutACalendarHasNoDates) {
  Findings findings;
  CheckCalendar(nullptr, {}, findings);
  EXPECT_THAT(findings, IsEmpty());
}

}  // namespace
}  // namespace qv
