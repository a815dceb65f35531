#include "editor/ui/CDlgAddModifyDiscriminator.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

constexpr int calendarLink = 5004;
constexpr int dayTypesLink = 5005;
constexpr int hourTypesLink = 5006;
constexpr int conditionsLink = 5008;
constexpr int descriptionLabel = 5266;
constexpr int descriptionEdit = 5267;
constexpr int nameLabel = 5268;
constexpr int typeLabel = 5269;
constexpr int nameEdit = 5270;
constexpr int setZeroCheck = 5346;
constexpr int typeCombo = 5351;

class Editor : public testing::Test {
 protected:
  void SetUp() override {
    host->setup.cfgPath = ToWide(directory.path() + QLatin1Char('/'));
    deviceGroups.Create(L"deviceGroups");
  }

  /// Puts a file into the directory and returns its path.
  QString AddFile(const QString& name, const QByteArray& content) {
    const QString path = directory.filePath(name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return path;
  }

  int Add(const std::function<void()>& script) {
    CDlgAddModifyDiscriminator editor(deviceGroups.Root(), nullptr, nullptr);
    const int result = Drive([&] { return editor.DoModal(); }, script);
    modified = editor.m_modified;
    return result;
  }

  int Modify(const QString& path, const std::function<void()>& script) {
    const QVWideString file = ToWide(path);
    CDlgAddModifyDiscriminator editor(deviceGroups.Root(), nullptr, &file);
    const int result = Drive([&] { return editor.DoModal(); }, script);
    modified = editor.m_modified;
    return result;
  }

  QStringList Files() const { return QDir(directory.path()).entryList(QDir::Files, QDir::Name); }

  QByteArray Content(const QString& name) const {
    QFile file(directory.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  static QLineEdit* Edit(int id) { return qobject_cast<QLineEdit*>(TopControl(id)); }
  static QComboBox* Combo() { return qobject_cast<QComboBox*>(TopControl(typeCombo)); }
  static bool IsTicked() {
    return qobject_cast<QAbstractButton*>(TopControl(setZeroCheck))->isChecked();
  }

  static void Type(int id, const char* text) {
    TopControl(id)->setFocus();
    QTest::keyClicks(TopControl(id), QString::fromUtf8(text));
  }

  static void ExpectVisible(std::initializer_list<int> shown, std::initializer_list<int> hidden) {
    for (int id : shown) {
      EXPECT_TRUE(TopControl(id)->isVisible()) << id;
    }
    for (int id : hidden) {
      EXPECT_FALSE(TopControl(id)->isVisible()) << id;
    }
  }

  static void ExpectSlots() {
    ExpectVisible({hourTypesLink, dayTypesLink, calendarLink}, {conditionsLink});
  }
  static void ExpectConditions() {
    ExpectVisible({conditionsLink}, {hourTypesLink, dayTypesLink, calendarLink});
  }

  QTemporaryDir directory;
  InstalledFakeHost host;
  XmlDocument deviceGroups;
  bool modified = false;
};

const QByteArray oldFile =
    "<main><id>1</id><name>old</name><description>about</description>"
    "<setZeroOutsideSlot>F</setZeroOutsideSlot><type>SLOTS</type><hourTypes/><dayTypes/>"
    "<calendar/><revision>r</revision></main>";

TEST_F(Editor, ANewDiscriminatorOpensBlank) {
  Add([] {
    EXPECT_EQ(TopWindow()->windowTitle(), "[32359]");
    EXPECT_EQ(Edit(nameEdit)->text(), "");
    EXPECT_EQ(Edit(descriptionEdit)->text(), "");
    EXPECT_TRUE(IsTicked());
    EXPECT_EQ(Combo()->currentIndex(), 0);
    EXPECT_EQ(Combo()->itemText(0), "[461]");
    EXPECT_EQ(Combo()->itemText(1), "[36424]");
    EXPECT_TRUE(Edit(nameEdit)->hasFocus());
    ExpectSlots();
    Click(IDCANCEL);
  });
  EXPECT_TRUE(Files().isEmpty());
}

TEST_F(Editor, AnExistingOneShowsWhatItHolds) {
  Modify(AddFile("1.old.xdct", oldFile), [] {
    EXPECT_EQ(TopWindow()->windowTitle(), "[32360]");
    EXPECT_EQ(Edit(nameEdit)->text(), "old");
    EXPECT_EQ(Edit(descriptionEdit)->text(), "about");
    EXPECT_FALSE(IsTicked());
    Click(IDCANCEL);
  });
}

TEST_F(Editor, LabelsNameTheirControls) {
  Add([] {
    for (const auto& [id, name] :
         {std::pair(nameEdit, "[355]"), std::pair(descriptionEdit, "[284]"),
          std::pair(typeCombo, "[544]"), std::pair(setZeroCheck, "")}) {
      EXPECT_EQ(TopControl(id)->accessibleName(), name) << id;
    }
    EXPECT_EQ(qobject_cast<QAbstractButton*>(TopControl(setZeroCheck))->text(), "[35235]");
    Click(IDCANCEL);
  });
}

TEST_F(Editor, LinksThatCannotBeOpenedYetSayWhy) {
  host->loadString.additions = {60005};
  Add([] {
    EXPECT_FALSE(TopControl(calendarLink)->isEnabled());
    EXPECT_EQ(TopControl(calendarLink)->toolTip(), "<p>[60005]</p>");
    Click(IDCANCEL);
  });
}

TEST_F(Editor, ALongDescriptionAndAnUndoneLongNameAreNotCut) {
  const QByteArray description(40000, 'd');
  const QString path =
      AddFile("1.old.xdct", "<main><id>1</id><name>" + QByteArray(100, 'n') +
                                "</name><description>" + description + "</description></main>");
  Modify(path, [&] {
    EXPECT_EQ(Edit(descriptionEdit)->text().size(), description.size());
    Edit(nameEdit)->setSelection(0, 50);
    Edit(nameEdit)->del();
    EXPECT_EQ(Edit(nameEdit)->text().size(), 50);
    Edit(nameEdit)->undo();
    EXPECT_EQ(Edit(nameEdit)->text().size(), 100);
    Click(IDCANCEL);
  });
}

TEST_F(Editor, TypingANameAndReturnWritesTheFile) {
  const int result = Add([] {
    Type(nameEdit, "Peak");
    Type(descriptionEdit, "When it is dear");
    QTest::keyClick(Edit(descriptionEdit), Qt::Key_Return);
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_TRUE(modified);
  ASSERT_EQ(Files().size(), 1);
  EXPECT_TRUE(Files()[0].endsWith(".Peak.xdct"));
  EXPECT_TRUE(deviceGroups.Root()->Node(L"devices")->Node(L"device"));
}

TEST_F(Editor, ARefusalIsToldAndTheDialogStaysWithItsState) {
  Add([] {
    TopControl(descriptionEdit)->setFocus();
    AnswerNextBox(32363, QMessageBox::Ok);
    QTest::keyClick(TopControl(descriptionEdit), Qt::Key_Return);
    EXPECT_EQ(TopWindow()->focusWidget(), TopControl(descriptionEdit));
    Type(nameEdit, "a.b");
    AnswerNextBox(32764, QMessageBox::Ok);
    Click(IDOK);
    EXPECT_EQ(Edit(nameEdit)->text(), "a.b");
    Edit(nameEdit)->clear();
    Type(nameEdit, "ab");
    Type(descriptionEdit, "\"");
    AnswerNextBox(32366, QMessageBox::Ok);
    Click(IDOK);
    EXPECT_TRUE(TopWindow()->isVisible());
    Click(IDCANCEL);
  });
  EXPECT_TRUE(Files().isEmpty());
}

TEST_F(Editor, ATakenNameIsRefused) {
  AddFile("1.old.xdct", oldFile);
  Add([] {
    Type(nameEdit, "OLD");
    AnswerNextBox(32365, QMessageBox::Ok);
    Click(IDOK);
    Click(IDCANCEL);
  });
}

TEST_F(Editor, AFailedSaveIsToldAndCanBeTriedAgain) {
  // A directory stands where the file should go; the name differs in case, so that it isn't
  // "taken".
  const QString path = AddFile("1.old.xdct", oldFile);
  ASSERT_TRUE(QDir(directory.path()).mkdir("1.OLD.xdct"));
  const int result = Modify(path, [this] {
    Edit(nameEdit)->setText("OLD");
    AnswerNextBox(32362, QMessageBox::Ok);
    Click(IDOK);
    EXPECT_TRUE(Files().isEmpty());
    EXPECT_TRUE(QDir(directory.path()).rmdir("1.OLD.xdct"));
    Click(IDOK);
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(Files(), QStringList{"1.OLD.xdct"});
}

TEST_F(Editor, EscapeAndCancelAndTheCloseBoxWriteNothing) {
  const QString path = AddFile("1.old.xdct", oldFile);
  const std::vector<std::function<void()>> waysOut = {
      [] { Click(IDCANCEL); },
      [] { QTest::keyClick(TopWindow(), Qt::Key_Escape); },
      [] { TopWindow()->close(); },
  };
  for (const auto& leave : waysOut) {
    EXPECT_EQ(Modify(path,
                     [&] {
                       Type(nameEdit, "x");
                       Combo()->setFocus();
                       QTest::keyClick(Combo(), Qt::Key_Down);
                       leave();
                     }),
              IDCANCEL);
    EXPECT_EQ(Content("1.old.xdct"), oldFile);
  }
}

TEST_F(Editor, TheTypeIsSwitchedByKeyboard) {
  Add([] {
    Combo()->setFocus();
    QTest::keyClick(Combo(), Qt::Key_Down);
    EXPECT_EQ(Combo()->currentIndex(), 1);
    ExpectConditions();
    QTest::keyClick(Combo(), Qt::Key_Up);
    ExpectSlots();
    QTest::keyClick(Combo(), Qt::Key_Down);
    Type(nameEdit, "State");
    Click(IDOK);
  });
  ASSERT_EQ(Files().size(), 1);
  const QByteArray content = Content(Files()[0]);
  EXPECT_TRUE(content.contains("<type>CONDITIONS</type>"));
  EXPECT_FALSE(content.contains("hourTypes"));
}

/// Controls of the dialogs of hour types.
constexpr int hourTypeName = 5350;
constexpr int addHourType = 5348;

/// Adds an hour type in the dialog that the next click opens, and ends that dialog by `end`.
void AddHourTypeNext(int end) {
  WhenNextWindow([=] {
    EXPECT_EQ(TopWindow()->windowTitle(), "[478]");
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
        AnswerNextBox(471, QMessageBox::Yes);
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
  }
}

TEST_F(Editor, TheWheelWithoutFocusLeavesTheType) {
  Add([] {
    Edit(nameEdit)->setFocus();
    const QPointF centre = Combo()->rect().center();
    QWheelEvent wheel(centre, Combo()->mapToGlobal(centre), {}, QPoint(0, -120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(Combo(), &wheel);
    EXPECT_EQ(Combo()->currentIndex(), 0);
    Click(IDCANCEL);
  });
}

TEST_F(Editor, AnUnknownTypeShowsConditionsAndKeepsItsWord) {
  const QString path =
      AddFile("1.old.xdct", "<main><id>1</id><name>old</name><type>SEASONS</type></main>");
  Modify(path, [] {
    EXPECT_EQ(Combo()->currentIndex(), 1);
    ExpectConditions();
    Click(IDOK);
  });
  EXPECT_TRUE(Content("1.old.xdct").contains("<type>SEASONS</type>"));
}

TEST_F(Editor, OnAnEmbeddedInstallationTheTypeIsNotOffered) {
  host->AddDevice(L"KORVAXEMBEDDED");
  Add([] {
    ExpectVisible({hourTypesLink}, {typeCombo, typeLabel});
    EXPECT_EQ(Edit(descriptionEdit)->width(), Edit(nameEdit)->width());
    Click(IDCANCEL);
  });
  const QString path =
      AddFile("1.old.xdct", "<main><id>1</id><name>old</name><type>CONDITIONS</type></main>");
  Modify(path, [] {
    ExpectConditions();
    Click(IDCANCEL);
  });
}

TEST_F(Editor, NoMoreThanEightyCharactersCanBeTyped) {
  Add([] {
    Type(nameEdit, std::string(90, 'n').c_str());
    EXPECT_EQ(Edit(nameEdit)->text().size(), 80);
    QApplication::clipboard()->setText(QString(200, 'p'));
    Edit(nameEdit)->clear();
    Edit(nameEdit)->paste();
    EXPECT_EQ(Edit(nameEdit)->text(), QString(80, 'p'));
    Type(descriptionEdit, std::string(300, 'd').c_str());
    EXPECT_EQ(Edit(descriptionEdit)->text().size(), 300);
    Click(IDCANCEL);
  });
}

TEST_F(Editor, ALongerNameThatWasLoadedIsNotCut) {
  const QByteArray name(100, 'n');
  const QString path =
      AddFile("1." + name + ".xdct", "<main><id>1</id><name>" + name + "</name></main>");
  const int result = Modify(path, [] {
    EXPECT_EQ(Edit(nameEdit)->text().size(), 100);
    Type(nameEdit, "x");
    EXPECT_EQ(Edit(nameEdit)->text().size(), 100);
    QTest::keyClick(Edit(nameEdit), Qt::Key_Delete);
    EXPECT_EQ(Edit(nameEdit)->text().size(), 99);
    Click(IDOK);
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(Files(), QStringList{QString("1." + name.left(99) + ".xdct")});
}

TEST_F(Editor, WhatADocumentCannotHoldIsNotAccepted) {
  Add([] {
    Edit(nameEdit)->insert(QString(QChar(0xFFFF)));
    EXPECT_EQ(Edit(nameEdit)->text(), "");
    Click(IDCANCEL);
  });
}

TEST_F(Editor, AFileThatCannotBeLoadedCancelsAtOnce) {
  const QVWideString path = ToWide(AddFile("1.old.xdct", "<main>"));
  CDlgAddModifyDiscriminator editor(deviceGroups.Root(), nullptr, &path);
  EXPECT_EQ(editor.DoModal(), IDCANCEL);
  EXPECT_FALSE(editor.isVisible());
  EXPECT_FALSE(editor.m_modified);
  EXPECT_EQ(Content("1.old.xdct"), "<main>");
}

TEST_F(Editor, ControlsStandInTheirOrderWithoutOverlap) {
  Add([] {
    const QList<int> column = {
        nameLabel, nameEdit, descriptionLabel, descriptionEdit, hourTypesLink, setZeroCheck, IDOK};
    for (int i = 1; i < column.size(); ++i) {
      EXPECT_GE(TopControl(column[i])->y(), TopControl(column[i - 1])->geometry().bottom())
          << column[i];
    }
    EXPECT_LT(TopControl(hourTypesLink)->x(), TopControl(dayTypesLink)->x());
    EXPECT_LT(TopControl(dayTypesLink)->x(), TopControl(calendarLink)->x());
    EXPECT_EQ(TopControl(typeCombo)->y(), TopControl(descriptionEdit)->y());
    EXPECT_TRUE(TopWindow()->rect().contains(TopControl(IDCANCEL)->geometry()));
    Click(IDCANCEL);
  });
}

}  // namespace
}  // namespace qv
