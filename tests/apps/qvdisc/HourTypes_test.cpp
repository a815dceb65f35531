// The verbs for hour types, with what they print, what they leave on the disk, and how they end.
#include <gmock/gmock.h>

#include "tests/apps/qvdisc/TypesTest.h"

namespace qvdisc {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr const char* nightId = "086c94f3-22d3-4620-a56c-32c32dd3a893";

class HourTypesTest : public TypesTest {
 protected:
  void MakeEmbedded() const { Edit("configuration.xml", "MODBUSTCP", "KORVAXEMBEDDED"); }
};

TEST_F(HourTypesTest, AreListedByName) {
  Edit(dayAndNight + ".xdct", "<name>Day</name>", "<name>Zenith</name>");
  const Ended ended = Do({"hour-type", "list", dayAndNight});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors, "");
  EXPECT_EQ(ended.output, "#5C6BC0  Night\n#F9D65C  Zenith = 1\n");
}

TEST_F(HourTypesTest, AreListedAsJson) {
  const Json json = DoTypes({"hour-type", "list", dayAndNight});
  EXPECT_EQ(json["hourTypes"], Json({{{"outcome", "listed"},
                                      {"id", "f2a72a22-d092-4f3b-9d08-fbaae95440af"},
                                      {"name", "Day"},
                                      {"color", "#F9D65C"},
                                      {"value", "1"}},
                                     {{"outcome", "listed"},
                                      {"id", nightId},
                                      {"name", "Night"},
                                      {"color", "#5C6BC0"},
                                      {"value", ""}}}));
  EXPECT_EQ(json["hostHasToSave"], false);
  EXPECT_EQ(All(), before);
}

TEST_F(HourTypesTest, ANewOneIsSavedAndTold) {
  const Json json = DoTypes({"hour-type", "add", dayAndNight, "Dusk", "--colour", "#8090c0"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["texts"], Json::array());
  EXPECT_EQ(json["notices"], Json({8}));
  EXPECT_EQ(json["saved"], true);
  ASSERT_EQ(json["hourTypes"].size(), 1U);
  const Json made = json["hourTypes"][0];
  EXPECT_EQ(made["outcome"], "made");
  EXPECT_EQ(made["name"], "Dusk");
  EXPECT_EQ(made["color"], "#8090C0");
  EXPECT_THAT(Read(dayAndNight + ".xdct"),
              HasSubstr("<id>" + std::string(made["id"]) +
                        "</id>\n      <name>Dusk</name>\n      <color>C09080</color>\n      "
                        "<value/>\n    </hour>\n  </hourTypes>"));
  EXPECT_THAT(Read(dayAndNight + ".xdct"), HasSubstr("<revision>"));
  EXPECT_THAT(Read(dayAndNight + ".xdctI"), HasSubstr("<name>Dusk</name>"));
}

TEST_F(HourTypesTest, PeopleAreToldInTheirLanguage) {
  EXPECT_EQ(Do({"hour-type", "add", dayAndNight, "Dusk"}).output, "Hour type “Dusk” made\n");
  EXPECT_EQ(Do({"hour-type", "modify", dayAndNight, "Dusk", "--name", "Dawn"}).output,
            "Hour type “Dawn” changed\n");
  EXPECT_EQ(Do({"hour-type", "modify", dayAndNight, "Dawn"}).output,
            "Hour type “Dawn” unchanged\n");
  EXPECT_EQ(Do({"hour-type", "remove", dayAndNight, "Dawn", "--language", "es"}).output,
            "Tipo de hora «Dawn» eliminado\n");
}

TEST_F(HourTypesTest, ANewOneIsWhiteWithoutAQuestion) {
  EXPECT_EQ(Do({"hour-type", "add", dayAndNight, "Dusk"}).errors, "");
  const Json second = DoTypes({"hour-type", "add", dayAndNight, "Dawn", "--colour=#FFFFFF"});
  EXPECT_EQ(second["texts"], Json::array());
  EXPECT_EQ(second["hourTypes"][0]["color"], "#FFFFFF");
}

TEST_F(HourTypesTest, ARefusedNameGivesTheTextOfTheWindow) {
  for (const auto& [name, number] : std::vector<std::pair<std::string, int>>{
           {"", 477}, {"a.b", 32764}, {"Dusk ", 32764}, {"a,b", 483}, {"Night", 466}}) {
    const Json added = DoTypes({"hour-type", "add", dayAndNight, name});
    EXPECT_EQ(added["status"], 1) << name;
    EXPECT_THAT(Numbers(added), ElementsAre(number)) << name;
    EXPECT_EQ(added["hourTypes"], Json::array());
    EXPECT_EQ(added["hostHasToSave"], false);
    EXPECT_THAT(Numbers(DoTypes({"hour-type", "modify", dayAndNight, "Day", "--name", name})),
                ElementsAre(number));
  }
  EXPECT_EQ(All(), before);
}

TEST_F(HourTypesTest, AColourThatAnotherHasIsAskedAbout) {
  const std::vector<std::string> call = {"hour-type", "add", dayAndNight, "Dusk",
                                         "--colour=#5C6BC0"};
  const auto with = [&](const char* answer) {
    auto answered = call;
    answered.push_back(answer);
    return answered;
  };
  EXPECT_EQ(Do(call).status, 1);
  EXPECT_THAT(Do(call).errors, HasSubstr("This question needs --yes or --no"));
  EXPECT_EQ(Do(with("--no")).status, 1);
  EXPECT_EQ(All(), before);
  const Json yes = DoTypes(with("--yes"));
  EXPECT_EQ(yes["status"], 0);
  EXPECT_THAT(Numbers(yes), ElementsAre(465));
  EXPECT_EQ(yes["texts"][0]["answer"], true);
}

TEST_F(HourTypesTest, AModifiedOneKeepsWhatTheCallDoesNotGive) {
  const Json json = DoTypes({"hour-type", "modify", dayAndNight, "Day", "--colour", "#FFD000"});
  EXPECT_EQ(json["notices"], Json({8}));
  EXPECT_EQ(json["hourTypes"], Json({{{"outcome", "changed"},
                                      {"id", "f2a72a22-d092-4f3b-9d08-fbaae95440af"},
                                      {"name", "Day"},
                                      {"color", "#FFD000"},
                                      {"value", "1"}}}));
  EXPECT_EQ(HourTypesOf(dayAndNight)[0]["color"], "#FFD000");
  EXPECT_EQ(HourTypesOf(dayAndNight)[1]["color"], "#5C6BC0");
}

TEST_F(HourTypesTest, WithoutAChangeThereIsNoNewRevision) {
  const Json json =
      DoTypes({"hour-type", "modify", dayAndNight, "Day", "--name", "Day", "--colour", "#F9D65C"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["notices"], Json::array());
  EXPECT_EQ(json["hourTypes"][0]["outcome"], "unchanged");
  EXPECT_THAT(Read(dayAndNight + ".xdct"), Not(HasSubstr("<revision>")));
}

TEST_F(HourTypesTest, AreFoundByNameOrId) {
  const Json json = DoTypes({"hour-type", "modify", dayAndNight, nightId, "--name", "Dark"});
  EXPECT_EQ(json["hourTypes"][0]["name"], "Dark");
  const Ended none = Do({"hour-type", "remove", dayAndNight, "dark"});
  EXPECT_EQ(none.status, 1);
  EXPECT_EQ(none.errors, "qvdisc: There is no hour type “dark”\n");
}

TEST_F(HourTypesTest, OfSeveralWithOneNameOnlyTheIdTellsWhich) {
  Edit(dayAndNight + ".xdct", "<name>Day</name>", "<name>Night</name>");
  const Contents edited = All();
  for (const char* action : {"modify", "remove"}) {
    const Ended ended = Do({"hour-type", action, dayAndNight, "Night"});
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.errors, "qvdisc: There is more than one hour type “Night”\n");
  }
  EXPECT_EQ(All(), edited);
  EXPECT_EQ(Do({"hour-type", "remove", dayAndNight, nightId}).status, 0);
  EXPECT_EQ(Column(HourTypesOf(dayAndNight), "color"), std::vector<std::string>{"#F9D65C"});
}

TEST_F(HourTypesTest, TheValueIsThereOnEmbeddedInstallationsOnly) {
  const std::vector<std::string> call = {"hour-type", "modify",  dayAndNight,
                                         "Night",     "--value", "2"};
  const Ended refused = Do(call);
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.errors, HasSubstr("on an embedded installation only"));
  EXPECT_EQ(All(), before);
  MakeEmbedded();
  EXPECT_EQ(DoTypes(call)["hourTypes"][0]["value"], "2");
  EXPECT_THAT(Read(dayAndNight + ".xdctI"), HasSubstr("<value>2</value>"));
}

TEST_F(HourTypesTest, ARemovedOneLeavesItsSlots) {
  const Json json = DoTypes({"hour-type", "remove", dayAndNight, "Night"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["texts"], Json::array());
  EXPECT_EQ(json["notices"], Json({8}));
  EXPECT_EQ(json["hourTypes"][0]["outcome"], "removed");
  EXPECT_EQ(json["hourTypes"][0]["id"], nightId);
  EXPECT_EQ(Column(HourTypesOf(dayAndNight), "name"), std::vector<std::string>{"Day"});

  const Json slot = DayTypesOf(dayAndNight)[0]["slots"][0];
  EXPECT_EQ(slot["hourTypeId"], nightId);
  EXPECT_EQ(slot["hourType"], nullptr);
  EXPECT_THAT(Do({"day-type", "list", dayAndNight}).output, HasSubstr("\n  00:00-07:00 ?\n"));
}

TEST_F(HourTypesTest, ADiscriminatorOfConditionsHasNone) {
  for (const std::vector<std::string>& call :
       std::vector<std::vector<std::string>>{{"hour-type", "list", station},
                                             {"hour-type", "add", station, "n"},
                                             {"hour-type", "modify", station, "n"},
                                             {"hour-type", "remove", station, "n"},
                                             {"day-type", "list", station},
                                             {"day-type", "add", station, "n", "--yes"}}) {
    const Ended ended = Do(call);
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.output, "");
    EXPECT_THAT(ended.errors, HasSubstr("is a discriminator of conditions"));
  }
  EXPECT_EQ(All(), before);
}

TEST_F(HourTypesTest, AnUnknownDiscriminatorIsRefused) {
  EXPECT_EQ(Do({"hour-type", "list", "none"}).errors,
            "qvdisc: There is no discriminator “none” in the list\n");
}

TEST_F(HourTypesTest, WhatCannotBeSavedIsGivenBackAndNotTold) {
  std::filesystem::permissions(File(dayAndNight + ".xdct"), std::filesystem::perms::owner_read);
  const Json json = DoTypes({"hour-type", "add", dayAndNight, "Dusk"});
  EXPECT_EQ(json["status"], 1);
  EXPECT_THAT(Numbers(json), ElementsAre(32362));
  EXPECT_EQ(json["hourTypes"], Json::array());
  EXPECT_THAT(std::string(json["unsaved"]), HasSubstr("<name>Dusk</name>"));
}

}  // namespace
}  // namespace qvdisc
