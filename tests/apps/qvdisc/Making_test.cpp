// What is new after a call, and how a payload is found.
#include <gmock/gmock.h>

#include "tests/apps/qvdisc/CommandLine.h"

namespace qvdisc {
namespace {

using testing::HasSubstr;

class MakingTest : public CommandLine {
 protected:
  const Contents before = All();
};

TEST_F(MakingTest, AddTellsWhatItMade) {
  const Json json = DoJson({"add", "--name", "New"});
  ASSERT_EQ(json["made"].size(), 1U);
  const std::string id = json["made"][0]["id"];
  EXPECT_EQ(json["made"][0]["stem"], id + ".New");
  EXPECT_TRUE(std::filesystem::exists(File(id + ".New.xdct")));

  EXPECT_THAT(Do({"add", "--name", "Newer"}).output, testing::EndsWith(".Newer: made\n"));
  EXPECT_THAT(Do({"add", "--name", "Nuevo", "--language", "es"}).output,
              testing::EndsWith(".Nuevo: creado\n"));
}

TEST_F(MakingTest, ARefusedCallMadeNothing) {
  EXPECT_EQ(DoJson({"add", "--name", "a.b"})["made"], Json::array());
  EXPECT_EQ(DoJson({"paste"}, "hello")["made"], Json::array());
  EXPECT_EQ(Do({"add", "--name", "a.b"}).output, "");
  EXPECT_FALSE(DoJson({"modify", station, "--name", "Other"}).contains("made"));
}

TEST_F(MakingTest, PasteTellsWhatItMadeInItsOrder) {
  const auto item = [](const std::string& name) {
    return "<discriminator><main><name>" + name + "</name></main></discriminator>";
  };
  const std::string payload = "<discriminatorClipboard>" + item("Z") + item("a/b") +
                              item("Day and night") + "</discriminatorClipboard>";
  const Json made = DoJson({"paste"}, payload)["made"];
  ASSERT_EQ(made.size(), 2U) << "a file that can't be written isn't made";
  EXPECT_THAT(std::string(made[0]["stem"]), testing::EndsWith(".Z"));
  EXPECT_THAT(std::string(made[1]["stem"]), testing::EndsWith(".Day and night_1"));
  EXPECT_TRUE(std::filesystem::exists(File(std::string(made[1]["stem"]) + ".xdct")));

  const Ended ended = Do({"paste"}, payload);
  EXPECT_THAT(ended.output, testing::MatchesRegex("[^\n]*\\.Z_1: made\n[^\n]*_2: made\n"));
}

}  // namespace
}  // namespace qvdisc
