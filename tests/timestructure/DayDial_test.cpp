#include "timestructure/DayDial.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "tests/timestructure/Printing.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

using Slots = std::vector<STagSlot>;
constexpr qv::Colour red = 0x0000FF;

Slots SlotsOfMap(const std::vector<std::uint8_t>& map) {
  DayDial dial;
  dial.Setup(map.data(), static_cast<int>(map.size()));
  return dial.Slots();
}

struct MapCase {
  const char* name;
  std::vector<std::uint8_t> map;
  Slots slots;
};

class ByteMap : public testing::TestWithParam<MapCase> {};

TEST_P(ByteMap, GivesItsSlots) { EXPECT_EQ(SlotsOfMap(GetParam().map), GetParam().slots); }

INSTANTIATE_TEST_SUITE_P(
    DayDial, ByteMap,
    testing::Values(MapCase{"EndedAndOpenRun", {0, 0, 1, 0, 0}, {{0, 2, red}, {3, 4, red}}},
                    MapCase{"NoRun", {1, 1, 1}, {}}, MapCase{"Empty", {}, {}},
                    MapCase{"OneOpenMinute", {0}, {{0, 0, red}}},
                    MapCase{"OneEndedMinute", {0, 1}, {{0, 1, red}}},
                    MapCase{"EndedTwice", {1, 0, 1, 1, 0, 1}, {{1, 2, red}, {4, 5, red}}},
                    MapCase{"OtherByteInARun", {0, 2, 0, 1}, {{0, 3, red}}},
                    MapCase{"OtherByteAtTheEndOfARun", {0, 0, 255, 1}, {{0, 2, red}}},
                    MapCase{"OtherByteAtTheEnd", {0, 0, 7}, {{0, 1, red}}},
                    MapCase{"OtherBytesOnly", {2, 3, 255}, {}}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(DayDialByteMap, OfAWholeDayIsOneMinuteShort) {
  EXPECT_EQ(SlotsOfMap(std::vector<std::uint8_t>(1440, 0)), (Slots{{0, 1439, red}}));
}

TEST(DayDialByteMap, BelowOneByteOrWithoutBytesIsEmpty) {
  const std::uint8_t byte = 0;
  for (const int count : {0, -1, std::numeric_limits<int>::min()}) {
    DayDial dial;
    dial.Setup(&byte, 1);
    ASSERT_EQ(dial.Slots().size(), 1U);
    dial.Setup(&byte, count);
    EXPECT_TRUE(dial.Slots().empty()) << count;
  }
  DayDial dial;
  dial.Setup(static_cast<const std::uint8_t*>(nullptr), 5);
  EXPECT_TRUE(dial.Slots().empty());
}

TEST(DayDialByteMap, BeyondTheDayIsKept) {
  std::vector<std::uint8_t> map(10'000'000, 1);
  map[9'999'990] = 0;
  EXPECT_EQ(SlotsOfMap(map), (Slots{{9'999'990, 9'999'991, red}}));
}

/// The slots that a dial takes from XML text: a root with the day first and the hour types second.
Slots SlotsOfText(const std::string& day, const std::string& hourTypes) {
  XmlDocument document;
  EXPECT_TRUE(document.Parse(("<main>" + day + hourTypes + "</main>").c_str()));
  DayDial dial;
  dial.Setup(document.Root()->Node(L"day"), document.Root()->Node(L"hourTypes"));
  return dial.Slots();
}

std::string Slot(const std::string& id, const std::string& from, const std::string& to) {
  return "<slot><id>" + id + "</id><from>" + from + "</from><to>" + to + "</to></slot>";
}

std::string Hour(const std::string& id, const std::string& color) {
  return "<hour><id>" + id + "</id><color>" + color + "</color></hour>";
}

TEST(DayDialOfADay, TakesItsSlotsInOrderWithTheColoursOfTheirHourTypes) {
  const auto slots =
      SlotsOfText("<day>" + Slot("b", "08:00", "14:30") + Slot("a", "00:00", "24:00") + "</day>",
                  "<hourTypes>" + Hour("a", "FF0000") + Hour("b", "00AB12") + "</hourTypes>");
  EXPECT_EQ(slots, (Slots{{480, 870, 0x00AB12}, {0, 1440, 0xFF0000}}));
}

TEST(DayDialOfADay, PassesOverOtherChildren) {
  const auto slots = SlotsOfText("<day><id>x</id><Slot><from>01:00</from></Slot><slots/>" +
                                     Slot("a", "01:00", "02:00") + "</day>",
                                 "");
  EXPECT_EQ(slots, (Slots{{60, 120, red}}));
}

TEST(DayDialOfADay, IsRedWithoutHourTypesOrWithoutItsOwn) {
  const std::string day = "<day>" + Slot("a", "01:00", "02:00") + "</day>";
  EXPECT_EQ(SlotsOfText(day, ""), (Slots{{60, 120, red}}));
  EXPECT_EQ(SlotsOfText(day, "<hourTypes/>"), (Slots{{60, 120, red}}));
  EXPECT_EQ(SlotsOfText(day, "<hourTypes>" + Hour("A", "FF0000") + "</hourTypes>"),
            (Slots{{60, 120, red}}));
}

struct ColourCase {
  const char* text;
  qv::Colour colour;
};

TEST(DayDialOfADay, ReadsColoursAsTheyStand) {
  const ColourCase cases[] = {
      {"FF0000", 0xFF0000}, {"ff00ab", 0xFF00AB},    {"", 0}, {"12", 0x12}, {"1G", 1},
      {"#FF0000", 0},       {"FFFFFFFF", 0xFFFFFFFF}};
  for (const auto& [text, colour] : cases) {
    const auto slots = SlotsOfText("<day>" + Slot("a", "00:00", "01:00") + "</day>",
                                   "<hourTypes>" + Hour("a", text) + "</hourTypes>");
    EXPECT_EQ(slots, (Slots{{0, 60, colour}})) << text;
  }
}

TEST(DayDialOfADay, TakesAnHourTypeWithoutColourForBlack) {
  const auto slots = SlotsOfText("<day>" + Slot("a", "00:00", "01:00") + "</day>",
                                 "<hourTypes><hour><id>a</id></hour></hourTypes>");
  EXPECT_EQ(slots, (Slots{{0, 60, 0}}));
}

struct TimeCase {
  const char* text;
  int minute;
};

TEST(DayDialOfADay, ReadsTimesFromBothEndsOfAnyText) {
  const TimeCase cases[] = {{"12:30", 750},   {"7", 427},      {"", 0},       {"24:00", 1440},
                            {"8:05", 485},    {"08h05", 485},  {"0805", 485}, {"123", 743},
                            {"99:99", 6039},  {"-9:-9", -549}, {"ab:cd", 0},  {"+1 30", 90},
                            {"12:30:45", 765}};
  for (const auto& [text, minute] : cases) {
    const auto slots = SlotsOfText("<day>" + Slot("a", text, text) + "</day>", "");
    EXPECT_EQ(slots, (Slots{{minute, minute, red}})) << text;
  }
}

TEST(DayDialOfADay, TakesASlotWithoutFieldsForMidnight) {
  EXPECT_EQ(SlotsOfText("<day><slot/></day>", ""), (Slots{{0, 0, red}}));
}

TEST(DayDialOfADay, IsEmptyWithoutADay) {
  XmlDocument document;
  ASSERT_TRUE(document.Parse("<hourTypes/>"));
  DayDial dial;
  const std::uint8_t byte = 0;
  dial.Setup(&byte, 1);
  dial.Setup(static_cast<const XmlNode*>(nullptr), document.Root());
  EXPECT_TRUE(dial.Slots().empty());
}

TEST(DayDialOfADay, ReplacesEarlierSlotsAndKeepsNoNode) {
  DayDial dial;
  const std::uint8_t byte = 0;
  dial.Setup(&byte, 1);
  {
    XmlDocument document;
    ASSERT_TRUE(document.Parse(("<day>" + Slot("a", "01:00", "02:00") + "</day>").c_str()));
    dial.Setup(document.Root(), nullptr);
  }
  EXPECT_EQ(dial.Slots(), (Slots{{60, 120, red}}));
}

}  // namespace
}  // namespace qv
