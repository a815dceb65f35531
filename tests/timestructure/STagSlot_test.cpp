#include "timestructure/STagSlot.h"

#include <gtest/gtest.h>

#include "tests/timestructure/Printing.h"

namespace qv {
namespace {

TEST(DayPart, KeepsASlotOfTheDayAsItIs) {
  for (const STagSlot& slot : {STagSlot{0, 1440, 7}, STagSlot{5, 5, 7}, STagSlot{1440, 1440, 7}}) {
    EXPECT_EQ(DayPart(slot), slot);
  }
}

TEST(DayPart, CutsWhatLiesOutside) { EXPECT_EQ(DayPart({-5, 2000, 7}), (STagSlot{0, 1440, 7})); }

TEST(DayPart, IsNothingOutsideAndForAnEndBeforeTheStart) {
  for (const STagSlot& slot :
       {STagSlot{10, 9}, STagSlot{-9, 0}, STagSlot{-9, -9}, STagSlot{1440, 1441}}) {
    EXPECT_EQ(DayPart(slot), std::nullopt) << slot.from;
  }
}

}  // namespace
}  // namespace qv
