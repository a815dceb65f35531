#include "timestructure/SlotWords.h"

#include <gtest/gtest.h>

#include <limits>

#include "tools/XmlDocument.h"

namespace qv {
namespace {

TEST(SlotsInWords, TellEachSlotInOrder) {
  const std::vector<STagSlot> slots = {{480, 840}, {0, 65}, {1320, 1440}};
  EXPECT_EQ(SlotsInWords(slots, {}, {}), L"08:00-14:00; 00:00-01:05; 22:00-24:00");
  EXPECT_EQ(SlotsInWords(slots, {}, {.times = L"from %s to %s"}),
            L"from 08:00 to 14:00; from 00:00 to 01:05; from 22:00 to 24:00");
}

TEST(SlotsInWords, OfNoSlotsAreEmpty) { EXPECT_EQ(SlotsInWords({}, {}, {}), L""); }

TEST(SlotsInWords, TellOnlyWhatLiesInTheDay) {
  const int most = std::numeric_limits<int>::max();
  const int least = std::numeric_limits<int>::min();
  const std::vector<STagSlot> slots = {{300, 200}, {1380, most}, {least, 60}, {2000, 3000}, {5, 5}};
  EXPECT_EQ(SlotsInWords(slots, {}, {}), L"23:00-24:00; 00:00-01:00; 00:05-00:05");
}

TEST(SlotsInWords, NameTheHourTypesThatAreKnown) {
  const std::vector<STagSlot> slots = {{0, 60}, {60, 120}, {120, 180}};
  const SlotForms forms = {.typed = L"%s: %s to %s"};
  EXPECT_EQ(SlotsInWords(slots, {L"Peak 100 %s", L""}, forms),
            L"Peak 100 %s: 00:00 to 01:00; 01:00-02:00; 02:00-03:00");
  EXPECT_EQ(SlotsInWords(slots, {L"Peak"}, {}), L"00:00-01:00; 01:00-02:00; 02:00-03:00");
}

TEST(HourTypesOfSlots, AreTheNamesInTheOrderOfTheSlots) {
  XmlDocument document;
  ASSERT_TRUE(document.Parse(
      "<r><day><slot><id>b</id></slot><other/><slot><id>none</id></slot><slot><id>a</id></slot>"
      "</day><hourTypes><hour><id>a</id><name>Valley</name></hour>"
      "<hour><id>b</id><name>Peak</name></hour></hourTypes></r>"));
  const XmlNode* day = document.Root()->Node(L"day");
  const XmlNode* hourTypes = document.Root()->Node(L"hourTypes");
  EXPECT_EQ(HourTypesOfSlots(day, hourTypes), (std::vector<QVWideString>{L"Peak", L"", L"Valley"}));
  EXPECT_EQ(HourTypesOfSlots(day, nullptr), std::vector<QVWideString>(3));
  EXPECT_TRUE(HourTypesOfSlots(nullptr, hourTypes).empty());
}

}  // namespace
}  // namespace qv
