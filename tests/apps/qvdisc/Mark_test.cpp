// The verbs for the calendar, with what they print, what they leave on the disk, and how they end.
#include <gmock/gmock.h>

#include "tests/apps/qvdisc/CommandLine.h"

namespace qvdisc {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class MarkTest : public CommandLine {
 protected:
  /// Replaces what is between the tags of the calendar of the example, and gives it these years.
  void GiveYears(const std::string& years) const {
    const std::string content = Read(file);
    const std::string start = "<calendar>";
    const std::size_t from = content.find(start) + start.size();
    const std::size_t to = content.find("</calendar>");
    ASSERT_LT(from, to);
    Write(file, content.substr(0, from) + years + content.substr(to));
  }

  void GiveMonths(const std::string& months) const {
    GiveYears("<year><year>2026</year>" + months + "</year>");
  }

  /// The ranges of each day type, as "Winter day 2026-01-01..2026-01-06", with "?" for one that
  /// isn't there.
  std::vector<std::string> Calendar() const {
    std::vector<std::string> ranges;
    const Json document = DoJson({"show", dayAndNight})["document"];
    for (const Json& year : document["calendar"]["years"]) {
      for (const Json& type : year["dayTypes"]) {
        for (const Json& range : type["ranges"]) {
          ranges.push_back((type["dayType"].is_null() ? "?" : type["dayType"].get<std::string>()) +
                           " " + range["from"].get<std::string>() + ".." +
                           range["to"].get<std::string>());
        }
      }
    }
    return ranges;
  }

  void ExpectRefused(const std::vector<std::string>& call, const std::string& reason) const {
    const Contents before = All();
    const Json json = DoJson(call);
    EXPECT_EQ(json["status"], 1) << testing::PrintToString(call);
    EXPECT_EQ(json["marked"], nullptr);
    EXPECT_EQ(json["errors"], Json({reason}));
    EXPECT_EQ(json["saved"], false);
    EXPECT_EQ(All(), before) << testing::PrintToString(call);
  }

  const std::string file = dayAndNight + ".xdct";
};

constexpr const char* winterId = "602ae490-4af0-4504-8a53-877bba4ac9d5";
constexpr const char* summerId = "eec27aeb-5464-44ea-a20d-864d4f59d2ec";

std::string Day(int day, const std::string& id) {
  const std::string tag = "day" + std::to_string(day);
  return "<" + tag + ">" + id + "</" + tag + ">";
}

TEST_F(MarkTest, GivesDatesADayTypeAndLeavesTheOthers) {
  GiveMonths("<month1>" + Day(1, summerId) + Day(3, summerId) + "</month1>");
  const Json json =
      DoJson({"mark", dayAndNight, "2026-01-01..2026-01-02", "2027-02-28", "Winter day"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["marked"],
            Json({{"dayType", "Winter day"}, {"dates", 3}, {"leftOut", Json::array()}}));
  EXPECT_EQ(json["texts"], Json::array());
  EXPECT_EQ(json["notices"], Json({8}));
  EXPECT_EQ(json["saved"], true);
  EXPECT_THAT(Calendar(),
              ElementsAre("Winter day 2026-01-01..2026-01-02", "Summer day 2026-01-03..2026-01-03",
                          "Winter day 2027-02-28..2027-02-28"));
  EXPECT_THAT(Read(file), HasSubstr("<month2>\n        <day28>" + std::string(winterId)));
}

TEST_F(MarkTest, AnUnmarkLeavesDatesWithoutADayType) {
  GiveMonths("<month1>" + Day(1, summerId) + Day(2, summerId) + Day(3, winterId) + "</month1>");
  const Json json = DoJson({"unmark", dayAndNight, "2026-01-02..2026-01-31"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["marked"],
            Json({{"dayType", nullptr}, {"dates", 30}, {"leftOut", Json::array()}}));
  EXPECT_THAT(Calendar(), ElementsAre("Summer day 2026-01-01..2026-01-01"));
}

TEST_F(MarkTest, ARuleMarksItsDatesOfTheYear) {
  GiveYears("");
  const Json json =
      DoJson({"mark", dayAndNight, "--weekdays=thu", "--months=1,12", "--year=2026", "Winter day"});
  EXPECT_EQ(json["marked"]["dates"], 10);
  EXPECT_EQ(Calendar().front(), "Winter day 2026-01-01..2026-01-01");
  EXPECT_EQ(Calendar().size(), 10U);
  DoJson({"unmark", dayAndNight, "--weekdays=mon-sun", "--months=1-12", "--year=2026"});
  EXPECT_THAT(Calendar(), ElementsAre());
  EXPECT_THAT(Read(file), Not(HasSubstr("<year>")));
}

TEST_F(MarkTest, PeopleAreToldHowManyDates) {
  EXPECT_EQ(Do({"mark", dayAndNight, "2026-01-01", "Winter day"}).output,
            "1 date marked as “Winter day”\n");
  EXPECT_EQ(Do({"mark", dayAndNight, "2026-01-01..2026-01-06", summerId, "--language=es"}).output,
            "6 fechas con el tipo de día «Summer day»\n");
  EXPECT_EQ(Do({"unmark", dayAndNight, "2026-01-01..2026-01-06"}).output, "6 dates unmarked\n");
}

TEST_F(MarkTest, AlwaysMakesANewRevision) {
  const auto revision = [&] {
    return DoJson({"show", dayAndNight})["document"]["revision"].get<std::string>();
  };
  Do({"mark", dayAndNight, "2026-01-01", "Winter day"});
  const std::string first = revision();
  Do({"mark", dayAndNight, "2026-01-01", "Winter day"});
  EXPECT_NE(revision(), first);
}

TEST_F(MarkTest, DatesBeyondTheWalkAreNamedAndTheCallFails) {
  GiveMonths("<month3>" + Day(2, summerId) + "</month3>");
  const std::vector<std::string> call = {"mark", dayAndNight, "2026-01-20",
                                         "2026-03-08..2026-03-10", "Winter day"};
  const Ended ended = Do(call);
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.output, "1 date marked as “Winter day”\n");
  EXPECT_EQ(ended.errors,
            "qvdisc: Left out: 2026-03-02, 2026-03-08 to 2026-03-10; the day of the month of the "
            "first marked date is greater than that of the last\n");
  EXPECT_THAT(Calendar(), ElementsAre("Winter day 2026-01-20..2026-01-20"));

  const Json json = DoJson(call);
  EXPECT_EQ(json["marked"]["dates"], 1);
  EXPECT_EQ(
      json["marked"]["leftOut"],
      Json::parse(R"([{"from": "2026-03-08", "to": "2026-03-10", "reason": "beyond-walk"}])"));
  EXPECT_EQ(json["errors"].size(), 1U);
  EXPECT_EQ(json["saved"], true);
}

TEST_F(MarkTest, AnUnmarkThatMovesTheFirstDateTellsWhatThatCosts) {
  GiveMonths("<month1>" + Day(1, summerId) + Day(20, summerId) + "</month1><month2>" +
             Day(3, summerId) + "</month2>");
  const Ended ended = Do({"unmark", dayAndNight, "2026-01-01"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_THAT(ended.errors, HasSubstr("Left out: 2026-02-03; the day"));
  EXPECT_THAT(Calendar(), ElementsAre("Summer day 2026-01-20..2026-01-20"));
}

TEST_F(MarkTest, DatesOfADayTypeThatIsNoMoreAreNamedButNoFault) {
  GiveMonths("<month1>" + Day(1, "gone") + Day(2, "gone") + Day(3, "gone") + "</month1>");
  const Json dry = DoJson({"mark", dayAndNight, "2026-01-02", "Winter day", "--dry-run"});
  const Ended ended = Do({"mark", dayAndNight, "2026-01-02", "Winter day"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.output, "1 date marked as “Winter day”\n");
  EXPECT_EQ(ended.errors,
            "qvdisc: Left out: 2026-01-01, 2026-01-03; their day type is not there any more\n");
  EXPECT_THAT(Calendar(), ElementsAre("Winter day 2026-01-02..2026-01-02"));
  EXPECT_EQ(dry["marked"]["leftOut"], Json::parse(R"(
      [{"from": "2026-01-01", "to": "2026-01-01", "reason": "no-day-type"},
       {"from": "2026-01-03", "to": "2026-01-03", "reason": "no-day-type"}])"));
  EXPECT_EQ(dry["errors"], Json::array());
}

TEST_F(MarkTest, AnUnmarkedDateIsNotLeftOut) {
  GiveMonths("<month1>" + Day(1, "gone") + Day(2, winterId) + "</month1>");
  const Ended ended = Do({"unmark", dayAndNight, "2026-01-01..2026-01-02"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors, "");
}

TEST_F(MarkTest, ADryRunWritesNothing) {
  const Contents before = All();
  const Json json = DoJson({"mark", dayAndNight, "2027-01-01", "Winter day", "--dry-run"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["marked"]["dates"], 1);
  EXPECT_EQ(json["dryRun"], true);
  EXPECT_GE(json["changes"].size(), 3U);
  EXPECT_EQ(All(), before);
}

TEST_F(MarkTest, ADayTypeIsFoundByItsExactNameOrItsId) {
  EXPECT_EQ(Do({"mark", dayAndNight, "2026-01-01", winterId}).status, 0);
  ExpectRefused({"mark", dayAndNight, "2026-01-01", "winter day"},
                "There is no day type “winter day”");
  ExpectRefused({"mark", dayAndNight, "2026-01-01", ""}, "There is no day type “”");
  ExpectRefused({"mark", "none", "2026-01-01", "Winter day"},
                "There is no discriminator “none” in the list");
  EXPECT_EQ(Do({"mark", station, "2026-01-01", "Winter day"}).status, 1);
  EXPECT_THAT(Do({"unmark", station, "2026-01-01"}).errors,
              HasSubstr("discriminator of conditions"));
}

TEST_F(MarkTest, ADayTypeThatTheCalendarWouldTakeForAnotherIsRefused) {
  Edit(file, "<name>Summer day</name>", "<name>Winter day</name>");
  ExpectRefused({"mark", dayAndNight, "2026-01-01", "Winter day"},
                "There is more than one day type “Winter day”");
  EXPECT_EQ(Do({"mark", dayAndNight, "2026-01-01", winterId}).status, 0);
  ExpectRefused({"mark", dayAndNight, "2026-01-01", summerId},
                "The day type “Winter day” cannot mark dates: its name is missing, shared with "
                "another, or has a question mark");
  Edit(file, "<name>Winter day</name>", "<name>Winter?</name>");
  EXPECT_THAT(Do({"mark", dayAndNight, "2026-01-01", "Winter?"}).errors,
              HasSubstr("“Winter?” cannot mark dates"));
}

TEST_F(MarkTest, AWhiteDayTypeWithoutANameIsTheEraserAndRefused) {
  Edit(file, "<name>Summer day</name>", "<name></name>");
  EXPECT_EQ(Do({"mark", dayAndNight, "2026-07-01", ""}).status, 0) << "a colour marks";
  const std::string content = Read(file);
  const std::size_t colour = content.find("<color>", content.find(summerId)) + 7;
  Write(file, std::string(content).replace(colour, 6, "FFFFFF"));
  EXPECT_EQ(Do({"mark", dayAndNight, "2026-07-01", ""}).status, 1);
  EXPECT_THAT(Do({"mark", dayAndNight, "2026-07-01", summerId}).errors,
              HasSubstr("The day type “” cannot mark dates"));
}

TEST_F(MarkTest, WhatCannotBeSavedIsGivenBackAndNotTold) {
  std::filesystem::permissions(File(file), std::filesystem::perms::owner_read);
  const Json json = DoJson({"mark", dayAndNight, "2030-01-01", "Winter day"});
  EXPECT_EQ(json["status"], 1);
  EXPECT_EQ(json["texts"][0]["number"], 32362);
  EXPECT_EQ(json["marked"], nullptr);
  EXPECT_THAT(std::string(json["unsaved"]), HasSubstr("<year>2030</year>"));
}

}  // namespace
}  // namespace qvdisc
