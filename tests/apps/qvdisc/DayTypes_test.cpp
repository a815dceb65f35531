// The verbs for day types, with what they print, what they leave on the disk, and how they end.
#include <gmock/gmock.h>

#include "tests/apps/qvdisc/TypesTest.h"

namespace qvdisc {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class DayTypesTest : public TypesTest {
 protected:
  /// A call for one day type with these slots and other options.
  static std::vector<std::string> With(const std::string& action, const std::string& type,
                                       const std::vector<std::string>& slots,
                                       const std::vector<std::string>& options = {}) {
    std::vector<std::string> call = {"day-type", action, dayAndNight, type};
    for (const std::string& slot : slots) {
      call.insert(call.end(), {"--slot", slot});
    }
    call.insert(call.end(), options.begin(), options.end());
    return call;
  }

  static std::vector<std::string> Slots(const Json& dayType) {
    std::vector<std::string> slots;
    for (const Json& slot : dayType["slots"]) {
      slots.push_back(std::string(slot["from"]) + " " + std::string(slot["to"]) + " " +
                      std::string(slot["hourType"]));
    }
    return slots;
  }

  void ExpectRefused(const std::vector<std::string>& call, const std::vector<int>& numbers) {
    const Json json = DoTypes(call);
    EXPECT_EQ(json["status"], 1) << testing::PrintToString(call);
    EXPECT_EQ(Numbers(json), numbers) << testing::PrintToString(call);
    EXPECT_EQ(json["dayTypes"], Json::array());
    EXPECT_EQ(All(), before) << testing::PrintToString(call);
  }
};

TEST_F(DayTypesTest, AreListedByNameWithTheirSlots) {
  const Ended ended = Do({"day-type", "list", dayAndNight});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.output,
            "#FFCC80  Summer day\n"
            "  00:00-07:00 Night\n  07:00-21:00 Day\n  21:00-24:00 Night\n"
            "#B0C4DE  Winter day\n"
            "  00:00-08:00 Night\n  08:00-18:00 Day\n  18:00-24:00 Night\n");
  EXPECT_EQ(All(), before);
}

TEST_F(DayTypesTest, AreListedAsJson) {
  const Json day = DayTypesOf(dayAndNight)[0];
  EXPECT_EQ(day["outcome"], "listed");
  EXPECT_EQ(day["id"], "eec27aeb-5464-44ea-a20d-864d4f59d2ec");
  EXPECT_EQ(day["color"], "#FFCC80");
  EXPECT_EQ(day["slots"][2], Json({{"hourType", "Night"},
                                   {"hourTypeId", "086c94f3-22d3-4620-a56c-32c32dd3a893"},
                                   {"from", "21:00"},
                                   {"to", "24:00"},
                                   {"fromMinute", 1260},
                                   {"toMinute", 1440}}));
}

TEST_F(DayTypesTest, ANewOneHasTheSlotsInTheOrderOfTheCall) {
  const Json json = DoTypes(
      With("add", "Short day", {"12:05-24:00 Night", "0:00-12:05 Day"}, {"--colour", "#102030"}));
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["texts"], Json::array());
  EXPECT_EQ(json["notices"], Json({8}));
  const Json made = json["dayTypes"][0];
  EXPECT_EQ(made["outcome"], "made");
  EXPECT_EQ(made["color"], "#102030");
  EXPECT_THAT(Slots(made), ElementsAre("12:05 24:00 Night", "00:00 12:05 Day"));
  EXPECT_EQ(DayTypesOf(dayAndNight)[0]["id"], made["id"]);
  EXPECT_THAT(Read(dayAndNight + ".xdct"),
              HasSubstr("<name>Short day</name>\n      <color>302010</color>\n      <slot>\n"
                        "        <id>086c94f3-22d3-4620-a56c-32c32dd3a893</id>\n"
                        "        <from>12:05</from>\n        <to>24:00</to>\n"));
}

TEST_F(DayTypesTest, PeopleAreToldWhatBecameOfOne) {
  EXPECT_EQ(Do(With("add", "New", {"0:00-24:00 Day"})).output, "Day type “New” made\n");
  EXPECT_EQ(Do(With("modify", "New", {"0:00-24:00 Night"})).output, "Day type “New” changed\n");
  EXPECT_EQ(Do(With("modify", "New", {"0:00-24:00 Night"})).output, "Day type “New” unchanged\n");
  EXPECT_EQ(Do(With("remove", "New", {}, {"--language=es"})).output,
            "Tipo de día «New» eliminado\n");
}

TEST_F(DayTypesTest, ARefusedNameGivesTheTextOfTheWindow) {
  for (const auto& [name, number] : std::vector<std::pair<std::string, int>>{
           {"", 464}, {"a.b", 32764}, {"a\\b", 484}, {"Winter day", 466}}) {
    ExpectRefused(With("add", name, {"0:00-24:00 Day"}), {number});
    ExpectRefused(With("modify", "Summer day", {}, {"--name", name}), {number});
  }
}

TEST_F(DayTypesTest, RefusedSlotsGiveTheTextOfTheWindow) {
  ExpectRefused(With("add", "n", {"0:00-24:30 Day"}), {467});
  ExpectRefused(With("add", "n", {"12:00-11:59 Day"}), {469});
  ExpectRefused(With("add", "n", {"0:00-12:00 Day", "11:59-24:00 Night"}), {470});
  ExpectRefused(With("modify", "Summer day", {"0:00-12:00 Day", "11:59-24:00 Night"}), {470});
  EXPECT_THAT(Do(With("add", "n", {"0:00-12:00 Day", "11:59-24:00 Night"})).errors,
              HasSubstr("Night: from 11:59 to 24:00"));
}

TEST_F(DayTypesTest, AnEndOf24HoursIsNotCutToIt) {
  ExpectRefused(
      With("modify", "Summer day", {"0:00-7:00 Night", "7:00-21:00 Day", "21:00-24:30 Day"}),
      {467});
}

TEST_F(DayTypesTest, ASlotOfAnUnknownHourTypeIsRefused) {
  const Ended ended = Do(With("add", "n", {"0:00-12:00 Day", "12:00-24:00 night"}, {"--yes"}));
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.errors, "qvdisc: There is no hour type “night”\n");
  EXPECT_EQ(All(), before);
}

TEST_F(DayTypesTest, ASlotOfOneOfSeveralHourTypesIsRefused) {
  Edit(dayAndNight + ".xdct", "<name>Night</name>", "<name>Day</name>");
  EXPECT_EQ(Do(With("add", "n", {"0:00-24:00 Day"})).errors,
            "qvdisc: There is more than one hour type “Day”\n");
}

TEST_F(DayTypesTest, AnHourTypeThatTheRulesDoNotFindIsTold) {
  Edit(dayAndNight + ".xdct", "<name>Night</name>", "<name>Night?</name>");
  const Ended ended = Do(With("add", "n", {"0:00-24:00 Night?"}));
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.errors, "qvdisc: There is no hour type “Night?”\n");
}

TEST_F(DayTypesTest, WithoutHourTypesThereAreNoSlots) {
  EXPECT_EQ(Do({"add", "--name", "New"}).status, 0);
  const Json json = DoTypes({"day-type", "add", "New", "n", "--slot", "0:00-24:00 Day"});
  EXPECT_EQ(json["status"], 1);
  EXPECT_THAT(Numbers(json), ElementsAre(480));
}

TEST_F(DayTypesTest, GapsAreAskedAbout) {
  ExpectRefused(With("add", "n", {"8:00-24:00 Day"}), {471});
  ExpectRefused(With("add", "n", {"8:00-24:00 Day"}, {"--no"}), {471});
  const Ended yes = Do(With("add", "n", {"8:00-24:00 Day"}, {"--yes"}));
  EXPECT_EQ(yes.status, 0);
  EXPECT_THAT(yes.errors, HasSubstr("\nNot covered: from 00:00 to 08:00\n"));
  EXPECT_THAT(Slots(DayTypesOf(dayAndNight)[0]), ElementsAre("08:00 24:00 Day"));
}

TEST_F(DayTypesTest, AColourThatAnotherHasIsAskedAbout) {
  ExpectRefused(With("modify", "Summer day", {}, {"--colour=#B0C4DE", "--no"}), {465});
  EXPECT_THAT(Numbers(DoTypes(With("modify", "Summer day", {}, {"--colour=#B0C4DE", "--yes"}))),
              ElementsAre(465));
}

TEST_F(DayTypesTest, TheSlotsBecomeThoseOfTheCall) {
  const auto after = [&](const std::vector<std::string>& slots) {
    const Json json = DoTypes(With("modify", "Summer day", slots, {"--yes"}));
    EXPECT_EQ(json["dayTypes"][0]["outcome"], "changed");
    EXPECT_EQ(Slots(DayTypesOf(dayAndNight)[0]), Slots(json["dayTypes"][0]));
    return Slots(json["dayTypes"][0]);
  };
  EXPECT_THAT(after({"0:00-6:30 Night", "6:30-24:00 Day"}),
              ElementsAre("00:00 06:30 Night", "06:30 24:00 Day"));
  EXPECT_THAT(
      after({"12:00-24:00 Day", "0:00-6:30 Night", "6:30-8:00 Day", "8:00-12:00 Night"}),
      ElementsAre("12:00 24:00 Day", "00:00 06:30 Night", "06:30 08:00 Day", "08:00 12:00 Night"));
  EXPECT_THAT(Slots(DayTypesOf(dayAndNight)[1]),
              ElementsAre("00:00 08:00 Night", "08:00 18:00 Day", "18:00 24:00 Night"));
}

TEST_F(DayTypesTest, AllSlotsCanBeTakenAway) {
  ExpectRefused(With("modify", "Summer day", {}, {"--no-slots", "--no"}), {471});
  const Json json = DoTypes(With("modify", "Summer day", {}, {"--no-slots", "--yes"}));
  EXPECT_EQ(json["dayTypes"][0]["slots"], Json::array());
}

TEST_F(DayTypesTest, TheSameSlotsAreNoChange) {
  const Json json = DoTypes(
      With("modify", "Summer day", {"0:00-7:00 Night", "7:00-21:00 Day", "21:00-24:00 Night"}));
  EXPECT_EQ(json["dayTypes"][0]["outcome"], "unchanged");
  EXPECT_EQ(json["notices"], Json::array());
  EXPECT_THAT(Read(dayAndNight + ".xdct"), Not(HasSubstr("<revision>")));
}

TEST_F(DayTypesTest, TimesThatTheFieldsShowOtherwiseThanTheFileHasThemAreAChange) {
  Edit(dayAndNight + ".xdct", "<to>24:00</to>", "<to>24:30</to>");
  Edit(dayAndNight + ".xdct", "<from>08:00</from>", "<from>8:00</from>");
  const Json json = DoTypes(
      With("modify", "Winter day", {"0:00-8:00 Night", "8:00-18:00 Day", "18:00-24:00 Night"}));
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["dayTypes"][0]["outcome"], "changed");
  EXPECT_THAT(Slots(json["dayTypes"][0]),
              ElementsAre("00:00 08:00 Night", "08:00 18:00 Day", "18:00 24:00 Night"));
}

TEST_F(DayTypesTest, AModifiedOneKeepsWhatTheCallDoesNotGive) {
  const Json json = DoTypes(With("modify", "Summer day", {}, {"--name", "Long day"}));
  const Json day = json["dayTypes"][0];
  EXPECT_EQ(day["id"], "eec27aeb-5464-44ea-a20d-864d4f59d2ec");
  EXPECT_EQ(day["name"], "Long day");
  EXPECT_EQ(day["color"], "#FFCC80");
  EXPECT_EQ(day["slots"].size(), 3U);
}

TEST_F(DayTypesTest, SlotsWhoseHourTypeHasGoneGoWhenTheirDayTypeIsEdited) {
  EXPECT_EQ(Do({"hour-type", "remove", dayAndNight, "Night"}).status, 0);
  const Json json = DoTypes(With("modify", "Summer day", {}, {"--yes"}));
  EXPECT_THAT(Slots(json["dayTypes"][0]), ElementsAre("07:00 21:00 Day"));
  EXPECT_EQ(DayTypesOf(dayAndNight)[1]["slots"].size(), 3U);
}

TEST_F(DayTypesTest, WhatIsWrongWithTheSlotsIsToldAndCanBeMended) {
  Edit(dayAndNight + ".xdct", "<to>07:00</to>", "<to>08:00</to>");
  const Json refused = DoTypes(With("modify", "Summer day", {}, {"--name", "n"}));
  EXPECT_EQ(refused["status"], 1);
  EXPECT_THAT(Numbers(refused), ElementsAre(470, 470));
  const Json mended = DoTypes(
      With("modify", "Summer day", {"0:00-8:00 Night", "8:00-21:00 Day", "21:00-24:00 Night"}));
  EXPECT_EQ(mended["status"], 0);
  EXPECT_THAT(Numbers(mended), ElementsAre(470));
}

TEST_F(DayTypesTest, ADryRunWritesNothing) {
  for (const auto& call : {With("add", "n", {"0:00-24:00 Day"}), With("remove", "Summer day", {}),
                           With("modify", "Summer day", {"8:00-24:00 Day"})}) {
    auto dry = call;
    dry.push_back("--dry-run");
    const Json json = DoTypes(dry);
    EXPECT_EQ(json["status"], 0);
    EXPECT_EQ(json["dayTypes"].size(), 1U);
    EXPECT_EQ(json["changes"].size(), 3U)
        << "the files of the discriminator, and the configuration";
  }
  EXPECT_EQ(All(), before);
}

TEST_F(DayTypesTest, ARemovedOneLeavesItsDates) {
  const Json json = DoTypes({"day-type", "remove", dayAndNight, "Winter day"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["texts"], Json::array());
  EXPECT_EQ(json["notices"], Json({8}));
  EXPECT_EQ(json["dayTypes"][0]["outcome"], "removed");
  EXPECT_EQ(json["dayTypes"][0]["slots"].size(), 3U);
  EXPECT_EQ(Column(DayTypesOf(dayAndNight), "name"), std::vector<std::string>{"Summer day"});
  EXPECT_THAT(Read(dayAndNight + ".xdct"),
              HasSubstr("<day1>602ae490-4af0-4504-8a53-877bba4ac9d5</day1>"));
  EXPECT_EQ(Do({"day-type", "remove", dayAndNight, "Winter day"}).errors,
            "qvdisc: There is no day type “Winter day”\n");
}

}  // namespace
}  // namespace qvdisc
