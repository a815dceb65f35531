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
    look.style.monthNames[0] = L"January";
    look.style.monthNames[11] = L"December";
    look.style.weekdayNames[0] = L"Mo";
    look.style.paper = 0x101010;
    look.style.ink = 0xE0E0E0;
  }

  void Mark(const Brush& brush, CalendarDate date) {
    marks.SetBrush(brush);
    EXPECT_TRUE(marks.Select(ToDateTime(date)));
  }

  /// What is drawn for one date.
  std::vector<std::string> Drawn(CalendarDate date) {
    RecordingCanvas canvas;
    PaintDates(canvas, year, look, std::vector{date});
    return canvas.lines;
  }

  std::vector<std::string> Lines() {
    RecordingCanvas canvas;
    PaintYear(canvas, year, look);
    return canvas.lines;
  }

  CalendarMarks marks;
  YearLook look{.marks = marks};
  YearGeometry year{{1200, 800}, 2026, {1}};
};

TEST_F(YearPictureTest, ADateWithoutAMarkStandsOnPaper) {
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("brush 101010")));
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("\"30\"")));
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("colour E0E0E0")));
}

TEST_F(YearPictureTest, AMarkFillsItsDateAndItsNumberIsLegible) {
  Mark({0x000000, L"Black"}, {2026, 1, 1});
  Mark({0xFFFFFF, L"White"}, {2026, 12, 31});
  EXPECT_THAT(Drawn({2026, 1, 1}), Contains(HasSubstr("brush 000000")));
  EXPECT_THAT(Drawn({2026, 1, 1}), Contains(HasSubstr("colour FFFFFF")));
  EXPECT_THAT(Drawn({2026, 12, 31}), Contains(HasSubstr("brush FFFFFF")));
  EXPECT_THAT(Drawn({2026, 12, 31}), Contains(HasSubstr("colour 000000")));
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
}

TEST_F(YearPictureTest, ANameWithoutRoomIsCut) {
  look.style.monthNames[0] = QVWideString(std::wstring(80, L'M').c_str());
  const int letters = year.NameOf(1).Width() / RecordingCanvas::letterWidth;
  EXPECT_THAT(Lines(), Contains(HasSubstr('"' + std::string(letters, 'M') + '"')));
}

}  // namespace
}  // namespace qv
