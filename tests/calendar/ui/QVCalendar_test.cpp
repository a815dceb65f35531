#include "calendar/ui/QVCalendar.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

#include "calendar/YearGeometry.h"
#include "calendar/ui/YearView.h"

namespace qv {
namespace {

const QVDateTime today = ToDateTime({2026, 11, 21});

/// The calendar as it works without ever being shown.
class CalendarControl : public testing::Test {
 protected:
  static std::wstring TextOf(const QVDateTime& date, const QVCalendar& calendar) {
    return calendar.GetIdDay(date);
  }

  CalendarMarks marks;
  QVCalendar calendar{nullptr, marks, today};
};

TEST_F(CalendarControl, OpensOnThePresentYear) { EXPECT_EQ(calendar.GetYear(), 2026); }

TEST_F(CalendarControl, MarksDatesWithItsBrush) {
  calendar.SetSelType(0x0000FF, L"Work");
  EXPECT_TRUE(calendar.Select(ToDateTime({2026, 1, 1})));
  EXPECT_EQ(TextOf(ToDateTime({2026, 1, 1}), calendar), L"Work");
  EXPECT_EQ(marks.BrushOf({2026, 1, 1})->colour, 0x0000FFU);
  calendar.SetSelType(0xFFFFFF, L"");
  EXPECT_TRUE(calendar.Select(ToDateTime({2026, 1, 1})));
  EXPECT_FALSE(marks.BrushOf({2026, 1, 1}));
}

TEST_F(CalendarControl, ADateThatDoesNotExistCannotBeMarked) {
  calendar.SetSelType(0x0000FF, L"Work");
  EXPECT_FALSE(calendar.Select(ToDateTime({2026, 2, 29})));
}

TEST_F(CalendarControl, ADateWithoutAMarkGivesATextThatNothingBears) {
  EXPECT_EQ(TextOf(ToDateTime({2026, 1, 1}), calendar), L"\xFFFF");
  calendar.SetSelType(0x0000FF, L"");
  EXPECT_TRUE(calendar.Select(ToDateTime({2026, 1, 1})));
  EXPECT_EQ(TextOf(ToDateTime({2026, 1, 1}), calendar), L"");
}

TEST_F(CalendarControl, TellsTheFirstAndTheLastMark) {
  QVDateTime first = today;
  QVDateTime last = today;
  calendar.GetFirstSelectedDay(first);
  calendar.GetLastSelectedDay(last);
  EXPECT_FALSE(first.Valid());
  EXPECT_FALSE(last.Valid());
  calendar.SetSelType(0x0000FF, L"Work");
  for (const CalendarDate date : {CalendarDate{2030, 5, 6}, CalendarDate{1999, 2, 3}}) {
    EXPECT_TRUE(calendar.Select(ToDateTime(date)));
  }
  calendar.GetFirstSelectedDay(first);
  calendar.GetLastSelectedDay(last);
  EXPECT_EQ(KeyOf(first), (CalendarDate{1999, 2, 3}));
  EXPECT_EQ(KeyOf(last), (CalendarDate{2030, 5, 6}));
}

TEST_F(CalendarControl, OffersTheYearsFrom1To9999AndThoseOfMarks) {
  calendar.SetYear(10000);
  EXPECT_EQ(calendar.GetYear(), 9999);
  calendar.SetYear(0);
  EXPECT_EQ(calendar.GetYear(), 1);
  calendar.SetSelType(0x0000FF, L"Work");
  EXPECT_TRUE(calendar.Select(ToDateTime({-31073, 1, 1})));
  EXPECT_TRUE(calendar.Select(ToDateTime({32767, 12, 31})));
  calendar.SetYear(-31073);
  EXPECT_EQ(calendar.GetYear(), -31073);
  calendar.SetYear(32767);
  EXPECT_EQ(calendar.GetYear(), 32767);
}

TEST_F(CalendarControl, NamesOutsideTheirRangeAreRefused) {
  EXPECT_THROW(calendar.SetMonthName(12, L"x"), std::out_of_range);
  EXPECT_THROW(calendar.SetMonthName(-1, L"x"), std::out_of_range);
  EXPECT_THROW(calendar.SetWeekdayName(7, L"x"), std::out_of_range);
}

/// The calendar on the screen.
class ShownCalendar : public CalendarControl {
 protected:
  ShownCalendar() {
    calendar.resize(700, 450);
    calendar.show();
  }

  YearView* View() const { return calendar.findChild<YearView*>(); }
  QSpinBox* Year() const { return calendar.findChild<QSpinBox*>(); }

  QPoint PlaceOf(CalendarDate date) const {
    const double density = View()->devicePixelRatioF();
    const YearGeometry geometry(
        {static_cast<int>(View()->width() * density), static_cast<int>(View()->height() * density)},
        date.year, {density});
    const Rect cell = geometry.CellOf(date);
    return QPoint(cell.left + cell.Width() / 2, cell.top + cell.Height() / 2) / density;
  }

  QImage Picture() { return calendar.grab().toImage(); }
};

TEST_F(ShownCalendar, AClickMarksItsDateAndShowsIt) {
  calendar.SetSelType(0x0000FF, L"Work");
  const QImage before = Picture();
  QTest::mouseClick(View(), Qt::LeftButton, {}, PlaceOf({2026, 5, 17}));
  EXPECT_EQ(TextOf(ToDateTime({2026, 5, 17}), calendar), L"Work");
  EXPECT_NE(Picture(), before);
  EXPECT_TRUE(marks.CanUndo());
}

TEST_F(ShownCalendar, OnlyTheLeftButtonMarks) {
  calendar.SetSelType(0x0000FF, L"Work");
  QTest::mouseClick(View(), Qt::RightButton, {}, PlaceOf({2026, 5, 17}));
  EXPECT_FALSE(marks.First());
}

TEST_F(ShownCalendar, AClickWithTheEraserUnmarks) {
  calendar.SetSelType(0x0000FF, L"Work");
  EXPECT_TRUE(calendar.Select(ToDateTime({2026, 5, 17})));
  calendar.SetSelType(0xFFFFFF, L"");
  QTest::mouseClick(View(), Qt::LeftButton, {}, PlaceOf({2026, 5, 17}));
  EXPECT_FALSE(marks.First());
}

TEST_F(ShownCalendar, TheButtonsAndATypedNumberGoToAnotherYear) {
  const auto buttons = calendar.findChildren<QToolButton*>();
  ASSERT_EQ(buttons.size(), 2);
  const QImage before = Picture();
  QTest::mouseClick(buttons[0], Qt::LeftButton);
  EXPECT_EQ(calendar.GetYear(), 2025);
  EXPECT_NE(Picture(), before);
  QTest::mouseClick(buttons[1], Qt::LeftButton);
  EXPECT_EQ(calendar.GetYear(), 2026);
  Year()->selectAll();
  QTest::keyClicks(Year(), "1999");
  EXPECT_EQ(calendar.GetYear(), 1999) << "at once, so that nothing waits for the field";
  QTest::keyClick(Year(), Qt::Key_Return);
  EXPECT_EQ(calendar.GetYear(), 1999);
}

TEST_F(ShownCalendar, FollowsMarksThatAreMadeElsewhere) {
  const QImage before = Picture();
  marks.SetBrush({0x0000FF, L"Work"});
  EXPECT_TRUE(marks.Apply({{2026, 5, 17}}));
  calendar.ShowMarks();
  EXPECT_NE(Picture(), before);
}

}  // namespace
}  // namespace qv
