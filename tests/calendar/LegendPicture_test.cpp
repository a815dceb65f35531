#include "calendar/LegendPicture.h"

#include <gmock/gmock.h>

#include "tests/support/RecordingCanvas.h"

namespace qv {
namespace {

using testing::Contains;
using testing::HasSubstr;

class LegendWidth : public testing::TestWithParam<int> {};

TEST_P(LegendWidth, EveryEntryIsFoundInItsPlaceAndNowhereElse) {
  for (std::size_t entries = 1; entries < 20; ++entries) {
    const LegendGeometry geometry(GetParam(), 18, entries);
    for (std::size_t entry = 0; entry < entries; ++entry) {
      const Rect place = geometry.PlaceOf(entry);
      ASSERT_FALSE(place.IsEmpty());
      ASSERT_LE(place.right, GetParam());
      ASSERT_LE(place.bottom, geometry.Height());
      ASSERT_EQ(geometry.EntryAt({place.left, place.top}), entry);
      ASSERT_EQ(geometry.EntryAt({place.right - 1, place.bottom - 1}), entry);
      ASSERT_NE(geometry.EntryAt({place.right, place.top}), entry);
      ASSERT_NE(geometry.EntryAt({place.left, place.bottom}), entry);
      ASSERT_NE(geometry.EntryAt({place.left - 1, place.top}), entry);
    }
    EXPECT_FALSE(geometry.EntryAt({0, geometry.Height()}));
    EXPECT_FALSE(geometry.EntryAt({GetParam(), 0}));
  }
}

INSTANTIATE_TEST_SUITE_P(Widths, LegendWidth, testing::Values(20, 143, 320, 640, 1201));

TEST(LegendGeometry, RowsAreOfEqualLength) {
  // There would be room for four in a row.
  const LegendGeometry geometry(600, 18, 6);
  EXPECT_EQ(geometry.Height(), 2 * 18);
  EXPECT_EQ(geometry.PlaceOf(3).left, 0);
}

TEST(LegendGeometry, WithoutEntriesOrRoomThereIsNothing) {
  EXPECT_EQ(LegendGeometry(600, 18, 0).Height(), 0);
  EXPECT_FALSE(LegendGeometry(600, 18, 0).EntryAt({0, 0}));
  EXPECT_FALSE(LegendGeometry(0, 18, 3).EntryAt({0, 0}));
  EXPECT_FALSE(LegendGeometry(-5, 0, 3).EntryAt({0, 0}));
}

std::vector<std::string> Painted(int width, const std::vector<LegendEntry>& legend,
                                 const LegendStyle& style) {
  RecordingCanvas canvas;
  PaintLegend(canvas, LegendGeometry(width, 18, legend.size()), legend, style);
  return canvas.lines;
}

TEST(PaintLegend, ShowsColourSignNameAndDays) {
  const auto lines = Painted(600, {{{0xFF0000, L"Work"}, L'A', 12}, {{}, L'\0', 353}},
                             {.withoutType = L"None", .paper = 0xABCDEF});
  EXPECT_THAT(lines, Contains(HasSubstr("brush FF0000")));
  EXPECT_THAT(lines, Contains(testing::AllOf(HasSubstr("\"A\""), HasSubstr("colour FFFFFF"))));
  EXPECT_THAT(lines, Contains(HasSubstr("\"Work\"")));
  EXPECT_THAT(lines, Contains(HasSubstr("\"12\"")));
  EXPECT_THAT(lines, Contains(HasSubstr("brush ABCDEF")));
  EXPECT_THAT(lines, Contains(HasSubstr("\"None\"")));
  EXPECT_THAT(lines, Contains(HasSubstr("\"353\"")));
}

TEST(PaintLegend, ANameWithoutRoomIsCutAndSaysSo) {
  const auto lines = Painted(143, {{{0xFF0000, L"Working day of winter"}, L'\0', 12}}, {});
  EXPECT_THAT(lines, Contains(HasSubstr("\"Working day …\"")));
  EXPECT_THAT(lines, Contains(HasSubstr("\"12\"")));
}

TEST(PaintLegend, TheChosenEntryStandsOut) {
  const std::vector<LegendEntry> legend{{{0xFF0000, L"Work"}, L'\0', 12}, {{}, L'\0', 353}};
  EXPECT_NE(Painted(600, legend, {}), Painted(600, legend, {.chosen = 0}));
  EXPECT_NE(Painted(600, legend, {.chosen = 0}), Painted(600, legend, {.chosen = 1}));
}

}  // namespace
}  // namespace qv
