#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

#include "tests/support/RecordingCanvas.h"
#include "tests/timestructure/Printing.h"
#include "timestructure/DayDial.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

using Lines = std::vector<std::string>;

struct Record {
  Lines lines;
  std::vector<std::vector<Point>> polygons;
};

/// What the dial draws at this size.
Record Recorded(const DayDial& dial, int width = 200, int height = 100) {
  RecordingCanvas canvas;
  dial.Paint(canvas, width, height, {0xF0F0F0, 0x000000});
  return {canvas.lines, canvas.polygons};
}

Lines StartingWith(const Lines& lines, const std::string& start) {
  Lines found;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(found),
               [&](const std::string& line) { return line.starts_with(start); });
  return found;
}

/// A day of slots with these times, as XML text.
std::string DayText(const std::vector<std::pair<std::string, std::string>>& times) {
  std::string text = "<day>";
  for (const auto& [from, to] : times) {
    text += "<slot><from>" + from + "</from><to>" + to + "</to></slot>";
  }
  return text + "</day>";
}

DayDial DialOf(const std::vector<std::pair<std::string, std::string>>& times) {
  XmlDocument document;
  EXPECT_TRUE(document.Parse(DayText(times).c_str()));
  DayDial dial;
  dial.Setup(document.Root(), nullptr);
  return dial;
}

TEST(DayDialPaint, WithoutSlotsShowsTwoBareFaces) {
  const auto lines = Recorded(DayDial()).lines;
  ASSERT_EQ(lines.size(), 1U + 2 * (1 + 12 * 2 + 1));
  EXPECT_EQ(lines[0], "fill 0,0 200,100 brush F0F0F0");
  EXPECT_EQ(lines[1], "rectangle 14,17 79,82 pen F0F0F0 brush F0F0F0");
  EXPECT_EQ(lines[2], "line 46,49 46,17 pen 000000");
  EXPECT_EQ(lines[3], "text 43,3 \"0\" height 14 colour 000000");
  EXPECT_EQ(lines[26], "ellipse 22,25 71,74 pen 00FF00 brush 00FF00");
  EXPECT_EQ(lines[27], "rectangle 121,17 186,82 pen F0F0F0 brush F0F0F0");
}

TEST(DayDialPaint, LabelsEachHourOfTheDayOnce) {
  const auto texts = StartingWith(Recorded(DayDial()).lines, "text ");
  ASSERT_EQ(texts.size(), 24U);
  for (std::size_t hour = 0; hour < 24; ++hour) {
    EXPECT_NE(texts[hour].find("\"" + std::to_string(hour) + "\""), std::string::npos) << hour;
  }
}

TEST(DayDialPaint, OnlyBitZeroOfTheOptionsFillsTheRings) {
  DayDial dial;
  dial.SetColor(0x123456);
  for (const int options : {0, 2, 254}) {
    dial.Setup(static_cast<std::uint8_t>(options));
    EXPECT_EQ(StartingWith(Recorded(dial).lines, "ellipse ").size(), 2U) << options;
  }
  for (const int options : {1, 3, 255}) {
    dial.Setup(static_cast<std::uint8_t>(options));
    const auto lines = Recorded(dial).lines;
    EXPECT_EQ(lines[2], "ellipse 14,17 79,82 pen 123456 brush 123456");
    EXPECT_EQ(StartingWith(lines, "ellipse ").size(), 4U) << options;
  }
}

TEST(DayDialPaint, DiscsHaveTheirColour) {
  DayDial dial;
  dial.SetBkColor(0xABCDEF);
  EXPECT_EQ(Recorded(dial).lines[26], "ellipse 22,25 71,74 pen ABCDEF brush ABCDEF");
}

TEST(DayDialPaint, MarksAndLabelsAreInTheInkOfTheGround) {
  RecordingCanvas canvas;
  DayDial().Paint(canvas, 200, 100, {0x302D2B, 0xFFFFFF});
  EXPECT_EQ(canvas.lines[0], "fill 0,0 200,100 brush 302D2B");
  EXPECT_EQ(canvas.lines[1], "rectangle 14,17 79,82 pen 302D2B brush 302D2B");
  EXPECT_EQ(canvas.lines[2], "line 46,49 46,17 pen FFFFFF");
  EXPECT_EQ(canvas.lines[3], "text 43,3 \"0\" height 14 colour FFFFFF");
}

/// The first mark of a dial with a ring of this colour.
std::string MarkOnRing(Colour ring, Colour ground) {
  DayDial dial;
  dial.SetColor(ring);
  dial.Setup(1);
  RecordingCanvas canvas;
  dial.Paint(canvas, 200, 100, {ground, InkOn(ground)});
  return canvas.lines.at(3);
}

TEST(DayDialPaint, MarksInDarkSurroundingsAreLegibleOnTheirRing) {
  EXPECT_EQ(MarkOnRing(0xFFFFFF, 0x302D2B), "line 46,49 46,17 pen 000000");
  EXPECT_EQ(MarkOnRing(0x800000, 0x302D2B), "line 46,49 46,17 pen FFFFFF");
}

TEST(DayDialPaint, MarksInLightSurroundingsAreBlackOnAnyRing) {
  EXPECT_EQ(MarkOnRing(0xFFFFFF, 0xF0F0F0), "line 46,49 46,17 pen 000000");
  EXPECT_EQ(MarkOnRing(0x800000, 0xF0F0F0), "line 46,49 46,17 pen 000000");
}

TEST(DayDialPaint, ASlotOfNoLengthIsALineFromTheCentreToTheRim) {
  const auto canvas = Recorded(DialOf({{"05:00", "05:00"}}));
  ASSERT_EQ(canvas.polygons.size(), 1U);
  EXPECT_EQ(canvas.polygons[0].size(), 2U);
  EXPECT_EQ(canvas.polygons[0][0], (Point{46, 49}));
}

TEST(DayDialPaint, ASlotAcrossNoonIsASectorOnEachFace) {
  const auto canvas = Recorded(DialOf({{"11:30", "12:30"}}));
  ASSERT_EQ(canvas.polygons.size(), 2U);
  EXPECT_EQ(canvas.polygons[0].size(), 32U);
  EXPECT_EQ(canvas.polygons[1].size(), 32U);
  EXPECT_EQ(canvas.polygons[0].back(), (Point{46, 25}));
  EXPECT_EQ(canvas.polygons[1][1], (Point{153, 25}));
}

TEST(DayDialPaint, ALaterSlotIsOnTop) {
  const std::uint8_t map[] = {0, 0, 1, 0, 1};
  DayDial dial;
  dial.Setup(map, 5);
  const auto polygons = Recorded(dial).polygons;
  ASSERT_EQ(polygons.size(), 2U);
  EXPECT_EQ(polygons[0].size(), 4U);
  EXPECT_EQ(polygons[1].size(), 3U);
}

TEST(DayDialPaint, SlotsAreOnTheirOwnDiscBeforeTheNextFace) {
  const auto lines = Recorded(DialOf({{"00:00", "24:00"}})).lines;
  EXPECT_TRUE(lines[26].starts_with("ellipse "));
  EXPECT_TRUE(lines[27].starts_with("polygon pen 0000FF brush 0000FF points 46,49 46,25 "));
  EXPECT_TRUE(lines[28].starts_with("rectangle "));
  EXPECT_TRUE(lines.back().starts_with("polygon pen 0000FF brush 0000FF points 153,49 153,25 "));
}

TEST(DayDialPaint, AnEndBeforeTheStartDrawsNothing) {
  EXPECT_TRUE(Recorded(DialOf({{"14:00", "08:00"}, {"05:00", "04:00"}})).polygons.empty());
}

TEST(DayDialPaint, WithoutRoomForFacesOnlyTheGroundIsDrawn) {
  const std::pair<int, int> sizes[] = {{0, 0}, {1, 1}, {70, 100}, {200, 28}, {30, 5000}};
  for (const auto& [width, height] : sizes) {
    const auto lines = Recorded(DialOf({{"00:00", "24:00"}}), width, height).lines;
    EXPECT_EQ(lines.size(), 1U) << width << " by " << height;
  }
}

TEST(DayDialPaint, AFaceThatIsAllRingHasNoSlots) {
  EXPECT_TRUE(Recorded(DialOf({{"00:00", "24:00"}}), 400, 44).polygons.empty());
  EXPECT_EQ(Recorded(DialOf({{"00:00", "24:00"}}), 400, 45).polygons.size(), 2U);
}

/// Bytes that make slots of all lengths, many of them behind the day.
std::vector<std::uint8_t> RandomMap(std::mt19937& random) {
  std::vector<std::uint8_t> map(random() % 3000);
  const auto rarity = 1 + random() % 200;
  for (auto& byte : map) {
    byte = random() % rarity == 0 ? static_cast<std::uint8_t>(random() % 3) : 0;
  }
  return map;
}

/// A time as a hand might have mistyped it.
std::string RandomTime(std::mt19937& random) {
  static const std::string letters = "0123456789:-+ x";
  std::string text;
  for (auto length = random() % 7; length > 0; --length) {
    text += letters[random() % letters.size()];
  }
  return text;
}

bool Holds(const Rect& area, Point point) {
  return point.x >= area.left && point.x <= area.right && point.y >= area.top &&
         point.y <= area.bottom;
}

/// Expects each polygon to have at most a point a minute, all of them in the face it starts in.
void ExpectPolygonsInsideTheFaces(const DayDial& dial, int width, int height) {
  const auto canvas = Recorded(dial, width, height);
  const Rect left = CalcViewport(HalvesOf(width, height).left);
  const Rect right = CalcViewport(HalvesOf(width, height).right);
  for (const auto& polygon : canvas.polygons) {
    const Rect& face = Holds(left, polygon.at(0)) ? left : right;
    EXPECT_LE(polygon.size(), 722U);
    EXPECT_TRUE(std::all_of(polygon.begin(), polygon.end(),
                            [&](Point point) { return Holds(face, point); }));
  }
}

TEST(DayDialPaint, RandomDaysStayInsideTheirFaces) {
  std::mt19937 random(20260105);
  std::size_t slots = 0;
  for (int round = 0; round < 500; ++round) {
    DayDial dial;
    if (round % 2 == 0) {
      const auto map = RandomMap(random);
      dial.Setup(map.data(), static_cast<int>(map.size()));
    } else {
      std::vector<std::pair<std::string, std::string>> times(random() % 20);
      for (auto& [from, to] : times) {
        from = RandomTime(random);
        to = RandomTime(random);
      }
      dial = DialOf(times);
    }
    slots += dial.Slots().size();
    ExpectPolygonsInsideTheFaces(dial, static_cast<int>(random() % 700),
                                 static_cast<int>(random() % 300));
  }
  EXPECT_GT(slots, 1000U);
}

TEST(DayDialPaint, EveryMinuteOfEveryFaceSizeStaysInsideIt) {
  const DayDial dial = DialOf({{"00:00", "24:00"}});
  for (int height = 29; height < 400; ++height) {
    ExpectPolygonsInsideTheFaces(dial, 2 * height, height);
  }
}

}  // namespace
}  // namespace qv
