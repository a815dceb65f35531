#include "calendar/CalendarCursor.h"

#include <gtest/gtest.h>

#include "tests/calendar/Printing.h"

namespace qv {
namespace {

struct KeyCase {
  CalendarDate from;
  CursorKey key;
  bool byYear;
  CalendarDate to;
};

constexpr KeyCase keys[] = {
    {{2026, 5, 31}, CursorKey::Right, false, {2026, 6, 1}},
    {{2026, 1, 1}, CursorKey::Left, false, {2025, 12, 31}},
    {{2026, 3, 3}, CursorKey::Up, false, {2026, 2, 24}},
    {{2026, 12, 28}, CursorKey::Down, false, {2027, 1, 4}},
    {{2024, 2, 15}, CursorKey::Home, false, {2024, 2, 1}},
    {{2024, 2, 15}, CursorKey::End, false, {2024, 2, 29}},
    {{2026, 3, 31}, CursorKey::PageUp, false, {2026, 2, 28}},
    {{2026, 12, 31}, CursorKey::PageDown, false, {2027, 1, 31}},
    {{2026, 5, 17}, CursorKey::Home, true, {2026, 1, 1}},
    {{2026, 5, 17}, CursorKey::End, true, {2026, 12, 31}},
    {{2024, 2, 29}, CursorKey::PageDown, true, {2025, 2, 28}},
    {{2026, 5, 17}, CursorKey::PageUp, true, {2025, 5, 17}},
    {{2026, 5, 17}, CursorKey::Left, true, {2025, 5, 17}},
    {{2026, 5, 17}, CursorKey::Up, true, {2025, 5, 17}},
    {{2026, 5, 17}, CursorKey::Right, true, {2027, 5, 17}},
    {{2026, 5, 17}, CursorKey::Down, true, {2027, 5, 17}},
};

TEST(CalendarCursor, EachKeyLeadsToItsDate) {
  for (const KeyCase& each : keys) {
    CalendarCursor cursor(each.from);
    EXPECT_TRUE(cursor.Move(each.key, each.byYear, false));
    EXPECT_EQ(cursor.Date(), each.to) << "case " << &each - keys;
    EXPECT_FALSE(cursor.HasRange());
  }
}

TEST(CalendarCursor, ARangeRunsFromWhereItBegan) {
  CalendarCursor cursor({2026, 5, 30});
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(cursor.Move(CursorKey::Right, false, true));
  }
  const std::vector<CalendarDate> forwards = {
      {2026, 5, 30}, {2026, 5, 31}, {2026, 6, 1}, {2026, 6, 2}};
  EXPECT_EQ(cursor.Selected(), forwards);
  EXPECT_TRUE(cursor.Move(CursorKey::Up, false, true));
  EXPECT_EQ(cursor.Selected().front(), (CalendarDate{2026, 5, 26}));
  EXPECT_EQ(cursor.Selected().back(), (CalendarDate{2026, 5, 30}));
  EXPECT_TRUE(cursor.IsSelected({2026, 5, 26}));
  EXPECT_TRUE(cursor.IsSelected({2026, 5, 30}));
  EXPECT_FALSE(cursor.IsSelected({2026, 5, 31}));
  EXPECT_FALSE(cursor.IsSelected({2026, 5, 25}));
  EXPECT_TRUE(cursor.Move(CursorKey::Right, false, false));
  EXPECT_EQ(cursor.Selected(), std::vector{cursor.Date()});
}

TEST(CalendarCursor, AKeyThatLeadsNowhereDropsTheRangeAlone) {
  CalendarCursor cursor({2026, 5, 31});
  EXPECT_TRUE(cursor.Move(CursorKey::Home, false, true));
  EXPECT_FALSE(cursor.Move(CursorKey::Home, false, true));
  EXPECT_TRUE(cursor.Move(CursorKey::Home, false, false));
  EXPECT_FALSE(cursor.HasRange());
  EXPECT_FALSE(cursor.Move(CursorKey::Home, false, false));
}

TEST(CalendarCursor, StaysInItsYears) {
  CalendarCursor cursor({1, 1, 1});
  EXPECT_FALSE(cursor.Move(CursorKey::Left, false, false));
  EXPECT_EQ(cursor.Date(), (CalendarDate{1, 1, 1}));
  cursor.SetYears(-5, 10);
  EXPECT_TRUE(cursor.Move(CursorKey::Left, false, false));
  EXPECT_EQ(cursor.Date(), (CalendarDate{0, 12, 31}));
  cursor.GoTo({10, 12, 31});
  EXPECT_FALSE(cursor.Move(CursorKey::PageDown, true, false));
}

}  // namespace
}  // namespace qv
