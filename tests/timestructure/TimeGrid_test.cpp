#include "timestructure/TimeGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "tests/support/Golden.h"
#include "tests/support/RecordingCanvas.h"

namespace qv {
namespace {

/// A box whose grid that takes the mouse is 480 pixels wide and 80 high.
constexpr int width = 480 + 8 + 9;
constexpr int height = 80 + 12 + 19 + 9;
constexpr int left = 8;
constexpr int top = 12 + 19;

std::optional<int> MinuteAt(int x, int y) {
  return TimeGrid(width, height).MinuteAt({left + x, top + y});
}

TEST(TimeGrid, FindsTheQuarterUnderAPoint) {
  EXPECT_EQ(MinuteAt(100, 25), 5 * 60 + 15);
  EXPECT_EQ(MinuteAt(0, 0), 0);
  EXPECT_EQ(MinuteAt(0, 79), 45);
  EXPECT_EQ(MinuteAt(479, 79), 1425);
}

TEST(TimeGrid, TheRightAndTheBottomEdgeBelongToTheLastCells) {
  EXPECT_EQ(MinuteAt(480, 80), 1425);
  EXPECT_EQ(MinuteAt(480, 0), 1380);
  EXPECT_EQ(MinuteAt(0, 80), 45);
}

TEST(TimeGrid, OutsideThereIsNoMinute) {
  for (const Point place : {Point{-1, 0}, Point{0, -1}, Point{481, 0}, Point{0, 81}}) {
    EXPECT_FALSE(MinuteAt(place.x, place.y)) << place.x << " " << place.y;
  }
  EXPECT_FALSE(TimeGrid(10, 10).MinuteAt({8, 31})) << "no room for a grid";
  EXPECT_FALSE(TimeGrid(0, 0).MinuteAt({0, 0}));
}

TEST(TimeGrid, EachCellIsFoundFromEachOfItsPoints) {
  for (int x = 0; x < 480; ++x) {
    for (int y = 0; y < 80; ++y) {
      ASSERT_EQ(MinuteAt(x, y), (y / 20 + 4 * (x / 20)) * 15) << x << " " << y;
    }
  }
}

TEST(TimeGrid, PaintsTheBoxBelowItsTitle) {
  EXPECT_EQ(TimeGrid(300, 200).PaintedArea(), (Rect{2, 19, 297, 197}));
}

/// The recorded lines that start with `verb`.
std::vector<std::string> Recorded(const TimeGrid::Picture& picture, const std::string& verb) {
  RecordingCanvas canvas;
  TimeGrid(width, height).Paint(canvas, picture);
  std::vector<std::string> lines;
  std::copy_if(canvas.lines.begin(), canvas.lines.end(), std::back_inserter(lines),
               [&](const std::string& line) { return line.starts_with(verb); });
  return lines;
}

TEST(TimeGrid, DrawsGroundLabelsAndLines) {
  const TimeGrid::Picture picture{.dayColour = 0x123456, .selection = std::nullopt};
  EXPECT_EQ(Recorded(picture, "text").size(), 5U);
  EXPECT_EQ(Recorded(picture, "rectangle").size(), 2U);
  EXPECT_EQ(Recorded(picture, "line").size(), 25U + 5U + 2U);
}

TEST(TimeGrid, EachSelectedMinuteIsARectangle) {
  const TimeGrid::Picture picture{
      .dayColour = 0xFFFFFF, .selection = MinuteRange{59, 61}, .selectionColour = 0x0000FF};
  EXPECT_EQ(Recorded(picture, "rectangle").size(), 2U + 2U);
  EXPECT_EQ(Recorded({.selection = MinuteRange{0, 1440}}, "rectangle").size(), 2U + 1440U);
}

/// The colours, each once, of the labels or lines of a grid on this ground.
std::set<std::string> Inks(Colour dayColour, Colour ground, const std::string& verb) {
  std::set<std::string> inks;
  const TimeGrid::Picture picture{
      .dayColour = dayColour, .selection = {}, .ground = ground, .ink = InkOn(ground)};
  for (const std::string& line : Recorded(picture, verb)) {
    inks.insert(line.substr(line.size() - 6));
  }
  return inks;
}

constexpr Colour lightGround = 0xF0F0F0;
constexpr Colour darkGround = 0x302D2B;

TEST(TimeGrid, LinesOnADarkGroundAreLegibleOnTheDay) {
  const std::set<std::string> blackAndEdge = {"000000", "808080"};
  const std::set<std::string> whiteAndEdge = {"FFFFFF", "808080"};
  EXPECT_EQ(Inks(0xFFFFFF, darkGround, "line"), blackAndEdge);
  EXPECT_EQ(Inks(0x80CCFF, darkGround, "line"), blackAndEdge);
  EXPECT_EQ(Inks(0x000000, darkGround, "line"), whiteAndEdge);
  EXPECT_EQ(Inks(0x800000, darkGround, "line"), whiteAndEdge);
}

TEST(TimeGrid, LinesOnALightGroundAreBlackOnAnyDay) {
  const std::set<std::string> blackAndEdge = {"000000", "808080"};
  for (const Colour day : {0xFFFFFFU, 0x80CCFFU, 0x000000U, 0x800000U}) {
    EXPECT_EQ(Inks(day, lightGround, "line"), blackAndEdge) << day;
  }
}

TEST(TimeGrid, LabelsAreLegibleOnTheGroundWhateverTheDay) {
  for (const Colour day : {0xFFFFFFU, 0x000000U}) {
    EXPECT_EQ(Inks(day, lightGround, "text"), std::set<std::string>{"000000"}) << day;
    EXPECT_EQ(Inks(day, darkGround, "text"), std::set<std::string>{"FFFFFF"}) << day;
  }
}

TEST(TimeGridGolden, DrawsThePrimitivesOfTheFile) {
  RecordingCanvas canvas;
  TimeGrid(300, 200).Paint(canvas, {.dayColour = 0x80CCFF,
                                    .selection = MinuteRange{12 * 60 + 50, 13 * 60 + 2},
                                    .selectionColour = 0x0000FF});
  ExpectGolden(QV_PROJECT_DIR "/tests/timestructure/golden/TimeGrid.txt", canvas.lines);
}

TEST(TimeGrid, OnADenseScreenAllLengthsAreInItsDots) {
  RecordingCanvas dots;
  TimeGrid(300, 200).Paint(dots, {.dayColour = 0x80CCFF}, Density{2});
  const std::vector<std::string> expected = {"rectangle 0,0 590,356 pen F0F0F0 brush F0F0F0",
                                             "text 20,0 \"0\" height 24 colour 000000"};
  EXPECT_EQ(std::vector(dots.lines.begin(), dots.lines.begin() + 2), expected);
  EXPECT_EQ(dots.lines[6], "rectangle 12,24 578,344 pen 80CCFF brush 80CCFF");
  EXPECT_EQ(dots.lines[7], "line 12,24 12,344 pen 000000");
  EXPECT_EQ(dots.lines[8], "line 35,24 35,344 pen 000000");
  EXPECT_EQ(dots.lines.back(), "line 14,346 580,346 pen 808080");
}

TEST(TimeGrid, ABoxOfAnySizeIsPainted) {
  for (const int side : {0, 1, 20, 33, 34, 100, 5000}) {
    RecordingCanvas canvas;
    TimeGrid(side, side).Paint(canvas, {.selection = MinuteRange{0, 1440}});
    EXPECT_FALSE(canvas.lines.empty()) << side;
  }
}

}  // namespace
}  // namespace qv
