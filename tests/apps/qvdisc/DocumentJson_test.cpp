#include "apps/qvdisc/DocumentJson.h"

#include <gmock/gmock.h>

#include "tests/apps/qvdisc/CommandLine.h"
#include "tests/support/Parsed.h"

namespace qvdisc {
namespace {

using DocumentJsonTest = CommandLine;

Json Document(const std::string& content) {
  return DocumentJson(*qv::Parsed("<main>" + content + "</main>"));
}

TEST_F(DocumentJsonTest, ShowGivesHourTypesDayTypesAndSlotsAsObjects) {
  const Json document = DoJson({"show", dayAndNight})["document"];
  ASSERT_EQ(document["hourTypes"].size(), 2U);
  const Json& day = document["hourTypes"][0];
  EXPECT_EQ(day["name"], "Day");
  EXPECT_EQ(day["value"], "1");
  EXPECT_EQ(document["hourTypes"][1]["value"], "");

  const Json& winter = document["dayTypes"][0];
  EXPECT_EQ(winter["name"], "Winter day");
  ASSERT_EQ(winter["slots"].size(), 3U);
  EXPECT_EQ(winter["slots"][1], Json({{"from", "08:00"},
                                      {"to", "18:00"},
                                      {"fromMinute", 480},
                                      {"toMinute", 1080},
                                      {"hourTypeId", day["id"]},
                                      {"hourType", "Day"}}));
  EXPECT_TRUE(document.contains("content")) << "the document as it stands is there as well";
}

TEST(DocumentJson, ColoursAreRedGreenBlue) {
  const Json document = Document(
      "<hourTypes><hour><color>0000FF</color></hour><hour><color>a0b0c0</color></hour><hour/>"
      "</hourTypes><dayTypes><day><color>FF0000</color></day></dayTypes>");
  EXPECT_EQ(document["hourTypes"][0]["color"], "#FF0000");
  EXPECT_EQ(document["hourTypes"][1]["color"], "#C0B0A0");
  EXPECT_EQ(document["hourTypes"][2]["color"], "#000000");
  EXPECT_EQ(document["dayTypes"][0]["color"], "#0000FF");
  EXPECT_EQ(document["content"][0]["hourTypes"][0]["hour"][0]["color"], "0000FF");
}

TEST(DocumentJson, ASlotWithoutItsHourTypeHasNoName) {
  const Json document =
      Document("<dayTypes><day><slot><id>h</id><from>8:00</from></slot></day></dayTypes>");
  EXPECT_EQ(document["dayTypes"][0]["slots"][0], Json({{"from", "8:00"},
                                                       {"to", ""},
                                                       {"fromMinute", 480},
                                                       {"toMinute", 0},
                                                       {"hourTypeId", "h"},
                                                       {"hourType", nullptr}}));
}

TEST(DocumentJson, WhatIsNotThereIsAnEmptyList) {
  const Json document = Document("");
  EXPECT_EQ(document["hourTypes"], Json::array());
  EXPECT_EQ(document["dayTypes"], Json::array());
}

}  // namespace
}  // namespace qvdisc
