// The calendar dialog as its users go about it.
#include <QSpinBox>

#include "tests/calendar/ui/CalendarDialogFixture.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

TEST_F(CalendarDialog, ADateIsErasedBeforeAnyRowIsChosen) {
  Run([] {
    GoTo(2026);
    EXPECT_EQ(Caption(actionLabel), "");
    ClickDate(6, 1);
    Click(IDOK);
  });
  EXPECT_EQ(calendar->ChildsBegin(), calendar->ChildsEnd());
}

TEST_F(CalendarDialog, ACancelLeavesAllThreePartsAndOkTheTypes) {
  const XmlNode calendarBefore(*calendar);
  const XmlNode daysBefore(*days);
  const XmlNode hoursBefore(*hours);
  for (const int end : {IDCANCEL, IDOK}) {
    Run([&] {
      GoTo(2026);
      ClickRow(calendarDayTypes, 0);
      ClickDate(6, 2);
      Click(end);
    });
    EXPECT_EQ(*calendar == calendarBefore, end == IDCANCEL);
    EXPECT_EQ(*days, daysBefore);
    EXPECT_EQ(*hours, hoursBefore);
  }
}

TEST_F(CalendarDialog, WithABrushTheActionIsATenthColourAndTheRestName) {
  Run([] {
    ClickRow(calendarDayTypes, 0);
    const int whole = TopControl(calendarDayTypesBox)->width();
    const QWidget* swatch = TopControl(actionSwatch);
    const QWidget* label = TopControl(actionLabel);
    const int gap = label->x() - swatch->geometry().right() - 1;
    EXPECT_GT(gap, 0);
    EXPECT_NEAR(swatch->width(), (whole - gap) / 10, 1);
    EXPECT_EQ(swatch->width() + gap + label->width(), whole);
    EXPECT_EQ(swatch->y(), label->y());
    Click(IDCANCEL);
  });
}

TEST_F(CalendarDialog, ByKeyboardARowIsChosenAndGivenUp) {
  const int result = Run([] {
    QTest::keyClick(List(calendarDayTypes), Qt::Key_Down);
    EXPECT_EQ(Caption(actionLabel), "Rest");
    QTest::keyClick(List(calendarDayTypes), Qt::Key_Down);
    EXPECT_EQ(Caption(actionLabel), "work");
    QTest::keyClick(List(calendarDayTypes), Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(Caption(actionLabel), TitleOf(Text::UnmarkDates));
    QTest::keyClick(List(calendarDayTypes), Qt::Key_Return);
  });
  EXPECT_EQ(result, IDOK);
}

TEST_F(CalendarDialog, OnlyOneRowIsChosenAndAClickBelowTheRowsGivesItUp) {
  Run([] {
    ClickRow(calendarDayTypes, 0);
    ClickRow(calendarDayTypes, 1, Qt::ControlModifier);
    EXPECT_EQ(SelectedRows(calendarDayTypes), std::vector<int>{1});
    QTreeWidget* list = List(calendarDayTypes);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->viewport()->rect().bottomLeft() + QPoint(5, -5));
    EXPECT_EQ(Caption(actionLabel), TitleOf(Text::UnmarkDates));
    Click(IDCANCEL);
  });
}

TEST_F(CalendarDialog, DayTypesCannotBeEditedHere) {
  const XmlNode before(*days);
  Run([] {
    ClickRow(calendarDayTypes, 0);
    EXPECT_TRUE(TopControl(modifyButton)->isEnabled());
    Press(calendarDayTypes, Qt::Key_Delete);
    Press(calendarDayTypes, Qt::Key_Insert);
    DoubleClickRow(calendarDayTypes, 0);
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::CalendarTitle));
    EXPECT_EQ(Names(calendarDayTypes).size(), 2);
    Click(IDOK);
  });
  EXPECT_EQ(*days, before);
}

TEST_F(CalendarDialog, AWhiteDayTypeWithoutANameErases) {
  days->Node(L"day?id=r?")->SetValue(L"name", L"");
  days->Node(L"day?id=r?")->SetValue(L"color", L"FFFFFF");
  Run([] {
    GoTo(2026);
    ClickRow(calendarDayTypes, 0);
    EXPECT_EQ(Caption(actionLabel), "");
    ExpectVisible({actionSwatch}, {});
    ClickDate(6, 1);
    Click(IDOK);
  });
  EXPECT_EQ(IdOf(2026, 6, 1), L"-");
}

TEST_F(CalendarDialog, MonthsAndWeekdaysHaveTheirTexts) {
  constexpr Text months[] = {Text::January,   Text::February, Text::March,    Text::April,
                             Text::May,       Text::June,     Text::July,     Text::August,
                             Text::September, Text::October,  Text::November, Text::December};
  constexpr Text weekdays[] = {
      Text::CalendarMonday, Text::CalendarTuesday,  Text::CalendarWednesday, Text::CalendarThursday,
      Text::CalendarFriday, Text::CalendarSaturday, Text::CalendarSunday};
  Run([&] {
    const YearStyle& style = Control()->findChild<YearView*>()->Style();
    for (std::size_t i = 0; i < std::size(months); ++i) {
      EXPECT_EQ(ToQString(style.monthNames.at(i)), TitleOf(months[i]));
    }
    for (std::size_t i = 0; i < std::size(weekdays); ++i) {
      EXPECT_EQ(ToQString(style.weekdayNames.at(i)), TitleOf(weekdays[i]));
    }
    Click(IDCANCEL);
  });
}

TEST_F(CalendarDialog, AYearThatIsOnlyTypedIsThatOfTheFastSelection) {
  Run([] {
    GoTo(2026);
    auto* year = Control()->findChild<QSpinBox*>();
    year->setFocus();
    year->selectAll();
    QTest::keyClicks(year, "2031");
    WhenNextWindow([] {
      EXPECT_EQ(Caption(fastYear), TitleOf(Text::Year) + " : 2031");
      TopControl<QCheckBox>(weekDayChecks[2])->click();
      TopControl<QCheckBox>(monthChecks[0])->click();
      Click(IDOK);
    });
    // As a mnemonic does, which leaves the focus in the field.
    TopControl<QAbstractButton>(fastSelectionButton)->click();
    EXPECT_EQ(Control()->GetYear(), 2031);
    Click(IDOK);
  });
  // 1 January 2031 is a Wednesday.
  EXPECT_EQ(IdOf(2031, 1, 1), L"r");
}

TEST_F(CalendarDialog, ADestroyedParentTakesItAlongWhileAYearIsTyped) {
  auto* parent = new QWidget;
  parent->show();
  auto* dialog = new CDlgCalendar(parent, calendar.get(), days.get(), hours.get());
  const int result = Drive([&] { return dialog->DoModal(); },
                           [&] {
                             auto* year = Control()->findChild<QSpinBox*>();
                             year->setFocus();
                             year->selectAll();
                             QTest::keyClicks(year, "20");
                             delete parent;
                           });
  EXPECT_EQ(result, IDCANCEL);
}

TEST_F(CalendarDialog, ASecondRunBeginsWithoutABrush) {
  CDlgCalendar dialog(nullptr, calendar.get(), days.get(), hours.get());
  Play(dialog, [] {
    ClickRow(calendarDayTypes, 0);
    Click(IDCANCEL);
  });
  Play(dialog, [] {
    ExpectVisible({}, {actionSwatch});
    GoTo(2026);
    ClickDate(6, 1);
    Click(IDOK);
  });
  EXPECT_EQ(IdOf(2026, 6, 1), L"-");
}

}  // namespace
}  // namespace qv
