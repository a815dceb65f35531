#include "calendar/YearLegend.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace qv {
namespace {

constexpr Colour red = 0x0000FF;
constexpr Colour yellow = 0x00FFFF;
constexpr Colour nearlyYellow = 0x10F8F8;

ColouredType Row(Colour colour, const wchar_t* name) { return {nullptr, name, colour}; }

class YearLegendTest : public testing::Test {
 protected:
  void Mark(const ColouredType& row, std::vector<CalendarDate> dates) {
    marks.SetBrush({row.colour, row.name});
    EXPECT_TRUE(marks.Apply(dates));
  }

  CalendarMarks marks;
  ColouredType work = Row(red, L"Work");
  ColouredType rest = Row(yellow, L"Rest");
};

TEST_F(YearLegendTest, CountsTheDaysOfTheYearOnShow) {
  Mark(work, {{2026, 1, 1}, {2026, 12, 31}, {2025, 12, 31}, {2027, 1, 1}});
  Mark(rest, {{2026, 5, 1}});
  const auto legend = LegendOf(marks, {work, rest}, 2026);
  ASSERT_EQ(legend.size(), 3U);
  EXPECT_EQ(legend[0], (LegendEntry{{red, L"Work"}, L'\0', 2}));
  EXPECT_EQ(legend[1], (LegendEntry{{yellow, L"Rest"}, L'\0', 1}));
  EXPECT_TRUE(legend[2].brush.IsEraser());
  EXPECT_EQ(legend[2].days, 362);
}

TEST_F(YearLegendTest, ALeapYearHasADayMore) {
  EXPECT_EQ(LegendOf(marks, {}, 2024).back().days, 366);
  EXPECT_EQ(LegendOf(marks, {}, 2026).back().days, 365);
  EXPECT_EQ(LegendOf(marks, {}, 1900).back().days, 365);
}

TEST_F(YearLegendTest, TypesOfOneColourAreToldApartByName) {
  const ColouredType other = Row(red, L"Other");
  Mark(work, {{2026, 1, 1}});
  const auto legend = LegendOf(marks, {work, other}, 2026);
  EXPECT_EQ(legend[0].days, 1);
  EXPECT_EQ(legend[1].days, 0);
}

TEST_F(YearLegendTest, ColoursThatLookAlikeBringSignsForAll) {
  const auto legend = LegendOf(marks, {work, rest, Row(nearlyYellow, L"Other")}, 2026);
  EXPECT_EQ(legend[0].sign, L'K') << "of Work, since W is broad, O a digit, and R taken";
  EXPECT_EQ(legend[1].sign, L'R');
  EXPECT_EQ(legend[2].sign, L'T');
  EXPECT_EQ(legend[3].sign, L'\0');
}

TEST_F(YearLegendTest, SignsAreTheFirstLettersOfNamesAsFarAsTheyAreFree) {
  std::vector<ColouredType> rows;
  for (const wchar_t* name :
       {L"A high", L"B mid-high", L"B1 mid", L"b", L"C low", L"\u00D1and\u00FA", L"", L"?!"}) {
    rows.push_back(Row(red, name));
  }
  std::wstring signs;
  for (const LegendEntry& entry : LegendOf(marks, rows, 2026)) {
    signs += entry.sign;
  }
  // The last ones have no letter of their own that is left.
  EXPECT_EQ(signs, std::wstring(L"ABDECNFG") + L'\0');
}

TEST_F(YearLegendTest, ThereAreFortyFourSigns) {
  const std::vector<ColouredType> rows(70, work);
  const auto legend = LegendOf(marks, rows, 2026);
  std::set<wchar_t> signs;
  for (std::size_t i = 0; i < 44; ++i) {
    EXPECT_TRUE(legend[i].sign && signs.insert(legend[i].sign).second);
  }
  EXPECT_EQ(legend[44].sign, L'\0');
}

}  // namespace
}  // namespace qv
