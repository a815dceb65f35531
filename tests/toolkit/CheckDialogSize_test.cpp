#include "toolkit/CheckDialogSize.h"

#include <gtest/gtest.h>

namespace {

constexpr RECT enough = {100, 200, 400, 600};        // 300 by 400
constexpr RECT exact = {100, 200, 300, 500};         // 200 by 300
constexpr RECT narrow = {100, 200, 250, 600};        // 150 by 400
constexpr RECT low = {100, 200, 400, 300};           // 300 by 100
constexpr RECT narrowAndLow = {100, 200, 250, 300};  // 150 by 100

struct SideCase {
  unsigned side;
  bool left;  // the left edge gives way
  bool top;   // the upper edge gives way
};

class CheckDialogSizeTest : public ::testing::TestWithParam<SideCase> {
 protected:
  static RECT Checked(RECT rect, bool changed) {
    EXPECT_EQ(CheckDialogSize(GetParam().side, &rect, 200, 300), changed);
    return rect;
  }

  static RECT Widened(RECT rect) {
    (GetParam().left ? rect.left : rect.right) = GetParam().left ? 250 - 200 : 100 + 200;
    return rect;
  }

  static RECT Heightened(RECT rect) {
    (GetParam().top ? rect.top : rect.bottom) = GetParam().top ? 300 - 300 : 200 + 300;
    return rect;
  }
};

TEST_P(CheckDialogSizeTest, LargeEnoughStaysAsItIs) { EXPECT_EQ(Checked(enough, false), enough); }

TEST_P(CheckDialogSizeTest, ExactlyTheMinimumStaysAsItIs) {
  EXPECT_EQ(Checked(exact, false), exact);
}

TEST_P(CheckDialogSizeTest, TooNarrowIsWidened) {
  EXPECT_EQ(Checked(narrow, true), Widened(narrow));
}

TEST_P(CheckDialogSizeTest, TooLowIsHeightened) { EXPECT_EQ(Checked(low, true), Heightened(low)); }

TEST_P(CheckDialogSizeTest, TooNarrowAndTooLowIsMadeBoth) {
  EXPECT_EQ(Checked(narrowAndLow, true), Heightened(Widened(narrowAndLow)));
}

INSTANTIATE_TEST_SUITE_P(
    Sides, CheckDialogSizeTest,
    ::testing::Values(SideCase{WMSZ_LEFT, true, false}, SideCase{WMSZ_RIGHT, false, false},
                      SideCase{WMSZ_TOP, false, true}, SideCase{WMSZ_TOPLEFT, true, true},
                      SideCase{WMSZ_TOPRIGHT, false, true}, SideCase{WMSZ_BOTTOM, false, false},
                      SideCase{WMSZ_BOTTOMLEFT, true, false},
                      SideCase{WMSZ_BOTTOMRIGHT, false, false}, SideCase{0, false, false}));

TEST(CheckDialogSize, SidesHaveTheirNumbers) {
  const unsigned sides[] = {WMSZ_LEFT,     WMSZ_RIGHT,  WMSZ_TOP,        WMSZ_TOPLEFT,
                            WMSZ_TOPRIGHT, WMSZ_BOTTOM, WMSZ_BOTTOMLEFT, WMSZ_BOTTOMRIGHT};
  for (unsigned i = 0; i < 8; ++i) {
    EXPECT_EQ(sides[i], i + 1);
  }
}

TEST(CheckDialogSize, NoRectangleIsNoChange) {
  EXPECT_FALSE(CheckDialogSize(WMSZ_LEFT, nullptr, 200, 300));
}

}  // namespace
