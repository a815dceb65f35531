// The primitives of five representative days, line by line. After a change that is meant, build the
// target `golden`, and look at what differs.
#include <gtest/gtest.h>

#include "tests/support/Golden.h"
#include "tests/support/RecordingCanvas.h"
#include "timestructure/DayDial.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

constexpr char hourTypes[] =
    "<hourTypes>"
    "<hour><id>peak</id><color>4E5AE0</color></hour>"
    "<hour><id>middle</id><color>34B1F2</color></hour>"
    "<hour><id>low</id><color>75b05d</color></hour>"
    "</hourTypes>";

/// A dial with the slots of a day in XML text.
DayDial DialOfText(const char* day) {
  XmlDocument dayDocument;
  XmlDocument hoursDocument;
  EXPECT_TRUE(dayDocument.Parse(day));
  EXPECT_TRUE(hoursDocument.Parse(hourTypes));
  DayDial dial;
  dial.Setup(dayDocument.Root(), hoursDocument.Root());
  return dial;
}

DayDial Empty() { return {}; }

DayDial WorkingDay() {
  DayDial dial = DialOfText(
      "<day>"
      "<slot><id>low</id><from>00:00</from><to>08:00</to></slot>"
      "<slot><id>middle</id><from>08:00</from><to>10:00</to></slot>"
      "<slot><id>peak</id><from>10:00</from><to>14:00</to></slot>"
      "<slot><id>middle</id><from>14:00</from><to>18:00</to></slot>"
      "<slot><id>peak</id><from>18:00</from><to>22:00</to></slot>"
      "<slot><id>middle</id><from>22:00</from><to>24:00</to></slot>"
      "</day>");
  dial.SetBkColor(0xFFFFFF);
  return dial;
}

DayDial WholeDayInARing() {
  DayDial dial = DialOfText("<day><slot><id>low</id><from>00:00</from><to>24:00</to></slot></day>");
  dial.SetColor(0xC0C0C0);
  dial.Setup(1);
  return dial;
}

/// Slots across noon, one over another, of no length, with the end before the start, of an hour
/// type that there isn't, and with times that are no times.
DayDial AwkwardDay() {
  return DialOfText(
      "<day>"
      "<slot><id>low</id><from>11:30</from><to>12:30</to></slot>"
      "<slot><id>peak</id><from>11:45</from><to>12:05</to></slot>"
      "<slot><id>middle</id><from>05:00</from><to>05:00</to></slot>"
      "<slot><id>middle</id><from>12:00</from><to>12:00</to></slot>"
      "<slot><id>peak</id><from>09:00</from><to>08:00</to></slot>"
      "<slot><id>gone</id><from>7</from><to>0730</to></slot>"
      "<slot><id>peak</id><from>23:30</from><to>99:99</to></slot>"
      "</day>");
}

DayDial MapOfMinutes() {
  std::vector<std::uint8_t> map(minutesOfDay, 1);
  std::fill(map.begin() + 60, map.begin() + 90, std::uint8_t{0});
  std::fill(map.begin() + 700, map.begin() + 760, std::uint8_t{0});
  std::fill(map.begin() + 1410, map.end(), std::uint8_t{0});
  DayDial dial;
  dial.Setup(map.data(), minutesOfDay);
  return dial;
}

struct GoldenCase {
  const char* name;
  DayDial (*dial)();
  int width;
  int height;
};

class DayDialGolden : public testing::TestWithParam<GoldenCase> {};

TEST_P(DayDialGolden, DrawsThePrimitivesOfTheFile) {
  RecordingCanvas canvas;
  GetParam().dial().Paint(canvas, GetParam().width, GetParam().height, DialSurroundings());
  ExpectGolden(
      std::string(QV_PROJECT_DIR "/tests/timestructure/golden/") + GetParam().name + ".txt",
      canvas.lines);
}

INSTANTIATE_TEST_SUITE_P(Days, DayDialGolden,
                         testing::Values(GoldenCase{"Empty", Empty, 200, 100},
                                         GoldenCase{"WorkingDay", WorkingDay, 200, 100},
                                         GoldenCase{"WholeDayInARing", WholeDayInARing, 301, 90},
                                         GoldenCase{"AwkwardDay", AwkwardDay, 333, 180},
                                         GoldenCase{"MapOfMinutes", MapOfMinutes, 200, 100}),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace qv
