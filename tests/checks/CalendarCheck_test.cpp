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

TEST(CalendarCheck, DatesAndMonthsThatDoNotExistAreTold) {
  EXPECT_THAT(
      Found("<year><year>2026</year><month2><day29>d</day29><day28>d</day28><day01>x</day01>"
            "</month2><month13><day1>x</day1></month13><month2><day1>x</day1></month2></year>"),
      ElementsAre(
          Finding{.kind = FindingKind::NoSuchDate, .place = L"calendar/2026-02", .value = L"day29"},
          Finding{.kind = FindingKind::NoSuchDate, .place = L"calendar/2026-02", .value = L"day01"},
          Finding{.kind = FindingKind::NoSuchMonth, .place = L"calendar/2026", .value = L"month13"},
          Finding{
              .kind = FindingKind::NoSuchMonth, .place = L"calendar/2026", .value = L"month2"}));
}

TEST(CalendarCheck, YearsThatAreReadAsOthersAreTold) {
  const auto wrong = [](const wchar_t* text, const wchar_t* year) {
    return Finding{.kind = FindingKind::WrongYear,
                   .place = std::wstring(L"calendar/") + text,
                   .value = text,
                   .expected = year};
  };
  EXPECT_THAT(
      Found("<year><year>soon</year></year><year><year>99999</year></year>"
            "<year><year>20x6</year></year><year/><year><year>-</year></year>"
            "<year><year>-32769</year></year><year><year> 5</year></year>"
            "<year><year>1234567890123456789012345678901234567890</year></year>"),
      ElementsAre(wrong(L"soon", L"0"), wrong(L"99999", L"-31073"), wrong(L"20x6", L"20"),
                  wrong(L"", L"0"), wrong(L"-", L"0"), wrong(L"-32769", L"32767"),
                  wrong(L" 5", L"5"), wrong(L"1234567890123456789012345678901234567890", L"-1")));
  EXPECT_THAT(Found("<year><year>0</year></year><year><year>-32768</year></year>"
                    "<year><year>32767</year></year>"),
              IsEmpty());
}

TEST(CalendarCheck, ALeapDayThatIsLostByNarrowingIsTold) {
  const auto found = Found("<year><year>65636</year><month2><day29>d</day29></month2></year>");
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(
      found[1],
      (Finding{.kind = FindingKind::NoSuchDate, .place = L"calendar/100-02", .value = L"day29"}));
}

TEST(CalendarCheck, DatesThatAWalkLeavesOutAreCounted) {
  EXPECT_THAT(
      Found("<year><year>2026</year><month1><day20>d</day20></month1>"
            "<month3><day1>d</day1><day10>d</day10><day31>x</day31></month3></year>"),
      ElementsAre(
          Finding{.kind = FindingKind::DeadDayType, .place = L"calendar/2026-03-31", .value = L"x"},
          Finding{
              .kind = FindingKind::DatesBeyondWalk, .place = L"calendar/2026-03", .value = L"2"}));
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
