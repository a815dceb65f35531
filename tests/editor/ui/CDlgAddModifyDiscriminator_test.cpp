#include "editor/ui/CDlgAddModifyDiscriminator.h"

#include <QApplication>
#include <QClipboard>
#include <QWheelEvent>

#include "tests/editor/ui/EditorFixture.h"

namespace qv {
namespace {

TEST_F(Editor, ANewDiscriminatorOpensBlank) {
  Add([] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::AddDiscriminatorTitle));
    EXPECT_EQ(Edit(nameEdit)->text(), "");
    EXPECT_EQ(Edit(descriptionEdit)->text(), "");
    EXPECT_TRUE(IsTicked());
    EXPECT_EQ(Combo()->currentIndex(), 0);
    EXPECT_EQ(Combo()->itemText(0), TitleOf(Text::TimeSlots));
    EXPECT_EQ(Combo()->itemText(1), TitleOf(Text::Conditions));
    EXPECT_TRUE(Edit(nameEdit)->hasFocus());
    ExpectSlots();
    Click(IDCANCEL);
  });
  EXPECT_TRUE(Files().isEmpty());
}

TEST_F(Editor, AnExistingOneShowsWhatItHolds) {
  Modify(AddFile("1.old.xdct", oldFile), [] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::ModifyDiscriminatorTitle));
    EXPECT_EQ(Edit(nameEdit)->text(), "old");
    EXPECT_EQ(Edit(descriptionEdit)->text(), "about");
    EXPECT_FALSE(IsTicked());
    Click(IDCANCEL);
  });
}

TEST_F(Editor, LabelsNameTheirControls) {
  Add([] {
    const std::pair<int, Text> labels[] = {{nameEdit, Text::Name},
                                           {descriptionEdit, Text::Description},
                                           {typeCombo, Text::DiscriminatorType}};
    for (const auto& [id, text] : labels) {
      EXPECT_EQ(TopControl(id)->accessibleName(), TitleOf(text)) << id;
    }
    EXPECT_EQ(TopControl(setZeroCheck)->accessibleName(), "");
    EXPECT_EQ(qobject_cast<QAbstractButton*>(TopControl(setZeroCheck))->text(),
              TitleOf(Text::SetZeroOutsideSlot));
    Click(IDCANCEL);
  });
}

TEST_F(Editor, LinksThatCannotBeOpenedYetSayWhy) {
  host->loadString.additions = {Text::LinkNotReady};
  Add([] {
    EXPECT_FALSE(TopControl(calendarLink)->isEnabled());
    EXPECT_EQ(TopControl(calendarLink)->toolTip(), "<p>" + TitleOf(Text::LinkNotReady) + "</p>");
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
    AnswerNextBox(Text::DiscriminatorNameMissing, QMessageBox::Ok);
    QTest::keyClick(TopControl(descriptionEdit), Qt::Key_Return);
    EXPECT_EQ(TopWindow()->focusWidget(), TopControl(descriptionEdit));
    Type(nameEdit, "a.b");
    AnswerNextBox(Text::NameNotAllowed, QMessageBox::Ok);
    Click(IDOK);
    EXPECT_EQ(Edit(nameEdit)->text(), "a.b");
    Edit(nameEdit)->clear();
    Type(nameEdit, "ab");
    Type(descriptionEdit, "\"");
    AnswerNextBox(Text::DescriptionWithQuote, QMessageBox::Ok);
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
    AnswerNextBox(Text::DiscriminatorNameTaken, QMessageBox::Ok);
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
    AnswerNextBox(Text::DiscriminatorNotSaved, QMessageBox::Ok);
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
