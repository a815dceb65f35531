#include "calendar/Contrast.h"

#include <gtest/gtest.h>

#include <vector>

namespace qv {
namespace {

/// A colour as people write it, with red in front.
constexpr Colour Rgb(Colour digits) {
  return (digits >> 16 & 0xFF) | (digits & 0xFF00) | (digits & 0xFF) << 16;
}

TEST(Contrast, IsThatOfTheWebsGuidelines) {
  EXPECT_NEAR(ContrastOf(Rgb(0x000000), Rgb(0xFFFFFF)), 21, 0.001);
  EXPECT_NEAR(ContrastOf(Rgb(0x336699), Rgb(0x336699)), 1, 0.001);
  // The two greys between which a text on white begins to be legible.
  EXPECT_NEAR(ContrastOf(Rgb(0xFFFFFF), Rgb(0x777777)), 4.478, 0.001);
  EXPECT_NEAR(ContrastOf(Rgb(0x767676), Rgb(0xFFFFFF)), 4.542, 0.001);
  EXPECT_NEAR(ContrastOf(Rgb(0xFF0000), Rgb(0x000000)), 5.252, 0.001);
}

TEST(LegibleInk, HasAContrastOf4Point5OnEveryColour) {
  for (Colour red = 0; red <= 0xFF; red += 5) {
    for (Colour green = 0; green <= 0xFF; green += 5) {
      for (Colour blue = 0; blue <= 0xFF; blue += 5) {
        const Colour ground = red | green << 8 | blue << 16;
        ASSERT_GE(ContrastOf(LegibleInkOn(ground), ground), 4.5) << ground;
      }
    }
  }
}

TEST(LegibleInk, IsBlackOrWhite) {
  EXPECT_EQ(LegibleInkOn(Rgb(0xFFFF00)), 0x000000U);
  EXPECT_EQ(LegibleInkOn(Rgb(0x0000FF)), 0xFFFFFFU);
  // Grey that is dark by the weights of television, yet on which white can't be read.
  EXPECT_EQ(LegibleInkOn(Rgb(0x7F7F7F)), 0x000000U);
}

struct Pair {
  Colour first;
  Colour second;
  bool areAlike;
};

TEST(LookAlike, AsksAllKindsOfSight) {
  for (const auto& [first, second, areAlike] :
       {Pair{0xFFFFFF, 0xFFFFFF, true}, Pair{0xFFFFFF, 0x000000, false},
        Pair{0x808080, 0x888888, true},   // to everybody
        Pair{0x003333, 0x990033, true},   // without cones for long waves alone
        Pair{0x006633, 0x990033, true},   // without those for middle waves alone
        Pair{0x003300, 0x003333, true},   // without those for short waves alone
        Pair{0xFF0000, 0x00FF00, false},  // the green is much lighter to everybody
        Pair{0x0000FF, 0xFFFF00, false}}) {
    EXPECT_EQ(LookAlike(Rgb(first), Rgb(second)), areAlike) << std::hex << first << " " << second;
    EXPECT_EQ(LookAlike(Rgb(second), Rgb(first)), areAlike) << std::hex << second << " " << first;
  }
}

TEST(LookAlike, LetsThePaletteThatIsMadeForAllKindsOfSightPass) {
  // The eight colours of Okabe and Ito.
  const std::vector<Colour> palette{0x000000, 0xE69F00, 0x56B4E9, 0x009E73,
                                    0xF0E442, 0x0072B2, 0xD55E00, 0xCC79A7};
  for (std::size_t i = 0; i < palette.size(); ++i) {
    for (std::size_t k = i + 1; k < palette.size(); ++k) {
      EXPECT_FALSE(LookAlike(Rgb(palette[i]), Rgb(palette[k])))
          << std::hex << palette[i] << " " << palette[k];
    }
  }
}

}  // namespace
}  // namespace qv
