// The dialogs of a discriminator's parts, opened from its editor, down to the file.

#include "tests/editor/ui/EditorFixture.h"

namespace qv {
namespace {

/// Controls of the dialogs of hour types.
constexpr int hourTypeName = 5350;
constexpr int addHourType = 5348;

/// Adds an hour type in the dialog that the next click opens, and ends that dialog by `end`.
void AddHourTypeNext(int end) {
  WhenNextWindow([=] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::HourTypeListTitle));
    WhenNextWindow([] {
      QTest::keyClicks(TopControl(hourTypeName), "peak");
      Click(IDOK);
    });
    Click(addHourType);
    Click(end);
  });
}

TEST_F(Editor, HourTypesAreAddedThroughTheirButtonAndSaved) {
  const QString path = AddFile("1.old.xdct", oldFile);
  Modify(path, [&] {
    AddHourTypeNext(IDOK);
    Click(hourTypesLink);
    EXPECT_EQ(Content("1.old.xdct"), oldFile) << "nothing reaches the disk before OK";
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
  EXPECT_TRUE(Content("1.old.xdct").contains("<name>peak</name>"));
  EXPECT_FALSE(Content("1.old.xdct").contains("<revision>r</revision>"));
}

TEST_F(Editor, HourTypesConfirmedWithoutAChangeKeepTheRevision) {
  const QString path = AddFile("1.old.xdct", oldFile);
  Modify(path, [&] {
    WhenNextWindow([] { Click(IDOK); });
    Click(hourTypesLink);
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
  EXPECT_TRUE(Content("1.old.xdct").contains("<revision>r</revision>"));
}

TEST_F(Editor, CancelledHourTypesLeaveTheDiscriminatorAsItWas) {
  const QString path = AddFile("1.old.xdct", oldFile);
  Modify(path, [&] {
    AddHourTypeNext(IDCANCEL);
    Click(hourTypesLink);
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
  EXPECT_FALSE(Content("1.old.xdct").contains("peak"));
}

TEST_F(Editor, CancellingTheEditorDropsConfirmedHourTypes) {
  const QString path = AddFile("1.old.xdct", oldFile);
  Modify(path, [&] {
    AddHourTypeNext(IDOK);
    Click(hourTypesLink);
    Click(IDCANCEL);
  });
  EXPECT_EQ(Content("1.old.xdct"), oldFile);
}

TEST_F(Editor, ADayTypeWithASlotAndAnHourTypeIsMadeThroughAllEditors) {
  const QString path = AddFile("1.old.xdct", oldFile);
  Modify(path, [&] {
    WhenNextWindow([] {    // the day types
      WhenNextWindow([] {  // a day type
        QTest::keyClicks(TopControl(5299), "whole");
        WhenNextWindow([] {    // a slot
          WhenNextWindow([] {  // an hour type
            QTest::keyClicks(TopControl(hourTypeName), "peak");
            Click(IDOK);
          });
          Click(addHourType);
          auto* hours = qobject_cast<QLineEdit*>(TopControl(5320));
          hours->setFocus();
          hours->selectAll();
          QTest::keyClicks(hours, "24");
          Click(IDOK);
        });
        Click(5348);
        Click(IDOK);
      });
      Click(5348);
      Click(IDOK);
    });
    Click(dayTypesLink);
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
  const QByteArray content = Content("1.old.xdct");
  EXPECT_TRUE(content.contains("<name>whole</name>"));
  EXPECT_TRUE(content.contains("<name>peak</name>"));
  EXPECT_TRUE(content.contains("<to>24:00</to>"));
}

/// Makes a day type with a slot and an hour type, in which each editor ends as told.
void MakeDayType(int daysEnd, int dayEnd, int slotEnd, int hourEnd) {
  WhenNextWindow([=] {    // the day types
    WhenNextWindow([=] {  // a day type
      QTest::keyClicks(TopControl(5299), "whole");
      WhenNextWindow([=] {    // a slot
        WhenNextWindow([=] {  // an hour type
          QTest::keyClicks(TopControl(hourTypeName), "peak");
          Click(hourEnd);
        });
        Click(addHourType);
        QTest::keyClick(TopControl(5320), Qt::Key_Up);
        Click(slotEnd);
      });
      Click(5348);
      if (dayEnd == IDOK) {
        AnswerNextBox(Text::DayNotCoveredQuestion, QMessageBox::Yes);
      }
      Click(dayEnd);
    });
    Click(5348);
    Click(daysEnd);
  });
  Click(dayTypesLink);
}

TEST_F(Editor, CancellingAtAnyLevelTakesBackWhatLiesBelowIt) {
  struct Case {
    int days, day, slot, hour;
    const char* kept;  // of the names that were entered
  };
  Modify(AddFile("1.old.xdct", oldFile), [] { Click(IDOK); });
  const QByteArray untouched = Content("1.old.xdct");
  // An hour type that was made in the editor of a slot outlives a cancel of the day type.
  for (const Case& ends :
       {Case{IDCANCEL, IDOK, IDOK, IDOK, ""}, Case{IDOK, IDCANCEL, IDOK, IDOK, "peak"},
        Case{IDOK, IDOK, IDCANCEL, IDOK, "whole"}, Case{IDOK, IDCANCEL, IDCANCEL, IDOK, ""},
        Case{IDOK, IDOK, IDOK, IDOK, "whole peak"}}) {
    const QString path = AddFile("1.old.xdct", oldFile);
    Modify(path, [&] {
      MakeDayType(ends.days, ends.day, ends.slot, ends.hour);
      Click(IDOK);
    });
    const QByteArray content = Content("1.old.xdct");
    const QByteArray kept = ends.kept;
    EXPECT_EQ(content.contains("<name>whole</name>"), kept.contains("whole")) << ends.kept;
    EXPECT_EQ(content.contains("<name>peak</name>"), kept.contains("peak")) << ends.kept;
    // The list of day types knows nothing of an hour type that was made on the way.
    EXPECT_EQ(modified, kept.contains("whole")) << ends.kept;
    EXPECT_EQ(content.contains("<revision>r</revision>"), !modified) << ends.kept;
    EXPECT_EQ(content == untouched, kept.isEmpty()) << "the whole document";
  }
}

}  // namespace
}  // namespace qv
