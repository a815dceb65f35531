// The primitives of representative years, line by line. After a change that is meant, build the
// target `golden`, and look at what differs.
#include <gtest/gtest.h>

#include "calendar/LegendPicture.h"
#include "calendar/YearPicture.h"
#include "tests/support/Golden.h"
#include "tests/support/RecordingCanvas.h"

namespace qv {
namespace {

const Brush work{0xDCA86F, L"Working day"};
const Brush rest{0xDCA0C9, L"Weekend or holiday"};

const std::vector<ColouredType> rows{{nullptr, rest.text, rest.colour},
                                     {nullptr, work.text, work.colour}};

void Mark(CalendarMarks& marks, const Brush& brush, CalendarDate first, int days) {
  marks.SetBrush(brush);
  for (int i = 0; i < days; ++i) {
    EXPECT_TRUE(marks.Select(ToDateTime({first.year, first.month, first.day + i})));
  }
}

YearStyle Light() {
  YearStyle style;
  style.monthNames = {L"January", L"February", L"March",     L"April",   L"May",      L"June",
                      L"July",    L"August",   L"September", L"October", L"November", L"December"};
  style.weekdayNames = {L"Mo", L"Tu", L"We", L"Th", L"Fr", L"Sa", L"Su"};
  return style;
}

YearStyle Dark() {
  YearStyle style = Light();
  style.ground = 0x322D2A;
  style.paper = 0x23201E;
  style.ink = 0xFFFFFF;
  style.density = {2};
  return style;
}

struct GoldenYear {
  const char* name;
  Extent size;
  int year;
  int firstMonth;
  YearStyle (*style)();
};

class YearGolden : public testing::TestWithParam<GoldenYear> {
 protected:
  YearGolden() {
    const int year = GetParam().year;
    Mark(marks, work, {year, 1, 5}, 12);
    Mark(marks, rest, {year, 1, 1}, 4);
    Mark(marks, rest, {year, 2, 7}, 2);
    look.style = GetParam().style();
    look.legend = LegendOf(marks, rows, year);
    look.today = {{year, 1, 6}};
    look.focused = {{year, 2, 8}};
    look.selected = {{year, 2, 8}, {year, 2, 9}};
    look.preview = {{year, 1, 3}, {year, 1, 4}, {year, 1, 30}};
    look.previewBrush = work;
  }

  void ExpectFile(const std::string& name, const RecordingCanvas& canvas) const {
    ExpectGolden(QV_PROJECT_DIR "/tests/calendar/golden/" + name + ".txt", canvas.lines);
  }

  CalendarMarks marks;
  YearLook look{.marks = marks};
};

TEST_P(YearGolden, DrawsThePrimitivesOfTheFile) {
  const auto& [name, size, year, firstMonth, style] = GetParam();
  RecordingCanvas canvas;
  PaintYear(canvas, YearGeometry(size, year, style().density, firstMonth), look);
  ExpectFile(name, canvas);
}

TEST_P(YearGolden, DrawsTheLegendOfTheFile) {
  RecordingCanvas canvas;
  const YearStyle& style = look.style;
  PaintLegend(canvas,
              LegendGeometry(GetParam().size.cx, style.density.Dots(18), look.legend.size()),
              look.legend,
              {.withoutType = L"Without day type",
               .ground = style.ground,
               .paper = style.paper,
               .ink = style.ink,
               .chosen = 1,
               .density = style.density});
  ExpectFile(GetParam().name + std::string("Legend"), canvas);
}

INSTANTIATE_TEST_SUITE_P(
    Years, YearGolden,
    testing::Values(GoldenYear{"WholeYear", {640, 360}, 2026, 1, Light},
                    GoldenYear{"YearWithWeeks", {1200, 800}, 2024, 1, Light},
                    GoldenYear{"SomeMonthsOfADenseScreen", {640, 480}, 2026, 1, Dark}),
    [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace qv
