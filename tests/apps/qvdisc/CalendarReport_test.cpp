#include "apps/qvdisc/CalendarReport.h"

#include <gmock/gmock.h>

#include "tests/apps/qvdisc/CommandLine.h"
#include "tests/support/Parsed.h"

namespace qvdisc {
namespace {

using testing::ElementsAre;

constexpr const char* workAndRest =
    "<dayTypes><day><id>w</id><name>Work</name></day><day><id>r</id><name>Rest</name></day>"
    "</dayTypes>";

std::unique_ptr<qv::XmlNode> Document(const std::string& years) {
  return qv::Parsed(std::string("<main>") + workAndRest + "<calendar>" + years +
                    "</calendar></main>");
}

std::string Year(const std::string& year, const std::string& months) {
  return "<year><year>" + year + "</year>" + months + "</year>";
}

std::vector<std::wstring> Lines(const std::string& years) {
  return CalendarAsLines(*Document(years), qv::Language::English);
}

TEST(CalendarReport, CountsTheDatesOfEachDayTypeYearByYear) {
  EXPECT_THAT(Lines(Year("2027", "<month1><day1>w</day1></month1>") +
                    Year("2026",
                         "<month3><day1>r</day1><day2>w</day2></month3>"
                         "<month2><day3>w</day3></month2>")),
              ElementsAre(L"  2026: 3 dates", L"    Work: 2 dates", L"    Rest: 1 date",
                          L"  2027: 1 date", L"    Work: 1 date"));
}

TEST(CalendarReport, TellsDatesWithoutAKnownDayTypeTogether) {
  EXPECT_THAT(
      Lines(Year("2026", "<month1><day1>x</day1><day2>y</day2><day3>w</day3></month1>")),
      ElementsAre(L"  2026: 3 dates", L"    Work: 1 date", L"    (no known day type): 2 dates"));
}

TEST(CalendarReport, TellsAnEmptyYear) {
  EXPECT_THAT(Lines(Year("2026", "")), ElementsAre(L"  2026: 0 dates"));
  EXPECT_THAT(Lines(""), ElementsAre());
}

TEST(CalendarReport, CountsWhatTheCalendarWouldRead) {
  EXPECT_THAT(Lines(Year("99999",
                         "<month2><day1>w</day1><day31>w</day31></month2>"
                         "<month13><day1>w</day1></month13>")),
              ElementsAre(L"  -31073: 1 date", L"    Work: 1 date"));
}

TEST(CalendarReport, CountsADateOnceAndTakesItsLastDayType) {
  const std::string rest = Year("2026", "<month1><day1>r</day1></month1>");
  const std::string work = Year("2026", "<month1><day1>w</day1></month1>");
  const std::string unknown = Year("2026", "<month1><day1>x</day1></month1>");
  EXPECT_THAT(Lines(rest + work), ElementsAre(L"  2026: 1 date", L"    Work: 1 date"));
  EXPECT_THAT(Lines(rest + unknown), ElementsAre(L"  2026: 1 date", L"    Rest: 1 date"));
  EXPECT_THAT(Lines(unknown + rest), ElementsAre(L"  2026: 1 date", L"    Rest: 1 date"));
}

TEST(CalendarReport, GivesRangesOfDatesByDayTypeAsJson) {
  const auto document = Document(Year("2026",
                                      "<month1><day31>w</day31><day1>x</day1></month1>"
                                      "<month2><day1>w</day1><day3>w</day3></month2>"));
  const Json expected = Json::parse(R"({"years": [{"year": 2026, "dates": 4, "dayTypes": [
      {"dayTypeId": "x", "dayType": null, "dates": 1,
       "ranges": [{"from": "2026-01-01", "to": "2026-01-01"}]},
      {"dayTypeId": "w", "dayType": "Work", "dates": 3,
       "ranges": [{"from": "2026-01-31", "to": "2026-02-01"},
                  {"from": "2026-02-03", "to": "2026-02-03"}]}]}]})");
  EXPECT_EQ(Json(CalendarAsJson(*document)), expected);
  EXPECT_EQ(Json(CalendarAsJson(*qv::Parsed("<main/>"))), Json({{"years", Json::array()}}));
}

using ShownCalendar = CommandLine;

TEST_F(ShownCalendar, IsASectionForPeopleAndAnObjectInJson) {
  EXPECT_THAT(Do({"show", dayAndNight}).output,
              testing::EndsWith("\n\nCalendar\n  2026: 365 dates\n    Winter day: 182 dates\n"
                                "    Summer day: 183 dates\n"));
  EXPECT_THAT(Do({"show", dayAndNight, "--language=es"}).output,
              testing::HasSubstr("\nCalendario\n  2026: 365 fechas\n    Winter day: 182 fechas\n"));
  const Json year = DoJson({"show", dayAndNight})["document"]["calendar"]["years"][0];
  EXPECT_EQ(year["dayTypes"][1]["dayType"], "Summer day");
  EXPECT_EQ(year["dayTypes"][1]["ranges"],
            Json::parse(R"([{"from": "2026-04-01", "to": "2026-09-30"}])"));
  EXPECT_THAT(Do({"show", station}).output, testing::Not(testing::HasSubstr("Calendar")));
}

}  // namespace
}  // namespace qvdisc
