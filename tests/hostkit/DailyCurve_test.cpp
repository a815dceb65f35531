#include "hostkit/DailyCurve.h"

#include <gtest/gtest.h>

#include <limits>

namespace qv {
namespace {

TEST(DailyCurve, WithoutPointsHasNoValue) {
  EXPECT_EQ(DailyCurve().At(0), std::nullopt);
  EXPECT_EQ(DailyCurve(std::vector<DailyCurve::Point>()).At(720), std::nullopt);
}

TEST(DailyCurve, OfOnePointIsConstant) {
  const DailyCurve curve({{300, 7.5}});
  for (const int minute : {0, 299, 300, 301, 1439}) {
    EXPECT_EQ(curve.At(minute), 7.5) << minute;
  }
}

TEST(DailyCurve, IsStraightBetweenPointsAndThroughMidnight) {
  const DailyCurve curve({{1380, 10}, {60, 30}, {720, 0}});
  EXPECT_DOUBLE_EQ(curve.At(60).value(), 30);
  EXPECT_DOUBLE_EQ(curve.At(390).value(), 15);
  EXPECT_DOUBLE_EQ(curve.At(720).value(), 0);
  EXPECT_DOUBLE_EQ(curve.At(1380).value(), 10);
  EXPECT_DOUBLE_EQ(curve.At(0).value(), 20);
  EXPECT_DOUBLE_EQ(curve.At(1410).value(), 15);
}

TEST(DailyCurve, TakesAnyMinuteAsOneOfTheDay) {
  const DailyCurve curve({{0, 0}, {720, 720}});
  EXPECT_EQ(curve.At(1440 + 100), curve.At(100));
  EXPECT_EQ(curve.At(-1440 + 100), curve.At(100));
  EXPECT_EQ(curve.At(-1), curve.At(1439));
  EXPECT_TRUE(curve.At(std::numeric_limits<int>::min()));
}

TEST(DailyCurve, OfTwoPointsAtOneMinuteTakesTheFirst) {
  EXPECT_EQ(DailyCurve({{5, 1}, {5, 2}}).At(5), 1);
}

TEST(DailyCurve, LeavesOutWhatIsNoPointOfADay) {
  const double infinite = std::numeric_limits<double>::infinity();
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(DailyCurve({{-1, 1}, {1440, 2}, {3, infinite}, {4, none}}), DailyCurve());
}

}  // namespace
}  // namespace qv
