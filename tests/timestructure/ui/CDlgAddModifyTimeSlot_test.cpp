#include "timestructure/ui/CDlgAddModifyTimeSlot.h"

#include <QToolTip>

#include "discriminator/ValueForms.h"
#include "tests/timestructure/ui/SlotEditorFixture.h"
#include "toolkit/SpinButtons.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

const QColor slotColour(Qt::red);
const QColor dayColour(0xFF, 0xCC, 0x80);

TEST_F(SlotEditor, ANewSlotIsStoredAsItOpens) {
  EXPECT_EQ(Run("", "00:00", "00:00",
                [] {
                  EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::AddSlotTitle));
                  EXPECT_EQ(Shown(), "0:0-0:0");
                  EXPECT_EQ(Combo(slotTypeCombo)->currentText(), "peak");
                  EXPECT_EQ(Combo(slotTypeCombo)->count(), 2);
                  Click(IDOK);
                }),
            IDOK);
  EXPECT_EQ(Stored(), L"p 00:00-00:00");
  EXPECT_FALSE(modified);
}

TEST_F(SlotEditor, EachControlHasItsText) {
  Run("v", "01:00", "24:00", [] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::ModifySlotTitle));
    EXPECT_EQ(Caption(slotTypeLabel), TitleOf(Text::HourTypes));
    EXPECT_EQ(Caption(fromLabel), TitleOf(Text::From));
    EXPECT_EQ(Caption(toLabel), TitleOf(Text::To));
    EXPECT_EQ(Caption(addButton), TitleOf(Text::Add));
    EXPECT_EQ(Edit(fromHours)->accessibleName(), TitleOf(Text::From));
    EXPECT_EQ(Combo(slotTypeCombo)->currentText(), "valley");
    EXPECT_FALSE(TopControl(toMinutesSpin)->isEnabled());
    EXPECT_TRUE(Edit(toMinutes)->isEnabled()) << "only the spin is locked";
    Click(IDCANCEL);
  });
}

TEST_F(SlotEditor, ItsFieldsAreCalledByEdgeAndUnitWhereTheLanguageHasThem) {
  host->loadString.additions = {Text::SlotHours, Text::SlotMinutes};
  Run("p", "01:00", "02:00", [] {
    EXPECT_EQ(Edit(fromHours)->accessibleName(),
              TitleOf(Text::From) + ", " + TitleOf(Text::SlotHours));
    EXPECT_EQ(Edit(toMinutes)->accessibleName(),
              TitleOf(Text::To) + ", " + TitleOf(Text::SlotMinutes));
    EXPECT_EQ(TopControl(toMinutesSpin)->accessibleName(),
              TitleOf(Text::To) + ", " + TitleOf(Text::SlotMinutes));
    Click(IDCANCEL);
  });
}

TEST_F(SlotEditor, ItsFieldsTellTheirUnitInTheirTooltips) {
  host->loadString.additions = {Text::SlotHours, Text::SlotMinutes};
  Run("p", "01:00", "02:00", [] {
    for (const int field : {fromHours, toHours, toHoursSpin}) {
      EXPECT_EQ(TopControl(field)->toolTip(), "<p>" + TitleOf(Text::SlotHours) + "</p>");
    }
    for (const int field : {fromMinutes, toMinutes, toMinutesSpin}) {
      EXPECT_EQ(TopControl(field)->accessibleDescription(), TitleOf(Text::SlotMinutes));
    }
    Click(IDCANCEL);
  });
}

TEST_F(SlotEditor, ThePointerIsACrossOverTheGridAndItsTimeIsTold) {
  Run("p", "00:00", "24:00", [] {
    QWidget* window = TopWindow();
    const QRect box = TopControl(gridBox)->geometry();
    const auto moveTo = [window](const QPoint& place, Qt::MouseButtons buttons = Qt::NoButton) {
      QMouseEvent move(QEvent::MouseMove, place, window->mapToGlobal(place), Qt::NoButton, buttons,
                       Qt::NoModifier);
      QApplication::sendEvent(window, &move);
    };
    moveTo(box.center());
    EXPECT_EQ(window->cursor().shape(), Qt::CrossCursor);
    const TimeGrid grid(box.width(), box.height());
    const QPoint middle = box.center() - box.topLeft();
    const int minute = grid.MinuteAt({middle.x(), middle.y()}).value();
    EXPECT_EQ(QToolTip::text(), ToQString(TimeText(minute)));
    for (const int id : {IDOK, slotTypeCombo, toHoursSpin}) {
      EXPECT_EQ(TopControl(id)->cursor().shape(), Qt::ArrowCursor) << id;
    }
    moveTo(QPoint(1, 1));
    EXPECT_EQ(window->cursor().shape(), Qt::ArrowCursor);
    const auto isGone = [] { return QTest::qWaitFor([] { return !QToolTip::isVisible(); }); };
    EXPECT_TRUE(isGone());
    moveTo(box.center(), Qt::LeftButton);
    EXPECT_TRUE(isGone()) << "the fields tell it while a button is down";
    Click(IDCANCEL);
  });
}

TEST_F(SlotEditor, TimesAreTypedAndTheHourTypeChosen) {
  Run("", "00:00", "00:00", [] {
    Type(fromHours, "7");
    Type(fromMinutes, "30");
    Type(toHours, "8x5");  // digits only
    EXPECT_EQ(Edit(toHours)->text(), "85");
    Press(toHours, Qt::Key_Tab);
    EXPECT_EQ(Edit(toHours)->text(), "24");
    EXPECT_FALSE(TopControl(toMinutesSpin)->isEnabled());
    Combo(slotTypeCombo)->setFocus();
    Press(slotTypeCombo, Qt::Key_Down);
    Click(IDOK);
  });
  EXPECT_EQ(Stored(), L"v 07:30-24:00");
  EXPECT_TRUE(modified);
}

TEST_F(SlotEditor, ATyped24WithMinutesIsStored) {
  Run("p", "00:00", "01:00", [] {
    Type(toHours, "24");
    Type(toMinutes, "30");
    Press(toMinutes, Qt::Key_Return);
  });
  EXPECT_EQ(Stored(), L"p 00:00-24:30");
}

TEST_F(SlotEditor, ReturnSavesAnEmptiedFieldByItsLastNumber) {
  Run("p", "07:30", "08:00", [] {
    Edit(fromHours)->setFocus();
    Edit(fromHours)->selectAll();
    Press(fromHours, Qt::Key_Delete);
    Press(fromHours, Qt::Key_Return);
  });
  EXPECT_EQ(Stored(), L"p 07:30-08:00");
}

TEST_F(SlotEditor, ArrowsKeysAndWheelStep) {
  Run("p", "00:00", "23:10", [] {
    ClickArrow(toHoursSpin, Qt::UpArrow);
    EXPECT_EQ(Shown(), "0:0-24:0");
    EXPECT_FALSE(TopControl(toMinutesSpin)->isEnabled());
    ClickArrow(toMinutesSpin, Qt::UpArrow);
    ClickArrow(toHoursSpin, Qt::DownArrow);
    EXPECT_EQ(Shown(), "0:0-23:0");
    Edit(fromHours)->setFocus();
    Press(fromHours, Qt::Key_Up);
    Press(fromHours, Qt::Key_Up);
    Press(fromHours, Qt::Key_Down);
    EXPECT_EQ(Shown(), "1:0-23:0");
    TurnWheel(fromHours, 120);
    TurnWheel(fromHoursSpin, 120);
    EXPECT_EQ(Shown(), "3:0-23:0");
    Click(IDCANCEL);
  });
  EXPECT_TRUE(modified);
}

TEST_F(SlotEditor, AStartAfterItsEndIsToldAndTheEditorStays) {
  Run("p", "09:00", "08:00", [] {
    AnswerNextBox(Text::SlotStartAfterEnd, QMessageBox::Ok);
    Click(IDOK);
    EXPECT_EQ(Shown(), "9:0-8:0");
    Click(IDCANCEL);
  });
}

TEST_F(SlotEditor, WithoutHourTypesOnlyTheirButtonWorks) {
  hours->Reset();
  Run("", "00:00", "00:00", [] {
    ExpectEnabled({addButton}, {slotTypeCombo, fromHours, fromMinutes, toHours, toMinutes,
                                fromHoursSpin, fromMinutesSpin, toHoursSpin, toMinutesSpin});
    AnswerNextBox(Text::NoHourType, QMessageBox::Ok);
    Click(IDOK);
    WhenNextWindow([] { Click(IDCANCEL); });
    Click(addButton);
    EXPECT_FALSE(Combo(slotTypeCombo)->isEnabled());
    WhenNextWindow([] {
      Type(hourName, "new");
      Click(IDOK);
    });
    Click(addButton);
    EXPECT_EQ(Combo(slotTypeCombo)->currentText(), "new");
    EXPECT_TRUE(Edit(toMinutes)->isEnabled());
    Click(IDOK);
  });
  ASSERT_TRUE(hours->Node(L"hour"));
  EXPECT_EQ(slot->Value(L"id"), hours->Node(L"hour")->Value(L"id", L"?"));
}

TEST_F(SlotEditor, AClickOnTheGridSelectsAQuarter) {
  Run("p", "00:00", "00:00", [] {
    PressCell(At(10, 15));
    Release(Cell(At(10, 15)));
    EXPECT_EQ(Shown(), "10:15-10:30");
    EXPECT_EQ(ColourAt(At(10, 15)), slotColour);
    EXPECT_EQ(ColourAt(At(10, 30)), dayColour);
    Click(IDOK);
  });
  EXPECT_EQ(Stored(), L"p 10:15-10:30");
  EXPECT_TRUE(modified);
}

TEST_F(SlotEditor, ADragFollowsThePointerAndEndsWithTheButton) {
  SelectIn("00:00", [] {
    PressCell(At(10, 15));
    MoveTo(Cell(At(12, 30)));
    EXPECT_EQ(Shown(), "10:15-12:45");
    MoveTo(Cell(At(9, 0)));
    EXPECT_EQ(Shown(), "9:0-10:30");
    MoveTo(QPoint(1, 1));
    EXPECT_EQ(Shown(), "9:0-10:30");
    Release(QPoint(1, 1));
    MoveTo(Cell(At(20, 0)), Qt::NoButton);
    EXPECT_EQ(Shown(), "9:0-10:30");
  });
}

TEST_F(SlotEditor, AReleaseOutsideTheDialogLetsTheSelectionGoOnUntilTheNextPress) {
  SelectIn("00:00", [] {
    PressCell(At(10, 0));
    Release(QPoint(-20, -20));
    MoveTo(Cell(At(11, 0)), Qt::NoButton);
    EXPECT_EQ(Shown(), "10:0-11:15");
    PressCell(At(15, 0));
    MoveTo(Cell(At(16, 0)), Qt::NoButton);
    EXPECT_EQ(Shown(), "10:0-11:15") << "the press only ended it";
  });
}

TEST_F(SlotEditor, APressBesideTheGridEndsARunningSelection) {
  SelectIn("00:00", [] {
    PressCell(At(10, 0));
    Release(QPoint(-20, -20));
    QTest::mousePress(TopWindow(), Qt::LeftButton, {}, QPoint(2, 2));
    MoveTo(Cell(At(11, 0)), Qt::NoButton);
    EXPECT_EQ(Shown(), "10:0-10:15");
  });
}

TEST_F(SlotEditor, LockedMinutesStayAtZeroWhileDragging) {
  SelectIn("24:00", [] {
    PressCell(At(10, 15));
    MoveTo(Cell(At(12, 15)));
    EXPECT_EQ(Shown(), "10:15-12:0");
  });
}

TEST_F(SlotEditor, AReleaseLeavesWhatTheDragShowedUntilTheNextPaint) {
  SelectIn("24:00", [] {
    PressCell(At(10, 15));
    MoveTo(Cell(At(12, 15)));
    Release(Cell(At(12, 15)));
    EXPECT_EQ(Shown(), "10:15-12:0") << "the locked minutes";
    EXPECT_EQ(ColourOnScreen(At(12, 15)), slotColour);
    QTest::qWait(50);
    EXPECT_EQ(ColourOnScreen(At(12, 15)), slotColour) << "no paint of its own";
    TopWindow()->update();
    EXPECT_TRUE(QTest::qWaitFor([] { return ColourOnScreen(At(12, 15)) == dayColour; }));
    EXPECT_EQ(ColourOnScreen(At(11, 45)), slotColour);
  });
}

TEST_F(SlotEditor, AClickThatLockedMinutesTurnAroundIsGoneWithTheNextPaint) {
  SelectIn("24:00", [] {
    PressCell(At(10, 15));
    Release(Cell(At(10, 15)));
    EXPECT_EQ(Shown(), "10:15-10:0");
    EXPECT_EQ(ColourOnScreen(At(10, 15)), slotColour);
    EXPECT_EQ(ColourAt(At(10, 15)), dayColour);
  });
}

TEST_F(SlotEditor, AChangedFieldIsShownAfterADrag) {
  SelectIn("24:00", [] {
    PressCell(At(10, 15));
    Release(Cell(At(10, 15)));
    Type(toHours, "11");
    EXPECT_EQ(ColourOnScreen(At(10, 45)), slotColour);
    EXPECT_EQ(ColourOnScreen(At(11, 0)), dayColour);
    ClickArrow(toHoursSpin, Qt::DownArrow);
    EXPECT_EQ(ColourOnScreen(At(10, 15)), dayColour);
  });
}

TEST_F(SlotEditor, ItHasAFixedSizeAndNothingOverlaps) {
  Run("p", "00:00", "24:00", [] {
    EXPECT_EQ(TopWindow()->minimumSize(), TopWindow()->maximumSize());
    const int ids[] = {slotTypeCombo,   addButton, fromHours,   fromHoursSpin, fromMinutes,
                       fromMinutesSpin, toHours,   toHoursSpin, toMinutes,     toMinutesSpin,
                       gridBox,         IDOK,      IDCANCEL};
    for (const int a : ids) {
      EXPECT_TRUE(TopWindow()->rect().contains(TopControl(a)->geometry())) << a;
      for (const int b : ids) {
        EXPECT_TRUE(a == b || !TopControl(a)->geometry().intersects(TopControl(b)->geometry()))
            << a << " " << b;
      }
    }
    Click(IDCANCEL);
  });
}

TEST(SlotEditorAlone, WithoutAHostItGivesMinusOne) {
  XmlNode hours(L"hourTypes");
  XmlNode slot(L"slot");
  CDlgAddModifyTimeSlot editor(nullptr, &hours, &slot, 0);
  EXPECT_EQ(editor.DoModal(), -1);
}

}  // namespace
}  // namespace qv
