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
    look.style.highlight = 0xD77800;
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
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("colour FFFFFF")));
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

TEST_F(YearPictureTest, WeekendsAreTintedAndNotByADayTypesColour) {
  // 30 January 2026 is a Friday.
  EXPECT_THAT(Drawn({2026, 1, 31}), Contains(HasSubstr("brush 282828")));
  EXPECT_THAT(Drawn({2026, 2, 1}), Contains(HasSubstr("brush 282828")));
  EXPECT_THAT(Drawn({2026, 2, 2}), Not(Contains(HasSubstr("brush 282828"))));
}

TEST_F(YearPictureTest, TodaysNumberIsTheOtherWayRound) {
  look.today = CalendarDate{2026, 1, 30};
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("brush FFFFFF")));
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("colour 101010")));
  EXPECT_THAT(Drawn({2026, 1, 29}), Contains(HasSubstr("colour FFFFFF")));
  Mark({0x00FFFF, L"Yellow"}, {2026, 1, 30});
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("brush 000000")));
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("colour 00FFFF")));
}

TEST_F(YearPictureTest, TheFocusedDateHasARingOfInkAndPaperOnAnyColour) {
  look.focused = CalendarDate{2026, 1, 30};
  Mark({0xFFFFFF, L"White"}, {2026, 1, 30});
  const auto lines = Drawn({2026, 1, 30});
  EXPECT_THAT(lines, Contains(HasSubstr("brush E0E0E0")));
  EXPECT_THAT(lines, Contains(HasSubstr("brush 101010")));
  EXPECT_THAT(lines, Contains(HasSubstr("brush FFFFFF")));
}

TEST_F(YearPictureTest, ThePreviewLooksLikeMarksInARing) {
  Mark({0x0000FF, L"Red"}, {2026, 1, 29});
  look.preview = {{2026, 1, 29}, {2026, 1, 30}};
  look.previewBrush = {0x00FFFF, L"Yellow"};
  for (const CalendarDate date : look.preview) {
    EXPECT_THAT(Drawn(date), Contains(HasSubstr("brush 00FFFF")));
    EXPECT_THAT(Drawn(date), Contains(HasSubstr("brush D77800")));
  }
  look.previewBrush = {};
  EXPECT_THAT(Drawn({2026, 1, 29}), Not(Contains(HasSubstr("brush 0000FF"))));
}

TEST_F(YearPictureTest, TheRingOfASelectedDateIsSeenOnItsColour) {
  look.selected = {{2026, 1, 29}, {2026, 1, 30}};
  Mark({0xD87900, L"Nearly the highlight"}, {2026, 1, 30});
  EXPECT_THAT(Drawn({2026, 1, 29}), Contains(HasSubstr("brush D77800")));
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("brush E0E0E0")));
  look.style.highlight = look.style.ink = 0xD87800;
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("brush 000000")));
}

TEST_F(YearPictureTest, AMarkHasTheSignOfItsBrush) {
  Mark({0x0000FF, L"Red"}, {2026, 1, 29});
  Mark({0x0000FF, L"Other red"}, {2026, 1, 30});
  look.legend = {
      {{0x0000FF, L"Red"}, L'A', 1}, {{0x0000FF, L"Other red"}, L'B', 1}, {{}, L'\0', 363}};
  EXPECT_THAT(Drawn({2026, 1, 28}), Not(Contains(HasSubstr("\"A\""))));
  EXPECT_THAT(Drawn({2026, 1, 29}), Contains(HasSubstr("\"A\"")));
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("\"B\"")));
}

TEST_F(YearPictureTest, AMarkThatLooksLikePaperHasAFrameOrASign) {
  const Brush dark{0x101010, L"Dark"};
  Mark({0x00FFFF, L"Yellow"}, {2026, 1, 29});
  Mark(dark, {2026, 1, 30});
  EXPECT_EQ(Drawn({2026, 1, 29}).size(), Drawn({2026, 1, 28}).size());
  EXPECT_EQ(Drawn({2026, 1, 30}).size(), Drawn({2026, 1, 28}).size() + 1);
  look.legend = {{dark, L'A', 1}};
  EXPECT_THAT(Drawn({2026, 1, 30}), Contains(HasSubstr("\"A\"")));
}

TEST_F(YearPictureTest, APartIsPaintedAsInTheWhole) {
  Mark({0x0000FF, L"Red"}, {2026, 1, 29});
  look.focused = CalendarDate{2026, 1, 29};
  const auto all = Lines();
  auto part = Drawn({2026, 1, 29});
  EXPECT_THAT(part.front(), HasSubstr("brush F0F0F0"));
  part.erase(part.begin());
  EXPECT_THAT(all, testing::IsSupersetOf(part));
}

TEST_F(YearPictureTest, DatesThatAreNotOnShowArePassedOver) {
  EXPECT_THAT(Drawn({2025, 1, 29}), testing::IsEmpty());
  year = YearGeometry({320, 240}, 2026, {1}, 3);
  EXPECT_THAT(Drawn({2026, 1, 29}), testing::IsEmpty());
  EXPECT_FALSE(Drawn({2026, 3, 29}).empty());
}

TEST_F(YearPictureTest, WeeksHaveTheirNumbersInEachMonth) {
  ASSERT_TRUE(year.HasWeeks());
  // No day has the number 53; week 27 is of June and July.
  EXPECT_THAT(Lines(), Contains(HasSubstr("\"53\"")).Times(1));
  EXPECT_THAT(Lines(), Contains(HasSubstr("\"27\"")).Times(12 + 2));
}

}  // namespace
}  // namespace qv
