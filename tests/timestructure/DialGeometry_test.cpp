#include "timestructure/DialGeometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <optional>
#include <string>

#include "tests/timestructure/Printing.h"

namespace qv {
namespace {

/// The left face of a dial of 200 by 100.
constexpr Rect face{14, 17, 79, 82};

struct HalvesCase {
  int width;
  int height;
  Rect left;
  Rect right;
};

TEST(DialHalves, StandFourteenPixelsApart) {
  const HalvesCase cases[] = {{200, 100, {0, 0, 93, 100}, {107, 0, 200, 100}},
                              {201, 100, {0, 0, 93, 100}, {107, 0, 201, 100}},
                              {14, 5, {0, 0, 0, 5}, {14, 0, 14, 5}},
                              {0, 0, {0, 0, -7, 0}, {7, 0, 0, 0}}};
  for (const auto& [width, height, left, right] : cases) {
    EXPECT_EQ(HalvesOf(width, height).left, left);
    EXPECT_EQ(HalvesOf(width, height).right, right);
  }
}

struct ViewportCase {
  const char* name;
  Rect half;
  Rect face;
};

TEST(CalcViewport, IsTheSquareInTheMiddleOfTheHalf) {
  const ViewportCase cases[] = {
      {"left of 200 by 100", {0, 0, 93, 100}, face},
      {"right of 200 by 100", {107, 0, 200, 100}, {121, 17, 186, 82}},
      {"wide, even rest", {0, 0, 130, 90}, {34, 14, 96, 76}},
      {"wide, odd rest", {0, 0, 131, 90}, {34, 14, 96, 76}},
      {"tie", {0, 0, 100, 100}, {14, 14, 86, 86}},
      {"high, odd rest", {0, 0, 90, 131}, {14, 34, 76, 96}},
      {"no width", {0, 0, 28, 100}, {14, 50, 14, 50}},
      {"no height", {0, 0, 100, 28}, {50, 14, 50, 14}},
  };
  for (const auto& [name, half, expected] : cases) {
    EXPECT_EQ(CalcViewport(half), expected) << name;
  }
}

TEST(CalcViewport, HasNoRoomInSmallHalves) {
  const Rect halves[] = {{0, 0, -7, 0}, {7, 0, 0, 0}, {0, 0, 27, 100}, {0, 0, 100, 27}};
  for (const Rect& half : halves) {
    EXPECT_TRUE(CalcViewport(half).IsEmpty());
  }
}

TEST(DiscOf, LeavesARingOfEightPixels) {
  EXPECT_EQ(DiscOf(face), (Rect{22, 25, 71, 74}));
  EXPECT_TRUE(DiscOf({0, 0, 16, 16}).IsEmpty());
  EXPECT_FALSE(DiscOf({0, 0, 17, 17}).IsEmpty());
}

TEST(HourMark, RunsFromTheCentreToTheRim) {
  const HourMark expected[] = {
      {{46, 49}, {46, 17}}, {{46, 49}, {79, 49}}, {{46, 49}, {46, 82}}, {{46, 49}, {14, 49}}};
  for (int quarter = 0; quarter < 4; ++quarter) {
    EXPECT_EQ(HourMarkOf(3 * quarter, face), expected[quarter]) << quarter;
  }
}

TEST(LabelPlace, HangsOffTheFaceAndIsCentredAtTheQuarters) {
  const Point rim{100, 100};
  const Point expected[] = {{93, 86},  {100, 86}, {100, 86}, {101, 93}, {100, 100}, {100, 100},
                            {93, 100}, {85, 100}, {85, 100}, {84, 93},  {85, 86},   {85, 86}};
  for (int i = 0; i < hoursOfFace; ++i) {
    EXPECT_EQ(LabelPlace(i, rim, {15, 14}), expected[i]) << i;
  }
}

TEST(LabelPlace, HalvesOfOddExtentsAreCutOff) {
  EXPECT_EQ(LabelPlace(0, {100, 100}, {7, 13}), (Point{97, 87}));
  EXPECT_EQ(LabelPlace(3, {100, 100}, {7, 13}), (Point{101, 94}));
}

/// A slot and what of it stands on each face; no minutes for nothing.
struct SectorCase {
  const char* name;
  STagSlot slot;
  std::optional<FaceMinutes> left;
  std::optional<FaceMinutes> right;
};

class Sectors : public testing::TestWithParam<SectorCase> {};

TEST_P(Sectors, StandOnTheFacesThatTheSlotReaches) {
  EXPECT_EQ(OnLeftFace(GetParam().slot), GetParam().left);
  EXPECT_EQ(OnRightFace(GetParam().slot), GetParam().right);
}

constexpr int least = std::numeric_limits<int>::min();
constexpr int most = std::numeric_limits<int>::max();
constexpr std::nullopt_t none = std::nullopt;

INSTANTIATE_TEST_SUITE_P(
    DialGeometry, Sectors,
    testing::Values(SectorCase{"Morning", {0, 720}, FaceMinutes{0, 720}, none},
                    SectorCase{"Afternoon", {720, 1440}, none, FaceMinutes{0, 720}},
                    SectorCase{"AcrossNoon", {690, 750}, FaceMinutes{690, 720}, FaceMinutes{0, 30}},
                    SectorCase{"WholeDay", {0, 1440}, FaceMinutes{0, 720}, FaceMinutes{0, 720}},
                    SectorCase{"OneMinute", {719, 720}, FaceMinutes{719, 720}, none},
                    SectorCase{"OneMinuteBehindNoon", {720, 721}, none, FaceMinutes{0, 1}},
                    SectorCase{"NoLength", {300, 300}, FaceMinutes{300, 300}, none},
                    SectorCase{"NoLengthAtMidnight", {0, 0}, FaceMinutes{0, 0}, none},
                    SectorCase{"NoLengthAtNoon", {720, 720}, none, none},
                    SectorCase{"NoLengthAtTheEnd", {1440, 1440}, none, FaceMinutes{720, 720}},
                    SectorCase{"EndBeforeStart", {400, 300}, none, none},
                    SectorCase{"EndBeforeStartAcrossNoon", {800, 300}, none, none},
                    SectorCase{"StartsTooEarly", {-90, 30}, FaceMinutes{0, 30}, none},
                    SectorCase{"EndsTooLate", {1400, 9000}, none, FaceMinutes{680, 720}},
                    SectorCase{"BeforeTheDay", {-90, -30}, none, none},
                    SectorCase{"UpToTheDay", {-90, 0}, none, none},
                    SectorCase{"BehindTheDay", {1440, 1500}, none, none},
                    SectorCase{"FarBehindTheDay", {5000, 6039}, none, none},
                    SectorCase{
                        "AllThereIs", {least, most}, FaceMinutes{0, 720}, FaceMinutes{0, 720}},
                    SectorCase{"AllThereIsTurnedOver", {most, least}, none, none},
                    SectorCase{"TheLeast", {least, least}, none, none},
                    SectorCase{"TheMost", {most, most}, none, none}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(CreatePolygon, StartsAtTheCentreAndHasAPointForEachMinute) {
  const auto points = CreatePolygon({0, 720}, face);
  ASSERT_EQ(points.size(), 722U);
  EXPECT_EQ(points[0], (Point{46, 49}));
  const Point quarters[] = {{46, 25}, {71, 49}, {46, 74}, {22, 49}, {46, 25}};
  for (int quarter = 0; quarter < 5; ++quarter) {
    EXPECT_EQ(points[static_cast<std::size_t>(1 + 180 * quarter)], quarters[quarter]) << quarter;
  }
}

TEST(CreatePolygon, APartHasTheSamePointsAsTheWhole) {
  const auto whole = CreatePolygon({0, 720}, face);
  const auto part = CreatePolygon({100, 250}, face);
  ASSERT_EQ(part.size(), 152U);
  EXPECT_EQ(part[0], whole[0]);
  for (std::size_t i = 1; i < part.size(); ++i) {
    EXPECT_EQ(part[i], whole[100 + i]);
  }
}

/// The face of a screen with two dots to the pixel has the points of one that is twice as large,
/// but for the breadth of margins and ring.
TEST(DialGeometry, OnADenseScreenItIsInDots) {
  constexpr Density doubled{2};
  EXPECT_EQ(HalvesOf(400, 200, doubled).left, (Rect{0, 0, 186, 200}));
  EXPECT_EQ(HalvesOf(400, 200, doubled).right, (Rect{214, 0, 400, 200}));
  const Rect dense = CalcViewport({0, 0, 186, 200}, doubled);
  EXPECT_EQ(dense, (Rect{28, 35, 158, 165}));
  EXPECT_EQ(DiscOf(dense, doubled), (Rect{44, 51, 142, 149}));
  const auto points = CreatePolygon({0, 180}, dense, doubled);
  EXPECT_EQ(points.front(), (Point{93, 100}));
  EXPECT_EQ(points.back(), (Point{142, 100}));
}

TEST(DialGeometry, AtABrokenDensityLengthsAreTheNearestDots) {
  constexpr Density half{1.5};
  EXPECT_EQ(HalvesOf(300, 150, half).left, (Rect{0, 0, 139, 150}));
  EXPECT_EQ(CalcViewport({0, 0, 139, 150}, half), (Rect{21, 26, 118, 123}));
  EXPECT_EQ(DiscOf({21, 26, 118, 123}, half), (Rect{33, 38, 106, 111}));
}

TEST(CreatePolygon, OfOneMinuteIsALine) { EXPECT_EQ(CreatePolygon({300, 300}, face).size(), 2U); }

/// The minute whose point on the disc's rim `point` is, found back by its angle.
int MinuteAt(Point point, const Rect& square) {
  const double middle = square.Width() * 0.5;
  // A point stands for all of its pixel.
  const double x = point.x + 0.5 - (square.left + middle);
  const double y = square.top + middle - (point.y + 0.5);
  const double turn = std::atan2(x, y) / (2 * std::numbers::pi);
  const int minute = static_cast<int>(std::lround(turn * minutesOfFace));
  return (minute + minutesOfFace) % minutesOfFace;
}

TEST(CreatePolygon, EveryMinuteIsFoundBackByItsAngle) {
  // So large that two minutes are some pixels apart.
  const Rect large{14, 14, 2014, 2014};
  const auto points = CreatePolygon({0, minutesOfFace}, large);
  for (int minute = 0; minute <= minutesOfFace; ++minute) {
    const Point point = points[static_cast<std::size_t>(minute + 1)];
    EXPECT_EQ(MinuteAt(point, large), minute % minutesOfFace) << minute;
  }
}

}  // namespace
}  // namespace qv
