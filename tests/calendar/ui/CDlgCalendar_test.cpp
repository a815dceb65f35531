#include <QSpinBox>

#include "calendar/ui/LegendView.h"
#include "tests/calendar/ui/CalendarDialogFixture.h"
#include "toolkit/ColourField.h"

namespace qv {
namespace {

TEST_F(CalendarDialog, OpensWithDayTypesAndNoAction) {
  Run([] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::CalendarTitle));
    EXPECT_EQ(Names(calendarDayTypes), QStringList({"Rest", "work"}));
    EXPECT_TRUE(SelectedRows(calendarDayTypes).empty());
    EXPECT_EQ(Caption(actionLabel), "");
    ExpectVisible({calendarView, fastSelectionButton, actionLabel, calendarDayTypesBox},
                  {actionSwatch, addButton, modifyButton, removeButton});
    EXPECT_EQ(Control()->windowTitle(), "Calendar");
    Click(IDCANCEL);
  });
  EXPECT_FALSE(modified);
}

TEST_F(CalendarDialog, TheSelectedRowIsTheBrushAndShownAsTheAction) {
  Run([] {
    ClickRow(calendarDayTypes, 1);
    EXPECT_EQ(Caption(actionLabel), "work");
    EXPECT_EQ(TopControl<ColourField>(actionSwatch)->ShownColour(), 0x0000FFU);
    ExpectVisible({actionSwatch}, {});
    EXPECT_LT(TopControl(actionSwatch)->x(), TopControl(actionLabel)->x());
    ClickRow(calendarDayTypes, 1, Qt::ControlModifier);
    EXPECT_EQ(Caption(actionLabel), TitleOf(Text::UnmarkDates));
    ExpectVisible({}, {actionSwatch});
    EXPECT_EQ(TopControl(actionLabel)->x(), TopControl(calendarDayTypesBox)->x());
    EXPECT_EQ(TopControl(actionLabel)->width(), TopControl(calendarDayTypesBox)->width());
    Click(IDCANCEL);
  });
}

TEST_F(CalendarDialog, DatesAreMarkedByClickAndWrittenByOk) {
  const int result = Run([] {
    GoTo(2026);
    ClickRow(calendarDayTypes, 0);
    ClickDate(6, 1);
    ClickDate(6, 2);
    ClickRow(calendarDayTypes, 0, Qt::ControlModifier);
    ClickDate(6, 2);
    Click(IDOK);
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_TRUE(modified);
  EXPECT_EQ(IdOf(2026, 6, 1), L"r");
  EXPECT_EQ(IdOf(2026, 6, 2), L"-");
}

TEST_F(CalendarDialog, ACancelLeavesAllAsItWas) {
  const XmlNode before(*calendar);
  const int result = Run([] {
    GoTo(2026);
    ClickRow(calendarDayTypes, 0);
    ClickDate(6, 1);
    Click(IDCANCEL);
  });
  EXPECT_EQ(result, IDCANCEL);
  EXPECT_FALSE(modified);
  EXPECT_EQ(*calendar, before);
}

TEST_F(CalendarDialog, OkWithoutAChangeCountsAsOne) {
  const XmlNode before(*calendar);
  EXPECT_EQ(Run([] { Click(IDOK); }), IDOK);
  EXPECT_TRUE(modified);
  EXPECT_EQ(*calendar, before);
}

TEST_F(CalendarDialog, DigitsAndTheLegendSelectTheBrushInTheList) {
  Run([] {
    auto* view = Control()->findChild<YearView*>();
    QTest::keyClick(view, Qt::Key_2);
    EXPECT_EQ(SelectedRows(calendarDayTypes), std::vector{1});
    EXPECT_EQ(Caption(actionLabel), "work");
    QTest::keyClick(view, Qt::Key_9);
    EXPECT_EQ(SelectedRows(calendarDayTypes), std::vector{1}) << "there is no ninth";
    QTest::keyClick(view, Qt::Key_0);
    EXPECT_TRUE(SelectedRows(calendarDayTypes).empty());
    EXPECT_EQ(Caption(actionLabel), TitleOf(Text::UnmarkDates));
    auto* legend = Control()->findChild<LegendView*>();
    QTest::mouseClick(legend, Qt::LeftButton, {}, legend->PlaceOf(0).center());
    EXPECT_EQ(SelectedRows(calendarDayTypes), std::vector{0});
    QTest::mouseClick(legend, Qt::LeftButton, {}, legend->PlaceOf(2).center());
    EXPECT_TRUE(SelectedRows(calendarDayTypes).empty());
    Click(IDCANCEL);
  });
}

TEST_F(CalendarDialog, KeysOfTheYearDoNotEndTheDialog) {
  const int result = Run([] {
    GoTo(2026);
    ClickRow(calendarDayTypes, 0);
    auto* view = Control()->findChild<YearView*>();
    QTest::mousePress(view, Qt::LeftButton, {}, view->CellOf({2026, 6, 5}).center());
    QTest::keyClick(view, Qt::Key_Escape);
    EXPECT_TRUE(TopWindow()) << "Escape takes the stroke back";
    ClickDate(6, 2);
    QTest::keyClick(view, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_TRUE(TopWindow()) << "Return marks the range";
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_FALSE(TopWindow()) << "without a range it is OK";
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(IdOf(2026, 6, 3), L"r");
  EXPECT_EQ(IdOf(2026, 6, 5), L"-");
}

TEST_F(CalendarDialog, AStrokeAndAFastSelectionAreUndoneFromAnywhereInIt) {
  Run([] {
    GoTo(2026);
    ClickRow(calendarDayTypes, 0);
    ClickDate(6, 2);
    RuleNext({weekDayChecks[0], monthChecks[0]}, 0);
    Click(fastSelectionButton);
    // A window manager would do that when the other window goes.
    TopWindow()->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(TopWindow()));
    Press(calendarDayTypes, Qt::Key_Z, Qt::ControlModifier);
    Press(calendarDayTypes, Qt::Key_Z, Qt::ControlModifier);
    Press(calendarDayTypes, Qt::Key_Z, Qt::ControlModifier);
    Press(calendarDayTypes, Qt::Key_Y, Qt::ControlModifier);
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
  EXPECT_EQ(IdOf(2026, 6, 1), L"w") << "what was there first can't be undone";
  EXPECT_EQ(IdOf(2026, 6, 2), L"r");
  EXPECT_EQ(IdOf(2026, 1, 5), L"-");
}

TEST_F(CalendarDialog, FastSelectionMarksTheYearOnShow) {
  Run([] {
    GoTo(2025);
    RuleNext({weekDayChecks[0], monthChecks[0]}, 0);
    Click(fastSelectionButton);
    Click(IDOK);
  });
  // 6 January 2025 is a Monday.
  EXPECT_EQ(IdOf(2025, 1, 6), L"r");
  EXPECT_EQ(IdOf(2025, 1, 7), L"-");
  EXPECT_EQ(IdOf(2026, 6, 1), L"-") << "the last mark has the smaller day";
}

TEST_F(CalendarDialog, FastSelectionOffersTheRowsInTheirOrderAndTellsTheYear) {
  Run([] {
    GoTo(2031);
    WhenNextWindow([] {
      EXPECT_EQ(Caption(fastYear), TitleOf(Text::Year) + " : 2031");
      EXPECT_EQ(Combo(fastDayType)->itemText(0), "Rest");
      EXPECT_EQ(Combo(fastDayType)->itemText(1), "work");
      Click(IDCANCEL);
    });
    Click(fastSelectionButton);
    Click(IDCANCEL);
  });
}

TEST_F(CalendarDialog, FastSelectionShowsItsMarksAndPutsTheBrushBack) {
  Run([] {
    GoTo(2026);
    ClickRow(calendarDayTypes, 1);
    const QImage before = Control()->grab().toImage();
    RuleNext({weekDayChecks[0], monthChecks[0]}, 0);
    Click(fastSelectionButton);
    EXPECT_NE(Control()->grab().toImage(), before);
    EXPECT_EQ(Caption(actionLabel), "work");
    ClickDate(1, 5);
    Click(IDOK);
  });
  EXPECT_EQ(IdOf(2026, 1, 5), L"w");
  EXPECT_EQ(IdOf(2026, 1, 12), L"r");
}

TEST_F(CalendarDialog, AFastSelectionThatMatchesNothingIsAChangeEvenAfterACancel) {
  Run([] {
    RuleNext({}, 0);
    Click(fastSelectionButton);
    Click(IDCANCEL);
  });
  EXPECT_TRUE(modified);
}

TEST_F(CalendarDialog, AFastSelectionThatIsCancelledIsNoChange) {
  Run([] {
    RuleNext({weekDayChecks[0], monthChecks[0]}, 0, IDCANCEL);
    Click(fastSelectionButton);
    Click(IDCANCEL);
  });
  EXPECT_FALSE(modified);
}

TEST_F(CalendarDialog, WithoutDayTypesTheListSaysWhereTheyAreMadeAndOkEmptiesTheCalendar) {
  days = Parsed("<dayTypes/>");
  Run([] {
    EXPECT_TRUE(Names(calendarDayTypes).isEmpty());
    RuleNext({weekDayChecks[0], monthChecks[0]}, -1);
    Click(fastSelectionButton);
    Click(IDOK);
  });
  EXPECT_EQ(calendar->ChildsBegin(), calendar->ChildsEnd());
}

TEST_F(CalendarDialog, RunsASecondTimeAsTheFirst) {
  CDlgCalendar dialog(nullptr, calendar.get(), days.get(), hours.get());
  for (int run = 0; run < 2; ++run) {
    Play(dialog, [] {
      EXPECT_EQ(Names(calendarDayTypes).size(), 2);
      EXPECT_EQ(Caption(actionLabel), "");
      ClickRow(calendarDayTypes, 0);
      Click(IDCANCEL);
    });
  }
}

TEST_F(CalendarDialog, ALongNameIsElidedAndToldWhole) {
  const QString name(80, 'M');
  days->Node(L"day?id=w?")->SetValue(L"name", name.toStdWString().c_str());
  Run([&] {
    ClickRow(calendarDayTypes, 0);
    EXPECT_TRUE(Caption(actionLabel).endsWith(QChar(0x2026)));
    EXPECT_EQ(TopControl(actionLabel)->accessibleDescription(), name);
    Click(IDCANCEL);
  });
}

TEST_F(CalendarDialog, IsSizedDownTo400By300AndFillsWhatItHas) {
  Run([] {
    EXPECT_EQ(TopWindow()->minimumSize(), QSize(400, 300));
    const int width = Control()->width();
    TopWindow()->resize(TopWindow()->size() + QSize(200, 100));
    Settle();
    EXPECT_NEAR(Control()->width(), width + 160, 2);
    Click(IDCANCEL);
  });
}

TEST_F(CalendarDialog, ReturnInTheYearOnlyGoesThere) {
  Run([] {
    auto* year = Control()->findChild<QSpinBox*>();
    year->setFocus();
    year->selectAll();
    QTest::keyClicks(year, "1999");
    QTest::keyClick(year, Qt::Key_Return);
    EXPECT_EQ(Control()->GetYear(), 1999);
    Click(IDCANCEL);
  });
}

}  // namespace
}  // namespace qv
