#include "calendar/YearPicture.h"

#include <gmock/gmock.h>

#include "tests/support/RecordingCanvas.h"

namespace qv {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

class YearPictureTest : public testing::Test {
 protected:
  YearPictureTest() {
    style.monthNames[0] = L"January";
    style.monthNames[11] = L"December";
    style.weekdayNames[0] = L"Mo";
    style.paper = 0x101010;
    style.ink = 0x202020;
    style.faintInk = 0x303030;
  }

  void Mark(const Brush& brush, CalendarDate date) {
    marks.SetBrush(brush);
    EXPECT_TRUE(marks.Select(ToDateTime(date)));
  }

  /// What is drawn for a date: its ground, and the number behind it.
  std::pair<std::string, std::string> Drawn(CalendarDate date) {
    RecordingCanvas canvas;
    PaintYear(canvas, year, marks, style);
    const Rect cell = year.CellOf(date);
    RecordingCanvas expected;
    expected.Fill({cell.left, cell.top, cell.right + 1, cell.bottom + 1}, 0);
    const std::string place = expected.lines[0].substr(5, expected.lines[0].find(" brush") - 5);
    for (std::size_t i = 0; i + 1 < canvas.lines.size(); ++i) {
      if (canvas.lines[i].starts_with("rectangle " + place + " ")) {
        return {canvas.lines[i], canvas.lines[i + 1]};
      }
    }
    return {};
  }

  std::vector<std::string> Lines() {
    RecordingCanvas canvas;
    PaintYear(canvas, year, marks, style);
    return canvas.lines;
  }

  CalendarMarks marks;
  YearStyle style;
  YearGeometry year{{1200, 800}, 2026};
};

TEST_F(YearPictureTest, ADateWithoutAMarkStandsOnPaper) {
  const auto [ground, number] = Drawn({2026, 1, 31});
  EXPECT_THAT(ground, HasSubstr("brush 101010"));
  EXPECT_THAT(number, HasSubstr("\"31\""));
  EXPECT_THAT(number, HasSubstr("colour 202020"));
}

TEST_F(YearPictureTest, AMarkFillsItsDateAndItsNumberIsLegible) {
  Mark({0x000000, L"Black"}, {2026, 1, 1});
  Mark({0xFFFFFF, L"White"}, {2026, 12, 31});
  EXPECT_THAT(Drawn({2026, 1, 1}).first, HasSubstr("brush 000000"));
  EXPECT_THAT(Drawn({2026, 1, 1}).second, HasSubstr("colour FFFFFF"));
  EXPECT_THAT(Drawn({2026, 12, 31}).first, HasSubstr("brush FFFFFF"));
  EXPECT_THAT(Drawn({2026, 12, 31}).second, HasSubstr("colour 000000"));
}

TEST_F(YearPictureTest, OnlyTheYearOnShowIsPainted) {
  Mark({0x0000FF, L"Red"}, {2025, 1, 1});
  EXPECT_THAT(Lines(), Not(Contains(HasSubstr("brush 0000FF"))));
}

TEST_F(YearPictureTest, MonthsAndWeekdaysHaveTheirNames) {
  const auto lines = Lines();
  EXPECT_THAT(lines, Contains(HasSubstr("\"January\"")).Times(1));
  EXPECT_THAT(lines, Contains(HasSubstr("\"December\"")).Times(1));
  EXPECT_THAT(lines, Contains(HasSubstr("\"Mo\"")).Times(12));
  EXPECT_THAT(lines, Contains(HasSubstr("\"31\"")).Times(7));
}

TEST_F(YearPictureTest, ANameWithoutRoomIsCut) {
  style.monthNames[0] = QVWideString(std::wstring(80, L'M').c_str());
  const int letters = year.NameOf(1).Width() / RecordingCanvas::letterWidth;
  EXPECT_THAT(Lines(), Contains(HasSubstr('"' + std::string(letters, 'M') + '"')));
}

}  // namespace
}  // namespace qv
