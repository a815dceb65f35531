#include "timestructure/SlotWords.h"

#include <gtest/gtest.h>

#include <limits>

namespace qv {
namespace {

TEST(SlotsInWords, TellEachSlotInOrder) {
  const std::vector<STagSlot> slots = {{480, 840}, {0, 65}, {1320, 1440}};
  EXPECT_EQ(SlotsInWords(slots, L"%s-%s"), L"08:00-14:00; 00:00-01:05; 22:00-24:00");
  EXPECT_EQ(SlotsInWords(slots, L"from %s to %s"),
            L"from 08:00 to 14:00; from 00:00 to 01:05; from 22:00 to 24:00");
}

TEST(SlotsInWords, OfNoSlotsAreEmpty) { EXPECT_EQ(SlotsInWords({}, L"%s-%s"), L""); }

TEST(SlotsInWords, TellOnlyWhatLiesInTheDay) {
  const int most = std::numeric_limits<int>::max();
  const int least = std::numeric_limits<int>::min();
  const std::vector<STagSlot> slots = {{300, 200}, {1380, most}, {least, 60}, {2000, 3000}, {5, 5}};
  EXPECT_EQ(SlotsInWords(slots, L"%s-%s"), L"23:00-24:00; 00:00-01:00; 00:05-00:05");
}

}  // namespace
}  // namespace qv
