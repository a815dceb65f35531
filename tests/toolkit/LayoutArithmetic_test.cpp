#include "toolkit/LayoutArithmetic.h"

#include <gtest/gtest.h>

#include <ostream>

#include "tests/support/NamedCase.h"

namespace qv {

void PrintTo(const LayoutSpan& span, std::ostream* out) {
  *out << span.offset << "+" << span.length;
}

namespace {

LayoutShare operator""_px(unsigned long long pixels) { return {static_cast<int>(pixels), false}; }
LayoutShare operator""_pc(unsigned long long share) { return {static_cast<int>(share), true}; }

struct DivideCase : NamedCase {
  int extent;
  std::vector<LayoutShare> items;
  std::vector<LayoutSpan> spans;
};

class DivideExtentTest : public ::testing::TestWithParam<DivideCase> {};

TEST_P(DivideExtentTest, GivesTheSpans) {
  EXPECT_EQ(DivideExtent(GetParam().extent, GetParam().items), GetParam().spans);
}

const DivideCase divideCases[] = {
    {"Nothing", 100, {}, {}},
    {"FixedItemsStandSideBySide", 100, {10_px, 20_px}, {{0, 10}, {10, 20}}},
    {"OneShareTakesWhatIsLeft", 100, {10_px, 100_pc, 20_px}, {{0, 10}, {10, 70}, {80, 20}}},
    {"SharesDivideWhatFixedItemsLeave", 110, {50_pc, 10_px, 50_pc}, {{0, 50}, {50, 10}, {60, 50}}},
    {"LastShareTakesTheRounding", 101, {33_pc, 34_pc, 33_pc}, {{0, 33}, {33, 34}, {67, 34}}},
    {"RoundingPassesOverALastShareOfNothing",
     101,
     {50_pc, 50_pc, 0_pc},
     {{0, 50}, {50, 51}, {101, 0}}},
    {"FixedItemBehindTheLastShareStaysAtTheEnd",
     106,
     {50_pc, 50_pc, 5_px},
     {{0, 50}, {50, 51}, {101, 5}}},
    {"LessThanAHundredLeavesRoom", 200, {10_pc, 40_pc}, {{0, 20}, {20, 80}}},
    {"LessThanAHundredRoundsWithinItsPart", 99, {25_pc, 25_pc}, {{0, 24}, {24, 25}}},
    {"MoreThanAHundredIsScaledDown", 100, {100_pc, 100_pc}, {{0, 50}, {50, 50}}},
    {"SharesOfNothingGetNothing", 100, {0_pc, 10_px, 0_pc}, {{0, 0}, {0, 10}, {10, 0}}},
    {"NoRestLeavesSharesEmpty", 30, {20_px, 100_pc, 10_px}, {{0, 20}, {20, 0}, {20, 10}}},
    {"NegativeRestCutsTheLastItems",
     25,
     {20_px, 100_pc, 10_px, 10_px},
     {{0, 20}, {20, 0}, {20, 5}, {25, 0}}},
    {"NegativeExtentIsNone", -5, {20_px, 100_pc}, {{0, 0}, {0, 0}}},
    {"NegativeAmountsAreNone", 100, {{-7, false}, {-3, true}, 100_pc}, {{0, 0}, {0, 0}, {0, 100}}},
    {"GreatExtentsDoNotOverflow",
     2000000000,
     {50_pc, 50_pc},
     {{0, 1000000000}, {1000000000, 1000000000}}},
};

INSTANTIATE_TEST_SUITE_P(Table, DivideExtentTest, ::testing::ValuesIn(divideCases),
                         testing::PrintToStringParamName());

TEST(DivideExtent, SharesThatMakeAHundredLeaveNothingUncovered) {
  for (int extent = 0; extent < 300; ++extent) {
    const auto spans = DivideExtent(extent, {7_pc, 26_pc, 8_px, 33_pc, 34_pc});
    EXPECT_EQ(spans.back().offset + spans.back().length, extent);
    for (std::size_t i = 1; i < spans.size(); ++i) {
      EXPECT_EQ(spans[i].offset, spans[i - 1].offset + spans[i - 1].length);
    }
  }
}

TEST(RoomForShare, IsTheLeastRoomInWhichTheShareSuffices) {
  for (int percent = 1; percent <= 100; ++percent) {
    for (const int needed : {1, 2, 19, 24, 333}) {
      const int room = RoomForShare(needed, percent, 100);
      EXPECT_GE(room * percent / 100, needed);
      EXPECT_LT((room - 1) * percent / 100, needed);
    }
  }
}

TEST(RoomForShare, AsksForNothingWithoutNeedOrWithoutShare) {
  EXPECT_EQ(RoomForShare(0, 50, 100), 0);
  EXPECT_EQ(RoomForShare(20, 0, 100), 0);
}

TEST(WholeOf, IsAHundredOrTheGreaterSum) {
  EXPECT_EQ(WholeOf({}), 100);
  EXPECT_EQ(WholeOf({30_pc, 500_px}), 100);
  EXPECT_EQ(WholeOf({80_pc, 70_pc}), 150);
}

}  // namespace
}  // namespace qv
