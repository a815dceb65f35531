#include "toolkit/LayoutArithmetic.h"

#include <gtest/gtest.h>

#include <ostream>

#include "tests/support/NamedCase.h"

namespace qv {

void PrintTo(const LayoutSpan& span, std::ostream* out) {
  *out << span.offset << "+" << span.length;
}

namespace {

LayoutShare Fixed(int pixels) { return {pixels, false}; }
LayoutShare Percent(int share) { return {share, true}; }

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
    {"FixedItemsStandSideBySide", 100, {Fixed(10), Fixed(20)}, {{0, 10}, {10, 20}}},
    {"OneShareTakesWhatIsLeft",
     100,
     {Fixed(10), Percent(100), Fixed(20)},
     {{0, 10}, {10, 70}, {80, 20}}},
    {"SharesDivideWhatFixedItemsLeave",
     110,
     {Percent(50), Fixed(10), Percent(50)},
     {{0, 50}, {50, 10}, {60, 50}}},
    {"LastShareTakesTheRounding",
     101,
     {Percent(33), Percent(34), Percent(33)},
     {{0, 33}, {33, 34}, {67, 34}}},
    {"RoundingPassesOverALastShareOfNothing",
     101,
     {Percent(50), Percent(50), Percent(0)},
     {{0, 50}, {50, 51}, {101, 0}}},
    {"FixedItemBehindTheLastShareStaysAtTheEnd",
     106,
     {Percent(50), Percent(50), Fixed(5)},
     {{0, 50}, {50, 51}, {101, 5}}},
    {"LessThanAHundredLeavesRoom", 200, {Percent(10), Percent(40)}, {{0, 20}, {20, 80}}},
    {"LessThanAHundredRoundsWithinItsPart", 99, {Percent(25), Percent(25)}, {{0, 24}, {24, 25}}},
    {"MoreThanAHundredIsScaledDown", 100, {Percent(100), Percent(100)}, {{0, 50}, {50, 50}}},
    {"SharesOfNothingGetNothing",
     100,
     {Percent(0), Fixed(10), Percent(0)},
     {{0, 0}, {0, 10}, {10, 0}}},
    {"NoRestLeavesSharesEmpty",
     30,
     {Fixed(20), Percent(100), Fixed(10)},
     {{0, 20}, {20, 0}, {20, 10}}},
    {"NegativeRestCutsTheLastItems",
     25,
     {Fixed(20), Percent(100), Fixed(10), Fixed(10)},
     {{0, 20}, {20, 0}, {20, 5}, {25, 0}}},
    {"NegativeExtentIsNone", -5, {Fixed(20), Percent(100)}, {{0, 0}, {0, 0}}},
    {"NegativeAmountsAreNone",
     100,
     {Fixed(-7), Percent(-3), Percent(100)},
     {{0, 0}, {0, 0}, {0, 100}}},
    {"GreatExtentsDoNotOverflow",
     2000000000,
     {Percent(50), Percent(50)},
     {{0, 1000000000}, {1000000000, 1000000000}}},
};

INSTANTIATE_TEST_SUITE_P(Table, DivideExtentTest, ::testing::ValuesIn(divideCases),
                         testing::PrintToStringParamName());

TEST(DivideExtent, SharesThatMakeAHundredLeaveNothingUncovered) {
  for (int extent = 0; extent < 300; ++extent) {
    const auto spans =
        DivideExtent(extent, {Percent(7), Percent(26), Fixed(8), Percent(33), Percent(34)});
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
  EXPECT_EQ(WholeOf({Percent(30), Fixed(500)}), 100);
  EXPECT_EQ(WholeOf({Percent(80), Percent(70)}), 150);
}

}  // namespace
}  // namespace qv
