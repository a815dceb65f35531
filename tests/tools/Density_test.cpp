#include "tools/Density.h"

#include <gtest/gtest.h>

namespace qv {
namespace {

TEST(Density, APixelIsADotUnlessToldOtherwise) {
  EXPECT_EQ(Density().Dots(14), 14);
  EXPECT_EQ(Density().LineBreadth(), 1);
}

TEST(Density, GivesTheNearestDots) {
  EXPECT_EQ(Density{1.5}.Dots(14), 21);
  EXPECT_EQ(Density{1.25}.Dots(14), 18);
  EXPECT_EQ(Density{1.25}.Dots(3), 4);
  EXPECT_EQ(Density{2}.Dots(-3), -6);
  EXPECT_EQ(Density{0.1}.Dots(1), 0);
}

TEST(Density, LinesAreOfWholeDots) {
  const std::pair<double, int> breadths[] = {{0.4, 1}, {1.25, 1}, {1.5, 1}, {1.75, 2},
                                             {2, 2},   {2.5, 2},  {3, 3}};
  for (const auto& [density, breadth] : breadths) {
    EXPECT_EQ(Density{density}.LineBreadth(), breadth) << density;
  }
}

}  // namespace
}  // namespace qv
