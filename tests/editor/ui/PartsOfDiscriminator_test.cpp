// The dialogs of a discriminator's parts, opened from its editor, down to the file.
#include "tests/editor/ui/EditorFixture.h"

namespace qv {
namespace {

/// Makes the hour type "peak" in the editor that the next click opens.
void MakeNextHourType(int end) {
  WhenNextWindow([=] {
    Type(hourName, "peak");
    Click(end);
  });
}

/// Adds that hour type to the list on top, and ends that.
void AddHourType(int end) {
  EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::HourTypeListTitle));
  MakeNextHourType(IDOK);
  Click(addButton);
  Click(end);
}

class PartsOfDiscriminator : public Editor {
 protected:
  /// Modifies the discriminator "old": the button opens one of its parts, in which `play` plays the
  /// user, and then the editor ends.
  void PlayIn(int link, const std::function<void()>& play, int end) {
    Modify(PutOldFile(), [&] {
      WhenNextWindow(play);
      Click(link);
      EXPECT_EQ(Saved(), oldFile) << "nothing reaches the disk before OK";
      Click(end);
    });
  }

  void PlayInHourTypes(const std::function<void()>& play, int end) {
    PlayIn(hourTypesLink, play, end);
  }

  QByteArray Saved() const { return Content("1.old.xdct"); }
};

TEST_F(PartsOfDiscriminator, AConfirmedCalendarIsAChangeEvenWithoutOne) {
  PlayIn(
      calendarLink,
      [] {
        EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::CalendarTitle));
        Click(IDOK);
      },
      IDOK);
  EXPECT_TRUE(modified);
  EXPECT_FALSE(Saved().contains("<revision>r</revision>"));
}

TEST_F(PartsOfDiscriminator, ACancelledCalendarKeepsTheRevision) {
  PlayIn(
      calendarLink, [] { Click(IDCANCEL); }, IDOK);
  EXPECT_FALSE(modified);
  EXPECT_TRUE(Saved().contains("<revision>r</revision>"));
}

TEST_F(PartsOfDiscriminator, DatesAreMarkedThroughTheButtonOfTheCalendarAndSaved) {
  QByteArray file = oldFile;
  file.replace("<dayTypes/>", "<dayTypes><day><id>w</id><name>Work</name></day></dayTypes>");
  Modify(PutFile("1.old.xdct", file), [] {
    WhenNextWindow([] {
      WhenNextWindow([] {
        TopControl<QAbstractButton>(weekDayChecks[0])->click();
        TopControl<QAbstractButton>(monthChecks[0])->click();
        Click(IDOK);
      });
      Click(fastSelectionButton);
      Click(IDOK);
    });
    Click(calendarLink);
    Click(IDOK);
  });
  EXPECT_TRUE(Saved().contains("<month1>"));
  EXPECT_TRUE(Saved().contains(">w</day"));
}

TEST_F(PartsOfDiscriminator, HourTypesAreAddedThroughTheirButtonAndSaved) {
  PlayInHourTypes([] { AddHourType(IDOK); }, IDOK);
  EXPECT_TRUE(modified);
  EXPECT_TRUE(Saved().contains("<name>peak</name>"));
  EXPECT_FALSE(Saved().contains("<revision>r</revision>"));
}

TEST_F(PartsOfDiscriminator, HourTypesConfirmedWithoutAChangeKeepTheRevision) {
  PlayInHourTypes([] { Click(IDOK); }, IDOK);
  EXPECT_FALSE(modified);
  EXPECT_TRUE(Saved().contains("<revision>r</revision>"));
}

TEST_F(PartsOfDiscriminator, CancelledHourTypesLeaveTheDiscriminatorAsItWas) {
  PlayInHourTypes([] { AddHourType(IDCANCEL); }, IDOK);
  EXPECT_FALSE(modified);
  EXPECT_FALSE(Saved().contains("peak"));
}

TEST_F(PartsOfDiscriminator, CancellingTheEditorDropsConfirmedHourTypes) {
  PlayInHourTypes([] { AddHourType(IDOK); }, IDCANCEL);
  EXPECT_EQ(Saved(), oldFile);
}

/// A day type "whole" that is made of one slot of a new hour type: when the slot ends, and how each
/// editor does.
struct NewDayType {
  QString toHour = "1";
  int days = IDOK;
  int day = IDOK;
  int slot = IDOK;
  int hour = IDOK;

  /// Whether the user is asked about a rest of the day without slots.
  bool IsAskedAbout() const { return day == IDOK && (slot != IDOK || toHour != "24"); }
};

void MakeNextSlot(const NewDayType& made) {
  WhenNextWindow([=] {
    MakeNextHourType(made.hour);
    Click(addButton);
    Type(toHours, made.toHour);
    Click(made.slot);
  });
}

void MakeNextDayType(const NewDayType& made) {
  WhenNextWindow([=] {
    Type(dayName, "whole");
    MakeNextSlot(made);
    Click(addButton);
    if (made.IsAskedAbout()) {
      AnswerNextBox(Text::DayNotCoveredQuestion, QMessageBox::Yes);
    }
    Click(made.day);
  });
}

/// Makes the day type, from the editor of the discriminator on.
void MakeDayType(const NewDayType& made) {
  WhenNextWindow([=] {
    MakeNextDayType(made);
    Click(addButton);
    Click(made.days);
  });
  Click(dayTypesLink);
  Click(IDOK);
}

TEST_F(PartsOfDiscriminator, ADayTypeWithASlotAndAnHourTypeIsMadeThroughAllEditors) {
  Modify(PutOldFile(), [] { MakeDayType({.toHour = "24"}); });
  EXPECT_TRUE(modified);
  EXPECT_TRUE(Saved().contains("<name>whole</name>"));
  EXPECT_TRUE(Saved().contains("<name>peak</name>"));
  EXPECT_TRUE(Saved().contains("<to>24:00</to>"));
}

TEST_F(PartsOfDiscriminator, CancellingAtAnyLevelTakesBackWhatLiesBelowIt) {
  const std::pair<NewDayType, QByteArray> cases[] = {
      {{.days = IDCANCEL}, ""},
      // An hour type that was made in the editor of a slot outlives a cancel of the day type.
      {{.day = IDCANCEL}, "peak"},
      {{.slot = IDCANCEL}, "whole"},
      {{.day = IDCANCEL, .slot = IDCANCEL}, ""},
      {{}, "whole peak"}};
  Modify(PutOldFile(), [] { Click(IDOK); });
  const QByteArray untouched = Saved();
  for (const auto& [made, kept] : cases) {
    SCOPED_TRACE("kept: " + kept.toStdString());
    Modify(PutOldFile(), [&made = made] { MakeDayType(made); });
    EXPECT_EQ(Saved().contains("<name>whole</name>"), kept.contains("whole"));
    EXPECT_EQ(Saved().contains("<name>peak</name>"), kept.contains("peak"));
    // The list of day types knows nothing of an hour type that was made on the way.
    EXPECT_EQ(modified, kept.contains("whole"));
    EXPECT_EQ(Saved().contains("<revision>r</revision>"), !modified);
    EXPECT_EQ(Saved() == untouched, kept.isEmpty()) << "the whole document";
  }
}

}  // namespace
}  // namespace qv
