#include "discriminator/ValueForms.h"

#include <gtest/gtest.h>

namespace qv {
namespace {

TEST(ValueForms, AColourStandsAsBlueGreenRed) {
  EXPECT_EQ(ColourText(0x0000FF), L"0000FF");  // red
  EXPECT_EQ(ColourText(0xFF0000), L"FF0000");  // blue
  EXPECT_EQ(ColourText(0), L"000000");
}

TEST(ValueForms, AColourIsReadInEitherCase) {
  EXPECT_EQ(ColourOfText(L"ff00aB"), 0xFF00ABU);
  EXPECT_EQ(ColourOfText(L""), 0U);
  EXPECT_EQ(ColourOfText(L"no"), 0U);
  EXPECT_EQ(ColourOfText(L"FFG"), 0xFFU);
}

TEST(ValueForms, EveryMinuteOfADayComesBack) {
  for (int minute = 0; minute <= 1440; ++minute) {
    const TimeOfDay time = {minute / 60, minute % 60};
    EXPECT_EQ(TimeOf(TimeText(time)), time);
    EXPECT_EQ(time.Minutes(), minute);
  }
}

TEST(ValueForms, ATimeIsCutFromBothEnds) {
  EXPECT_EQ(TimeText({7, 5}), L"07:05");
  EXPECT_EQ(TimeOf(L"24:00"), (TimeOfDay{24, 0}));
  EXPECT_EQ(TimeOf(L"8:30"), (TimeOfDay{8, 30}));
  EXPECT_EQ(TimeOf(L"7"), (TimeOfDay{7, 7}));
  EXPECT_EQ(TimeOf(L""), (TimeOfDay{0, 0}));
  EXPECT_EQ(TimeOf(L"ab:cd"), (TimeOfDay{0, 0}));
}

TEST(ValueForms, OnlyTIsSet) {
  EXPECT_TRUE(IsFlagSet(L"T"));
  EXPECT_FALSE(IsFlagSet(L"t"));
  EXPECT_FALSE(IsFlagSet(L""));
  EXPECT_TRUE(IsFlagSet(FlagText(true)));
  EXPECT_FALSE(IsFlagSet(FlagText(false)));
}

}  // namespace
}  // namespace qv
