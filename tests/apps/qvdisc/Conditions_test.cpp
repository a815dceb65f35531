// The verbs for conditions and expressions, with what they print, what they leave on the disk, and
// how they end.
#include <gmock/gmock.h>

#include "tests/apps/qvdisc/TypesTest.h"

namespace qvdisc {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr const char* overloadId = "ad9f4b54-eeb4-4622-838f-23d8ece1bdde";

class ConditionsTest : public TypesTest {
 protected:
  Json Listed() const { return DoTypes({"condition", "list", station})["conditions"]; }
  std::vector<std::string> Order() const { return Column(Listed(), "name"); }
  std::string Revision() const { return DoJson({"show", station})["document"]["revision"]; }
};

TEST_F(ConditionsTest, AreListedInTheirOrderWithTheirResult) {
  const Json listed = Listed();
  EXPECT_THAT(Column(listed, "name"), ElementsAre("No supply", "Undervoltage", "Overvoltage",
                                                  "Distorted or unbalanced", "Overload"));
  EXPECT_EQ(listed[4]["id"], overloadId);
  EXPECT_EQ(listed[4]["expression"], "[TS1.S] > 630 || [TS1_TEMP.OIL] > 95");
  EXPECT_EQ(listed[4]["place"], 5);
  EXPECT_EQ(listed[4]["outcome"], "listed");
  for (const auto& condition : listed) {
    EXPECT_THAT(std::vector<std::string>({"true", "false", "no-value"}),
                testing::Contains(condition["result"]))
        << condition["fault"];
  }
  EXPECT_EQ(All(), before);
}

TEST_F(ConditionsTest, PeopleAreToldWhichIsTrueFirst) {
  ASSERT_EQ(Do({"condition", "add", station, "Always", "--expression", "1 < 2"}).status, 0);
  for (int place = 6; place > 1; --place) {
    ASSERT_EQ(Do({"condition", "up", station, "Always"}).status, 0) << place;
  }
  const std::string output = Do({"condition", "list", station}).output;
  EXPECT_THAT(output, testing::StartsWith("1  Always: 1 < 2  [true]\n2  No supply: "));
  EXPECT_THAT(output, testing::EndsWith("\nTrue first: “Always”\n"));
  EXPECT_THAT(Do({"condition", "list", station, "--language", "es"}).output,
              testing::EndsWith("\nSe cumple primero: «Always»\n"));
}

TEST_F(ConditionsTest, ANewOneIsSavedAtTheEndAndTold) {
  const Json json =
      DoTypes({"condition", "add", station, "Hot oil", "--expression", "TS1_TEMP.OIL > 85"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["texts"], Json::array());
  EXPECT_EQ(json["notices"], Json({8}));
  EXPECT_EQ(json["saved"], true);
  ASSERT_EQ(json["conditions"].size(), 1U);
  EXPECT_EQ(json["conditions"][0]["outcome"], "made");
  EXPECT_EQ(json["conditions"][0]["place"], 6);
  EXPECT_THAT(Read(station + ".xdct"),
              HasSubstr("<id>" + std::string(json["conditions"][0]["id"]) +
                        "</id>\n      <name>Hot oil</name>\n      <exp>TS1_TEMP.OIL &gt; 85</exp>\n"
                        "    </condition>\n  </conditions>"));
}

TEST_F(ConditionsTest, PeopleAreToldInTheirLanguage) {
  EXPECT_EQ(Do({"condition", "add", station, "Hot", "--expression", "1 < 2"}).output,
            "Condition “Hot” made\n");
  EXPECT_EQ(Do({"condition", "modify", station, "Hot", "--expression", "1 < 3"}).output,
            "Condition “Hot” changed\n");
  EXPECT_EQ(Do({"condition", "modify", station, "Hot"}).output, "Condition “Hot” unchanged\n");
  EXPECT_EQ(Do({"condition", "up", station, "Hot"}).output, "Condition “Hot” moved to place 5\n");
  EXPECT_EQ(Do({"condition", "remove", station, "Hot", "--yes", "--language", "es"}).output,
            "Condición «Hot» eliminada\n");
}

TEST_F(ConditionsTest, AModifiedOneKeepsItsIdAndWhatTheCallDoesNotGive) {
  const Json json =
      DoTypes({"condition", "modify", station, overloadId, "--name", "Too much load"});
  EXPECT_EQ(json["conditions"][0]["outcome"], "changed");
  EXPECT_EQ(json["conditions"][0]["id"], overloadId);
  EXPECT_EQ(json["conditions"][0]["expression"], "[TS1.S] > 630 || [TS1_TEMP.OIL] > 95");
  EXPECT_EQ(Order().back(), "Too much load");
}

TEST_F(ConditionsTest, AnUnchangedOneLeavesTheRevision) {
  const std::string revision = Revision();
  const Json json = DoTypes({"condition", "modify", station, "Overload", "--name", "Overload"});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["conditions"][0]["outcome"], "unchanged");
  EXPECT_EQ(Revision(), revision);
}

TEST_F(ConditionsTest, AMoveExchangesNameAndExpressionAndLeavesIdsAndRevision) {
  const Json listed = Listed();
  const std::string revision = Revision();
  const Json moved = DoTypes({"condition", "up", station, "Overload"})["conditions"][0];
  EXPECT_EQ(moved["outcome"], "moved");
  EXPECT_EQ(moved["place"], 4);
  EXPECT_EQ(moved["id"], listed[3]["id"]);
  EXPECT_THAT(Order(), ElementsAre("No supply", "Undervoltage", "Overvoltage", "Overload",
                                   "Distorted or unbalanced"));
  EXPECT_EQ(Revision(), revision);
  EXPECT_EQ(DoTypes({"condition", "down", station, "Overload"})["conditions"][0]["place"], 5);
  EXPECT_EQ(Listed(), listed);
}

TEST_F(ConditionsTest, AMoveBeyondTheEndIsRefused) {
  const Ended up = Do({"condition", "up", station, "No supply"});
  EXPECT_EQ(up.status, 1);
  EXPECT_THAT(up.errors, HasSubstr("“No supply” already stands at that end"));
  EXPECT_EQ(Do({"condition", "down", station, "Overload"}).status, 1);
  EXPECT_EQ(All(), before);
}

TEST_F(ConditionsTest, ARemovalIsAskedFor) {
  EXPECT_THAT(Do({"condition", "remove", station, "Overload"}).errors,
              HasSubstr("This question needs --yes or --no"));
  const Json no = DoTypes({"condition", "remove", station, "Overload", "--no"});
  EXPECT_EQ(no["status"], 1);
  EXPECT_THAT(Numbers(no), ElementsAre(36423));
  EXPECT_EQ(All(), before);
  const Json yes = DoTypes({"condition", "remove", station, "Overload", "--yes"});
  EXPECT_EQ(yes["conditions"][0]["outcome"], "removed");
  EXPECT_EQ(yes["conditions"][0]["place"], 0);
  EXPECT_EQ(Order().size(), 4U);
}

TEST_F(ConditionsTest, WhatTheWindowRefusesGivesItsText) {
  const auto add = [&](const std::string& name, const std::string& expression) {
    return DoTypes({"condition", "add", station, name, "--expression", expression});
  };
  EXPECT_THAT(Numbers(add("", "1 < 2")), ElementsAre(37014));
  EXPECT_THAT(Numbers(add("A", "1 <")), ElementsAre(32446));
  EXPECT_THAT(Numbers(add("A", "")), ElementsAre(32446));
  EXPECT_THAT(Numbers(add("A", "a = 1")), ElementsAre(32446));
  EXPECT_THAT(Numbers(add("A", "1 + 2")), ElementsAre(32446));
  EXPECT_THAT(Numbers(add("Overload", "1 < 2")), ElementsAre(37013));
  EXPECT_EQ(add("A", "NOBODY.X > 1")["texts"][0]["number"], 0);
  EXPECT_EQ(add("A", "1 <")["status"], 1);
  EXPECT_EQ(add("A", "1 <")["conditions"], Json::array());
  EXPECT_EQ(All(), before);
}

TEST_F(ConditionsTest, WhatTheFieldsCannotHoldIsAWrongCall) {
  const std::string longName(65, 'n');
  const std::string longExpression = "1 < " + std::string(61, '2');
  const Ended name = Do({"condition", "add", station, longName, "--expression", "1 < 2"});
  EXPECT_EQ(name.status, 2);
  EXPECT_THAT(name.errors, HasSubstr("at most 64 characters"));
  const Ended expression = Do({"condition", "add", station, "A", "--expression", longExpression});
  EXPECT_EQ(expression.status, 2);
  EXPECT_THAT(expression.errors, HasSubstr("at most 64 characters"));
  EXPECT_EQ(Do({"condition", "add", station, "A"}).status, 2);
  EXPECT_EQ(Do({"condition", "add", station, std::string(64, 'n'), "--expression",
                "1 < " + std::string(60, '2')})
                .status,
            0);
}

TEST_F(ConditionsTest, AStoredTextIsNotCutByTheWay) {
  const std::string blanks(64, ' ');
  Edit(station + ".xdct", "[TS1.THDV] &gt; 8", "[TS1.THDV] &gt; 8" + blanks);
  const Contents edited = All();
  const Ended ended =
      Do({"condition", "modify", station, "Distorted or unbalanced", "--name", "Distorted"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_THAT(ended.errors, HasSubstr("Only the first 64 characters of"));
  EXPECT_EQ(All(), edited);
}

TEST_F(ConditionsTest, ACheckWithoutAGoodConfigurationLeavesExpressionsAlone) {
  Write("configuration.xml", "<configuration");
  const Json checked = DoJson({"check"});
  for (const auto& finding : checked["findings"]) {
    EXPECT_NE(finding["kind"], "condition-fails") << finding;
  }
}

TEST_F(ConditionsTest, OneThatIsNotThereIsToldOfByItsName) {
  for (const char* action : {"modify", "remove", "up", "down"}) {
    const Ended ended = Do({"condition", action, station, "overload"});
    EXPECT_EQ(ended.status, 1) << action;
    EXPECT_THAT(ended.errors, HasSubstr("There is no condition “overload”")) << action;
  }
  Edit(station + ".xdct", "<name>Overvoltage</name>", "<name>Overload</name>");
  EXPECT_THAT(Do({"condition", "up", station, "Overload"}).errors,
              HasSubstr("more than one condition “Overload”"));
}

TEST_F(ConditionsTest, ADiscriminatorOfTimeSlotsHasNone) {
  const Ended ended = Do({"condition", "list", dayAndNight});
  EXPECT_EQ(ended.status, 1);
  EXPECT_THAT(ended.errors, HasSubstr("a discriminator of time slots: it has no conditions"));
}

TEST_F(ConditionsTest, ADryRunChangesNothing) {
  const Json json = DoTypes({"condition", "up", station, "Overload", "--dry-run"});
  EXPECT_EQ(json["dryRun"], true);
  EXPECT_EQ(json["conditions"][0]["place"], 4);
  EXPECT_EQ(All(), before);
}

TEST_F(ConditionsTest, AnExpressionIsEvaluated) {
  EXPECT_EQ(Do({"eval", "1 + 2 * 3.25"}).output, "7.5\n");
  EXPECT_EQ(Do({"eval", "1 < 2"}).output, "true\n");
  EXPECT_EQ(Do({"eval", "1 > 2", "--language", "es"}).output, "falso\n");
  const Json json = DoJson({"eval", "min(3, 2) < 1"})["evaluated"];
  EXPECT_EQ(json, Json({{"expression", "min(3, 2) < 1"},
                        {"code", 0},
                        {"type", "logical"},
                        {"value", false},
                        {"fault", nullptr}}));
  EXPECT_EQ(DoJson({"eval", "2.5"})["evaluated"]["value"], 2.5);
  EXPECT_EQ(All(), before);
}

TEST_F(ConditionsTest, AnExpressionWithoutResultSaysWhyAndWhere) {
  const Ended ended = Do({"eval", "1 + NOBODY.X"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.output, "");
  EXPECT_THAT(ended.errors, HasSubstr("At character 5: "));
  EXPECT_THAT(ended.errors, HasSubstr("NOBODY"));
  const Json json = DoJson({"eval", "(1"})["evaluated"];
  EXPECT_EQ(json["code"], nullptr);
  EXPECT_EQ(json["value"], nullptr);
  EXPECT_EQ(Do({"eval", "a = 1"}).status, 1);
}

TEST_F(ConditionsTest, VariablesHaveTheValuesOfTheTimeOfDay) {
  const Json voltage = DoJson({"eval", "TS1.VL1"})["evaluated"];
  EXPECT_EQ(voltage["code"], 0);
  EXPECT_EQ(voltage["type"], "number");
  EXPECT_EQ(DoJson({"eval", "TS1.VL1 > 100"})["evaluated"]["value"], true);
}

TEST_F(ConditionsTest, ACheckTellsWhatNoConditionIs) {
  Edit(station + ".xdct", "<exp>[TS1.THDV] &gt; 8 || [TS1.VUNB] &gt; 2</exp>",
       "<exp>[TS1.THDV] &gt;</exp>");
  const Json checked = DoJson({"check", station});
  EXPECT_EQ(checked["status"], 1);
  ASSERT_EQ(checked["findings"].size(), 1U);
  EXPECT_EQ(checked["findings"][0]["kind"], "condition-malformed");
  EXPECT_EQ(checked["findings"][0]["place"], "conditions/Distorted or unbalanced");
  EXPECT_THAT(Do({"check", station}).output,
              HasSubstr("conditions/Distorted or unbalanced: the expression does not parse: "));
}

}  // namespace
}  // namespace qvdisc
