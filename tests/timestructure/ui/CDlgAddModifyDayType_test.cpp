#include "timestructure/ui/CDlgAddModifyDayType.h"

#include "tests/timestructure/ui/DayTypesFixture.h"
#include "timestructure/ui/CDlgDayTypes.h"

namespace qv {
namespace {

class DayTypeEditor : public DayTypesFixture {
 protected:
  int Run(XmlNode& day, const std::function<void()>& script) {
    CDlgAddModifyDayType editor(nullptr, &day, days.get(), hours.get());
    return Play(editor, script);
  }

  /// Lets the slot editor that comes next take these times, and ends it by `end`.
  static void SlotNext(const QString& from, const QString& to, int end = IDOK) {
    WhenNextWindow([=] {
      Type(fromHours, from);
      Type(toHours, to);
      Click(end);
    });
  }

  static QColor DialAt(double x, double y) {
    const QImage picture = TopControl(dayDial)->grab().toImage();
    return picture.pixelColor(static_cast<int>(picture.width() * x),
                              static_cast<int>(picture.height() * y));
  }
};

TEST_F(DayTypeEditor, ShowsNameSlotsAndDial) {
  const int result = Run(Day(L"work"), [] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::ModifyDayTypeTitle));
    EXPECT_EQ(Edit(dayName)->text(), "work");
    EXPECT_EQ(Rows(typeList), QStringList({"peak 00:00 12:00", "valley 12:00 24:00"}));
    EXPECT_EQ(DialAt(0.25, 0.45), QColor(Qt::red));
    EXPECT_EQ(DialAt(0.75, 0.45), QColor(Qt::blue));
    EXPECT_FALSE(TopControl(modifyButton)->isEnabled());
    EXPECT_EQ(List(typeList)->headerItem()->text(1), TitleOf(Text::From));
    EXPECT_EQ(Caption(dialBox), TitleOf(Text::Diagram));
    EXPECT_EQ(Caption(slotsBox), TitleOf(Text::TimeSlots));
    Click(IDOK);
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_FALSE(modified);
  EXPECT_EQ(*days, daysBefore);
}

TEST_F(DayTypeEditor, SlotsAreAddedChangedAndRemoved) {
  Run(Day(L"feast"), [] {
    SlotNext("0", "6");
    Click(addButton);
    SlotNext("6", "20");
    Press(typeList, Qt::Key_Insert);
    EXPECT_EQ(Rows(typeList), QStringList({"peak 00:00 06:00", "peak 06:00 20:00"}));
    EXPECT_EQ(DialAt(0.3, 0.45), QColor(Qt::red));
    ClickRow(typeList, 1);
    SlotNext("6", "23");
    Click(modifyButton);
    EXPECT_EQ(Rows(typeList).last(), "peak 06:00 23:00");
    EXPECT_TRUE(SelectedRows(typeList).empty());
    EXPECT_FALSE(TopControl(removeButton)->isEnabled());
    ClickRow(typeList, 0);
    Press(typeList, Qt::Key_Delete);
    EXPECT_EQ(Rows(typeList), QStringList("peak 06:00 23:00"));
    EXPECT_EQ(SelectedRows(typeList), std::vector<int>{0});
    AnswerNextBox(Text::DayNotCoveredQuestion, QMessageBox::Yes);
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
  EXPECT_EQ(Day(L"feast").Node(L"slot")->Value(L"to"), L"23:00");
}

TEST_F(DayTypeEditor, ACancelledSlotLeavesNothingBehind) {
  Run(Day(L"work"), [] {
    SlotNext("1", "2", IDCANCEL);
    Click(addButton);
    ClickRow(typeList, 0);
    SlotNext("1", "2", IDCANCEL);
    Click(modifyButton);
    EXPECT_EQ(SelectedRows(typeList), std::vector<int>{0});
    Click(IDOK);
  });
  EXPECT_EQ(*days, daysBefore);
  EXPECT_FALSE(modified);
}

TEST_F(DayTypeEditor, FaultsAreToldBeforeTheWindowShowsAndGapsOnlyAtOk) {
  Day(L"work").Node(L"slot")->SetValue(L"to", L"13:00");
  Day(L"feast").NewChild(L"other", nullptr);
  CDlgAddModifyDayType editor(nullptr, &Day(L"work"), days.get(), hours.get());
  Play(editor, [&] {
    EXPECT_FALSE(editor.isVisible());
    WhenNextWindow([] { Click(IDCANCEL); });
    AnswerBox(Text::SlotsOverlap, QMessageBox::Ok);
  });
  EXPECT_FALSE(modified);
  Run(Day(L"feast"), [] {
    EXPECT_TRUE(Rows(typeList).isEmpty());
    AnswerNextBox(Text::DayNotCoveredQuestion, QMessageBox::No);
    Click(IDOK);
    AnswerNextBox(Text::DayNotCoveredQuestion, QMessageBox::Yes);
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
}

TEST_F(DayTypeEditor, TheLaterOfTwoSlotsThatOverlapIsTheCurrentRowUnselected) {
  const auto expectLaterIsCurrent = [] {
    EXPECT_EQ(List(typeList)->currentIndex().row(), 1);
    EXPECT_TRUE(SelectedRows(typeList).empty());
  };
  Day(L"work").Node(L"slot")->SetValue(L"to", L"13:00");
  CDlgAddModifyDayType editor(nullptr, &Day(L"work"), days.get(), hours.get());
  Play(editor, [&] {
    WhenNextWindow([&] {
      expectLaterIsCurrent();
      List(typeList)->setCurrentItem(nullptr);
      AnswerNextBox(Text::SlotsOverlap, QMessageBox::Ok);
      Click(IDOK);
      expectLaterIsCurrent();
      Click(IDCANCEL);
    });
    AnswerBox(Text::SlotsOverlap, QMessageBox::Ok);
  });
}

TEST_F(DayTypeEditor, SlotsOfARemovedHourTypeAreGone) {
  hours->RemoveChild(hours->NodeV(L"hour?id=%s?", L"p"));
  Run(Day(L"work"), [] {
    EXPECT_EQ(Rows(typeList), QStringList("valley 12:00 24:00"));
    Click(IDCANCEL);
  });
  EXPECT_FALSE(modified);
}

TEST_F(DayTypeEditor, MalformedTimesAreShownAsMidnightWhileTheDialReadsThem) {
  Day(L"work").Node(L"slot")->SetValue(L"from", L"7:30");
  Run(Day(L"work"), [] {
    EXPECT_EQ(Rows(typeList).first(), "peak 00:00 12:00");
    EXPECT_EQ(DialAt(0.3, 0.45), QColor(0xFF, 0xCC, 0x80)) << "nothing before half past seven";
    Click(IDOK);
  });
  EXPECT_EQ(Day(L"work").Node(L"slot")->Value(L"from"), L"7:30");
}

TEST_F(DayTypeEditor, AColourIsChosenForSwatchAndDial) {
  Run(Day(L"feast"), [] {
    ChooseNextColour(QColor(1, 2, 3));
    Click(daySwatch);
    EXPECT_EQ(DialAt(0.25, 0.5), QColor(1, 2, 3));
    AnswerNextBox(Text::DayNotCoveredQuestion, QMessageBox::Yes);
    Click(IDOK);
  });
  EXPECT_EQ(Day(L"feast").Value(L"color"), L"030201");
  EXPECT_TRUE(modified);
}

TEST_F(DayTypeEditor, ARefusedNameStaysInTheEditor) {
  Run(Day(L"work"), [] {
    Type(dayName, "feast");
    AnswerNextBox(Text::TypeNameTaken, QMessageBox::Ok);
    Click(IDOK);
    Edit(dayName)->clear();
    AnswerNextBox(Text::DayTypeNameMissing, QMessageBox::Ok);
    Click(IDOK);
    Click(IDCANCEL);
  });
  EXPECT_EQ(*days, daysBefore);
}

TEST_F(DayTypeEditor, AnHourTypeMadeInTheSlotEditorOutlivesACancel) {
  XmlDocument copy(Day(L"work"));
  Run(*copy.Root(), [] {
    WhenNextWindow([] {
      WhenNextWindow([] {
        Type(hourName, "new");
        Click(IDOK);
      });
      Click(addButton);
      Click(IDOK);
    });
    Click(addButton);
    Click(IDCANCEL);
  });
  EXPECT_TRUE(hours->NodeV(L"hour?name=%s?", L"new"));
  EXPECT_EQ(*days, daysBefore);
}

TEST_F(DayTypeEditor, ThousandsOfSlotsOfAnyTextOpen) {
  const wchar_t* const texts[] = {L"", L"7:30", L"99:99", L"-1:-1", L"zz:zz", L"00:00", L"24:00"};
  static constexpr int count = 3000;
  XmlNode& day = Day(L"feast");
  for (int i = 0; i < count; ++i) {
    XmlNode* slot = day.NewChild(L"slot", nullptr);
    slot->SetValue(L"id", L"p");
    slot->SetValue(L"from", texts[i % 7]);
    slot->SetValue(L"to", texts[i % 5]);
  }
  hours->Node(L"hour")->SetValue(L"color", L"no colour");
  Run(day, [] {
    WhenNextWindow([] {
      EXPECT_EQ(List(typeList)->topLevelItemCount(), count);
      Settle();
      Click(IDCANCEL);
    });
    AnswerBox(Text::SlotHourOutOfRange, QMessageBox::Ok);
  });
}

TEST_F(DayTypeEditor, ColumnsAndSizesFollowTheWindow) {
  Run(Day(L"work"), [] {
    const QSize opened = TopWindow()->size();
    EXPECT_EQ(TopWindow()->minimumSize(), opened);
    for (const QSize size : {opened, QSize(1000, 700)}) {
      TopWindow()->resize(size);
      Settle();
      const int room = List(typeList)->viewport()->width();
      EXPECT_EQ(List(typeList)->columnWidth(0), room / 3);
      EXPECT_EQ(List(typeList)->columnWidth(1), room / 3);
      EXPECT_EQ(List(typeList)->columnWidth(2), room - 2 * (room / 3));
      EXPECT_TRUE(TopControl(dialBox)->geometry().contains(TopControl(dayDial)->geometry()));
    }
    Click(IDCANCEL);
  });
}

class DayTypeList : public DayTypesFixture {
 protected:
  int Run(const std::function<void()>& script) {
    CDlgDayTypes dialog(nullptr, days.get(), calendar.get(), hours.get());
    return Play(dialog, script);
  }

  const std::unique_ptr<XmlNode> calendar = Parsed("<calendar><year/></calendar>");
};

TEST_F(DayTypeList, ListsAndRemovesDayTypesAndLeavesTheCalendar) {
  EXPECT_EQ(Run([] {
              EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::DayTypeListTitle));
              EXPECT_EQ(Caption(dayTypesBox), TitleOf(Text::DayTypes));
              EXPECT_EQ(Rows(typeList), QStringList({"feast", "work"}));
              EXPECT_EQ(TopWindow()->minimumSize(), QSize(200, 300));
              ClickRow(typeList, 1);
              Click(removeButton);
              EXPECT_EQ(Rows(typeList), QStringList("feast"));
              Click(IDOK);
            }),
            IDOK);
  EXPECT_TRUE(modified);
  EXPECT_TRUE(calendar->Node(L"year"));
}

TEST_F(DayTypeList, ACancelledNewDayTypeTakesItsSlotsAlong) {
  Run([] {
    WhenNextWindow([] {
      EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::AddDayTypeTitle));
      WhenNextWindow([] { Click(IDOK); });
      Click(addButton);
      EXPECT_EQ(Rows(typeList).size(), 1);
      Click(IDCANCEL);
    });
    Click(addButton);
    Click(IDOK);
  });
  EXPECT_EQ(*days, daysBefore);
  EXPECT_FALSE(modified);
}

TEST_F(DayTypeList, ChangesToACopyComeBackAfterOk) {
  Run([] {
    ClickRow(typeList, 1);
    WhenNextWindow([] {
      ClickRow(typeList, 0);
      Click(removeButton);
      AnswerNextBox(Text::DayNotCoveredQuestion, QMessageBox::Yes);
      Click(IDOK);
    });
    Click(modifyButton);
    ClickRow(typeList, 1);
    WhenNextWindow([] {
      EXPECT_EQ(Rows(typeList), QStringList("valley 12:00 24:00"));
      ClickRow(typeList, 0);
      Click(removeButton);
      Click(IDCANCEL);
    });
    Click(modifyButton);
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
  EXPECT_EQ(std::distance(Day(L"work").ChildsBegin(), Day(L"work").ChildsEnd()), 4);
}

TEST_F(DayTypeList, ANewDayTypeHasWhatWasEntered) {
  Run([] {
    WhenNextWindow([] {
      Type(dayName, "new");
      AnswerNextBox(Text::DayNotCoveredQuestion, QMessageBox::Yes);
      Click(IDOK);
    });
    Press(typeList, Qt::Key_Insert);
    EXPECT_EQ(Rows(typeList), QStringList({"feast", "new", "work"}));
    Click(IDOK);
  });
  EXPECT_EQ(Day(L"new").Value(L"color"), L"FFFFFF");
}

}  // namespace
}  // namespace qv
