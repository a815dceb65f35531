#include "tools/Canvas.h"

#include <gtest/gtest.h>

namespace qv {
namespace {

TEST(Rect, IsEmptyWithoutPixels) {
  for (const Rect& area :
       {Rect{5, 5, 5, 9}, Rect{5, 5, 9, 5}, Rect{9, 5, 5, 9}, Rect{5, 9, 9, 5}}) {
    EXPECT_TRUE(area.IsEmpty());
  }
  EXPECT_FALSE((Rect{-1, -1, 0, 0}).IsEmpty());
}

TEST(InkOn, IsBlackOnLightGroundsAndWhiteOnDarkOnes) {
  for (const Colour light : {0xFFFFFFU, 0xF0F0F0U, 0x808080U, 0x00FFFFU, 0x00FF00U, 0xFFFFFFFFU}) {
    EXPECT_EQ(InkOn(light), 0x000000U) << light;
  }
  for (const Colour dark : {0x000000U, 0x302D2BU, 0x7F7F7FU, 0x0000FFU, 0xFF0000U, 0xFF000000U}) {
    EXPECT_EQ(InkOn(dark), 0xFFFFFFU) << dark;
  }
}

}  // namespace
}  // namespace qv
