#include "timestructure/ui/CDlgAddModifyTimeSlot.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QToolButton>

#include "tests/timestructure/ui/DayTypesFixture.h"
#include "timestructure/TimeGrid.h"
#include "toolkit/SpinButtons.h"

namespace qv {
namespace {

class SlotEditor : public DayTypesFixture {
 protected:
  int Run(const std::string& id, const std::string& from, const std::string& to,
          const std::function<void()>& script) {
    slot = Parsed("<slot><id>" + id + "</id><from>" + from + "</from><to>" + to + "</to></slot>");
    CDlgAddModifyTimeSlot editor(nullptr, hours.get(), slot.get(), 0x80CCFF);
    return Play(editor, script);
  }

  /// Lets `play` select in a slot that starts at midnight and ends at `to`, and cancels that.
  void SelectIn(const std::string& to, const std::function<void()>& play) {
    Run("p", "00:00", to, [&] {
      play();
      Click(IDCANCEL);
    });
  }

  std::wstring Stored() const {
    return std::wstring(slot->Value(L"id").ToView()) + L" " +
           std::wstring(slot->Value(L"from").ToView()) + L"-" +
           std::wstring(slot->Value(L"to").ToView());
  }

  static QString Shown() {
    return Edit(fromHours)->text() + ":" + Edit(fromMinutes)->text() + "-" + Edit(toHours)->text() +
           ":" + Edit(toMinutes)->text();
  }

  /// A minute of the day.
  static int At(int hours, int minutes) { return hours * 60 + minutes; }

  /// The middle of the quarter that starts at this minute, in the dialog.
  static QPoint Cell(int minute) {
    const QWidget* box = TopControl(gridBox);
    const TimeGrid grid(box->width(), box->height());
    for (int x = 0; x < box->width(); ++x) {
      for (int y = 0; y < box->height(); ++y) {
        if (grid.MinuteAt({x, y}) == minute) {
          return box->mapTo(TopWindow(), QPoint(x + 3, y + 3));
        }
      }
    }
    ADD_FAILURE() << "no such cell";
    return {};
  }

  static void PressCell(int minute) {
    QTest::mousePress(TopWindow(), Qt::LeftButton, {}, Cell(minute));
  }
  static void MoveTo(const QPoint& place, Qt::MouseButtons buttons = Qt::LeftButton) {
    QMouseEvent event(QEvent::MouseMove, place, TopWindow()->mapToGlobal(place), Qt::NoButton,
                      buttons, {});
    QApplication::sendEvent(TopWindow(), &event);
  }
  static void Release(const QPoint& place) {
    QTest::mouseRelease(TopWindow(), Qt::LeftButton, {}, place);
  }

  static void ClickArrow(int spin, Qt::ArrowType arrow) {
    for (auto* button : TopControl(spin)->findChildren<QToolButton*>()) {
      if (button->arrowType() == arrow) {
        QTest::mouseClick(button, Qt::LeftButton);
      }
    }
  }

  /// The colour of the picture at the middle of a quarter.
  static QColor ColourAt(int minute) {
    return TopWindow()->grab().toImage().pixelColor(Cell(minute));
  }

  /// The colour there that stands on the screen, without painting anything for it.
  static QColor ColourOnScreen(int minute) {
    return TopWindow()
        ->screen()
        ->grabWindow(TopWindow()->winId())
        .toImage()
        .pixelColor(Cell(minute));
  }

  std::unique_ptr<XmlNode> slot;
};

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
