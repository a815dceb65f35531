// Each verb that writes, when it is to write nothing.
#include <gmock/gmock.h>

#include "tests/apps/qvdisc/CommandLine.h"

namespace qvdisc {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class DryRunTest : public CommandLine {
 protected:
  ~DryRunTest() override { EXPECT_EQ(All(), before) << "a dry run writes nothing"; }

  Json Dry(std::vector<std::string> arguments, const std::string& input = {}) const {
    arguments.push_back("--dry-run");
    Json json = DoJson(arguments, input);
    EXPECT_EQ(json["dryRun"], true);
    return json;
  }

  /// The changes of a call, with the names of the files only.
  static std::vector<std::string> Changes(const Json& json) {
    std::vector<std::string> changes;
    for (const Json& change : json["changes"]) {
      const std::filesystem::path path = change["path"].get<std::string>();
      changes.push_back(change["change"].get<std::string>() + " " + path.filename().string());
    }
    return changes;
  }

  Contents before = All();
};

TEST_F(DryRunTest, AddMakesNothing) {
  const Json json = Dry({"add", "--name", "New"});
  EXPECT_EQ(json["status"], 0);
  ASSERT_EQ(json["made"].size(), 1U);
  const std::string stem = json["made"][0]["stem"];
  EXPECT_THAT(Changes(json), testing::UnorderedElementsAre("written " + stem + ".xdct",
                                                           "written " + stem + ".xdctI",
                                                           "written configuration.xml"));
  EXPECT_THAT(Names(json), testing::Contains("New")) << "the list as it would be";
}

TEST_F(DryRunTest, AddRefusesWhatItWouldRefuse) {
  const Json json = Dry({"add", "--name", "Day and night"});
  EXPECT_EQ(json["status"], 1);
  EXPECT_EQ(json["texts"].size(), 1U);
  EXPECT_EQ(json["changes"], Json::array());
  EXPECT_EQ(Do({"add", "--name", "a.b", "--dry-run"}).output, "would write and remove nothing\n");
}

TEST_F(DryRunTest, ModifyKeepsTheOldFiles) {
  const std::string other = "3cb7ab9e-fc2c-4de8-882f-a8ed7fb19e6b.Other";
  const Json json = Dry({"modify", "Day and night", "--name", "Other"});
  EXPECT_THAT(Changes(json),
              ElementsAre("removed " + dayAndNight + ".xdct", "removed " + dayAndNight + ".xdctI",
                          "written " + other + ".xdct", "written " + other + ".xdctI",
                          "written configuration.xml"));
  EXPECT_THAT(Changes(Dry({"modify", "Day and night"})),
              ElementsAre("written " + dayAndNight + ".xdct", "written " + dayAndNight + ".xdctI",
                          "written configuration.xml"));
}

TEST_F(DryRunTest, RemoveNeedsNoAnswer) {
  const Json json = Dry({"remove", station});
  EXPECT_EQ(json["status"], 0);
  EXPECT_EQ(json["texts"][0]["answer"], true);
  EXPECT_THAT(Changes(json),
              ElementsAre("removed " + station + ".xdct", "written configuration.xml"));
  EXPECT_EQ(Changes(Dry({"remove", station, "--no"})).size(), 0U);
}

TEST_F(DryRunTest, IsToldInWordsInBothLanguages) {
  const std::string path = (directory.Path() / "").string();
  EXPECT_EQ(Do({"remove", dayAndNight, "--dry-run"}).output,
            "would remove: " + path + dayAndNight + ".xdct\nwould remove: " + path + dayAndNight +
                ".xdctI\nwould write: " + path + "configuration.xml\n");
  EXPECT_THAT(Do({"remove", station, "--dry-run", "--language", "es"}).output,
              testing::StartsWith("se eliminaría: "));
}

TEST_F(DryRunTest, PasteFindsFreeNamesAlsoAmongThoseItWouldMake) {
  const std::string payload = Do({"copy", "Day and night"}).output;
  const Json json = Dry({"paste"}, payload);
  EXPECT_EQ(json["made"].size(), 1U);
  EXPECT_EQ(json["changes"].size(), 3U);
  EXPECT_THAT(Names(json), testing::Contains("Day and night_1"));
}

TEST_F(DryRunTest, IndexLeavesTheFilesAsTheyAre) {
  Write(dayAndNight + ".xdctI", "old");
  before = All();
  EXPECT_THAT(Changes(Dry({"index", dayAndNight, station})),
              ElementsAre("written " + dayAndNight + ".xdctI"));
}

TEST_F(DryRunTest, AFileThatCannotBeReplacedIsForeseen) {
  std::filesystem::permissions(File(tariff2 + ".xdct"), std::filesystem::perms::owner_read);
  EXPECT_EQ(Dry({"modify", tariff2, "--description", "x"})["texts"][0]["number"], 32362);
  const Json json = Dry({"remove", dayAndNight, tariff2, "--yes"});
  EXPECT_EQ(json["status"], 1);
  EXPECT_EQ(json["texts"][1]["number"], 32369);
}

TEST_F(DryRunTest, AConfigurationThatCannotBeSavedIsForeseen) {
  std::filesystem::permissions(File("configuration.xml"), std::filesystem::perms::owner_read);
  const Json json = Dry({"add", "--name", "New"});
  EXPECT_EQ(json["status"], 1);
  EXPECT_EQ(json["saved"], false);
  EXPECT_THAT(std::string(json["errors"][0]), HasSubstr("could not be saved"));
}

TEST(DryRun, IsNothingForVerbsThatOnlyRead) {
  for (const char* verb : {"list", "check", "copy", "show"}) {
    EXPECT_EQ(Call({verb, "x", "--installation=.", "--dry-run"}).status, 2) << verb;
  }
}

}  // namespace
}  // namespace qvdisc
