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

TEST_F(MakingTest, APayloadIsFoundInTheTextOfAMail) {
  const std::string payload = Do({"copy", "Day and night"}).output;
  const std::vector<std::pair<std::string, std::string>> mails = {
      {"Hello,\r\n\r\nhere is the tariff:\r\n", "\r\nGreetings < & >\r\n"},
      {"", "-- \nthe undersigned"},
      {"\xEF\xBB\xBFWhat stands from <discriminatorClipboard> to </discriminatorClipboard>:\n", ""},
      {"</discriminatorClipboard> <discriminatorClipboard/> <discriminatorClipboard>\n", "\n<b>"},
      {"<discriminatorClipboard><discriminator><main/></discriminatorClipboard>", "<"},
      {"\xff\xfe <p>", "</p>"},
      {"what I sent is </discriminatorClipboard, see\n", ""},
  };
  for (const auto& [start, end] : mails) {
    EXPECT_EQ(DoJson({"paste"}, start + payload + end)["made"].size(), 1U) << start;
  }
}

TEST_F(MakingTest, OfTwoPayloadsInATextTheFirstIsTaken) {
  const Json json = DoJson({"paste"}, "One: " + Do({"copy", "Day and night"}).output +
                                          "Two: " + Do({"copy", station}).output);
  ASSERT_EQ(json["made"].size(), 1U);
  EXPECT_THAT(std::string(json["made"][0]["stem"]), HasSubstr("Day and night_1"));
}

TEST_F(MakingTest, ATextWithoutAPayloadIsForeign) {
  for (const char* text :
       {"</discriminatorClipboard", "<discriminatorClipboard", "</discriminatorClipboard>",
        "from <discriminatorClipboard> to </discriminatorClipboard>",
        "mail: <discriminatorClipboard><discriminator><main></discriminatorClipboard>"}) {
    EXPECT_EQ(Do({"paste"}, text).errors, "qvdisc: Standard input holds no discriminators\n");
  }
  EXPECT_EQ(All(), before);
}

TEST_F(MakingTest, ATextOfManyStartsAndEndsIsReadOnce) {
  std::string text;
  for (int i = 0; i < 100000; ++i) {
    text += "<discriminatorClipboard>";
  }
  for (int i = 0; i < 100000; ++i) {
    text += "</discriminatorClipboard>";
  }
  EXPECT_EQ(Do({"paste"}, "mail " + text).status, 1);
  EXPECT_EQ(DoJson({"paste"}, text + Do({"copy", station}).output)["made"].size(), 1U);
}

}  // namespace
}  // namespace qvdisc
