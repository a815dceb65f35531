#include "timestructure/DialHit.h"

#include <gtest/gtest.h>

#include <cmath>

#include "timestructure/DialGeometry.h"

namespace qv {
namespace {

TEST(DialHit, EachMinuteIsFoundInTheMiddleOfItsSector) {
  constexpr int width = 1700;
  constexpr int height = 860;
  const DialHalves halves = HalvesOf(width, height);
  for (int minute = 0; minute < minutesOfDay; ++minute) {
    const Rect face = CalcViewport(minute < minutesOfFace ? halves.left : halves.right);
    const Rect disc = DiscOf(face);
    const double angle = (minute + 0.5) / minutesOfFace * 6.283185307179586;
    const double reach = disc.Width() * 0.5 - 2;
    const Point place{
        static_cast<int>(std::floor(disc.left + disc.Width() * 0.5 + std::sin(angle) * reach)),
        static_cast<int>(std::floor(disc.top + disc.Width() * 0.5 - std::cos(angle) * reach))};
    EXPECT_EQ(MinuteAt(place, width, height), minute);
  }
}

TEST(DialHit, OutsideTheDiscsThereIsNone) {
  constexpr int width = 280;
  constexpr int height = 128;
  const Rect left = DiscOf(CalcViewport(HalvesOf(width, height).left));
  for (const Point place :
       {Point{0, 0}, Point{width / 2, height / 2}, Point{left.left - 2, height / 2},
        Point{left.left + 2, left.top + 2}, Point{-50, -50}, Point{5000, 64}}) {
    EXPECT_EQ(MinuteAt(place, width, height), std::nullopt) << place.x << " " << place.y;
  }
  EXPECT_NE(MinuteAt({left.left + 2, height / 2}, width, height), std::nullopt);
}

TEST(DialHit, ADialWithoutRoomHasNone) {
  for (const int size : {0, 1, 20, 44}) {
    EXPECT_EQ(MinuteAt({size / 4, size / 2}, size, size), std::nullopt) << size;
  }
}

TEST(DialHit, TheLaterOfTwoSlotsIsSeen) {
  const std::vector<STagSlot> slots = {{0, 600}, {540, 700}, {700, 700}, {900, 800}};
  EXPECT_EQ(SlotAt(0, slots), 0U);
  EXPECT_EQ(SlotAt(539, slots), 0U);
  EXPECT_EQ(SlotAt(540, slots), 1U);
  EXPECT_EQ(SlotAt(699, slots), 1U);
  EXPECT_EQ(SlotAt(700, slots), std::nullopt);
  EXPECT_EQ(SlotAt(850, slots), std::nullopt);
  EXPECT_EQ(SlotAt(0, {}), std::nullopt);
}

}  // namespace
}  // namespace qv
