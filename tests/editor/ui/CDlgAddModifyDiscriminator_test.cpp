#include "editor/ui/CDlgAddModifyDiscriminator.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>

#include "tests/editor/ui/EditorFixture.h"

namespace qv {
namespace {

TEST_F(Editor, ANewDiscriminatorOpensBlank) {
  Add([] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::AddDiscriminatorTitle));
    EXPECT_EQ(Edit(discriminatorName)->text(), "");
    EXPECT_EQ(Edit(descriptionEdit)->text(), "");
    EXPECT_TRUE(IsTicked());
    EXPECT_EQ(Combo(typeCombo)->currentIndex(), 0);
    EXPECT_EQ(Combo(typeCombo)->itemText(0), TitleOf(Text::TimeSlots));
    EXPECT_EQ(Combo(typeCombo)->itemText(1), TitleOf(Text::Conditions));
    EXPECT_TRUE(Edit(discriminatorName)->hasFocus());
    ExpectSlots();
    Click(IDCANCEL);
  });
  EXPECT_TRUE(Files().isEmpty());
}

TEST_F(Editor, AnExistingOneShowsWhatItHolds) {
  Modify(PutOldFile(), [] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::ModifyDiscriminatorTitle));
    EXPECT_EQ(Edit(discriminatorName)->text(), "old");
    EXPECT_EQ(Edit(discriminatorName)->selectedText(), "old") << "typing replaces it";
    EXPECT_EQ(Edit(descriptionEdit)->text(), "about");
    EXPECT_FALSE(IsTicked());
    Click(IDCANCEL);
  });
}

TEST_F(Editor, LabelsNameTheirControls) {
  Add([] {
    const std::pair<int, Text> labels[] = {{discriminatorName, Text::Name},
                                           {descriptionEdit, Text::Description},
                                           {typeCombo, Text::DiscriminatorType}};
    for (const auto& [id, text] : labels) {
      EXPECT_EQ(TopControl(id)->accessibleName(), TitleOf(text)) << id;
    }
    EXPECT_EQ(TopControl(setZeroCheck)->accessibleName(), "");
    EXPECT_EQ(Caption(setZeroCheck), TitleOf(Text::SetZeroOutsideSlot));
    Click(IDCANCEL);
  });
}

TEST_F(Editor, WithoutTheServicesOfExpressionsTheLinkOfConditionsSaysWhyItIsDisabled) {
  const Installed<QVDriverSupport> none(nullptr);
  host->loadString.additions = {Text::LinkNotReady};
  Add([] {
    EXPECT_TRUE(TopControl(calendarLink)->isEnabled());
    EXPECT_FALSE(TopControl(conditionsLink)->isEnabled());
    EXPECT_EQ(TopControl(conditionsLink)->toolTip(), "<p>" + TitleOf(Text::LinkNotReady) + "</p>");
    Click(IDCANCEL);
  });
}

TEST_F(Editor, ALongDescriptionAndAnUndoneLongNameAreNotCut) {
  const QByteArray description(40000, 'd');
  const QString path =
      PutFile("1.old.xdct", "<main><id>1</id><name>" + QByteArray(100, 'n') +
                                "</name><description>" + description + "</description></main>");
  Modify(path, [&] {
    EXPECT_EQ(Edit(descriptionEdit)->text().size(), description.size());
    Edit(discriminatorName)->setSelection(0, 50);
    Edit(discriminatorName)->del();
    EXPECT_EQ(Edit(discriminatorName)->text().size(), 50);
    Edit(discriminatorName)->undo();
    EXPECT_EQ(Edit(discriminatorName)->text().size(), 100);
    Click(IDCANCEL);
  });
}

TEST_F(Editor, TypingANameAndReturnWritesTheFile) {
  const int result = Add([] {
    Type(discriminatorName, "Peak");
    Type(descriptionEdit, "When it is dear");
    Press(descriptionEdit, Qt::Key_Return);
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
    Press(descriptionEdit, Qt::Key_Return);
    EXPECT_EQ(TopWindow()->focusWidget(), TopControl(descriptionEdit));
    Type(discriminatorName, "a.b");
    AnswerNextBox(Text::NameNotAllowed, QMessageBox::Ok);
    Click(IDOK);
    EXPECT_EQ(Edit(discriminatorName)->text(), "a.b");
    Type(discriminatorName, "ab");
    Type(descriptionEdit, "\"");
    AnswerNextBox(Text::DescriptionWithQuote, QMessageBox::Ok);
    Click(IDOK);
    EXPECT_TRUE(TopWindow()->isVisible());
    Click(IDCANCEL);
  });
  EXPECT_TRUE(Files().isEmpty());
}

TEST_F(Editor, ATakenNameIsRefused) {
  PutOldFile();
  Add([] {
    Type(discriminatorName, "OLD");
    AnswerNextBox(Text::DiscriminatorNameTaken, QMessageBox::Ok);
    Click(IDOK);
    Click(IDCANCEL);
  });
}

TEST_F(Editor, AFailedSaveIsToldAndCanBeTriedAgain) {
  // A directory stands where the file should go; the name differs in case, so that it isn't
  // "taken".
  const QString path = PutOldFile();
  ASSERT_TRUE(QDir(directory.path()).mkdir("1.OLD.xdct"));
  const int result = Modify(path, [this] {
    Edit(discriminatorName)->setText("OLD");
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
  const QString path = PutOldFile();
  const std::vector<std::function<void()>> waysOut = {
      [] { Click(IDCANCEL); },
      [] { QTest::keyClick(TopWindow(), Qt::Key_Escape); },
      [] { TopWindow()->close(); },
  };
  for (const auto& leave : waysOut) {
    EXPECT_EQ(Modify(path,
                     [&] {
                       Type(discriminatorName, "x");
                       Combo(typeCombo)->setFocus();
                       Press(typeCombo, Qt::Key_Down);
                       leave();
                     }),
              IDCANCEL);
    EXPECT_EQ(Content("1.old.xdct"), oldFile);
  }
}

TEST_F(Editor, TheTypeIsSwitchedByKeyboard) {
  Add([] {
    Combo(typeCombo)->setFocus();
    Press(typeCombo, Qt::Key_Down);
    EXPECT_EQ(Combo(typeCombo)->currentIndex(), 1);
    ExpectConditions();
    Press(typeCombo, Qt::Key_Up);
    ExpectSlots();
    Press(typeCombo, Qt::Key_Down);
    Type(discriminatorName, "State");
    Click(IDOK);
  });
  ASSERT_EQ(Files().size(), 1);
  const QByteArray content = Content(Files()[0]);
  EXPECT_TRUE(content.contains("<type>CONDITIONS</type>"));
  EXPECT_FALSE(content.contains("hourTypes"));
}

TEST_F(Editor, TheWheelWithoutFocusLeavesTheType) {
  Add([] {
    Edit(discriminatorName)->setFocus();
    TurnWheel(typeCombo, -120);
    EXPECT_EQ(Combo(typeCombo)->currentIndex(), 0);
    Click(IDCANCEL);
  });
}

TEST_F(Editor, AnUnknownTypeShowsConditionsAndKeepsItsWord) {
  const QString path =
      PutFile("1.old.xdct", "<main><id>1</id><name>old</name><type>SEASONS</type></main>");
  Modify(path, [] {
    EXPECT_EQ(Combo(typeCombo)->currentIndex(), 1);
    ExpectConditions();
    Click(IDOK);
  });
  EXPECT_TRUE(Content("1.old.xdct").contains("<type>SEASONS</type>"));
}

TEST_F(Editor, OnAnEmbeddedInstallationTheTypeIsNotOffered) {
  host->AddDevice(embeddedDriver);
  Add([] {
    ExpectVisible({hourTypesLink}, {typeCombo, typeLabel});
    EXPECT_EQ(Edit(descriptionEdit)->width(), Edit(discriminatorName)->width());
    Click(IDCANCEL);
  });
  const QString path =
      PutFile("1.old.xdct", "<main><id>1</id><name>old</name><type>CONDITIONS</type></main>");
  Modify(path, [] {
    ExpectConditions();
    Click(IDCANCEL);
  });
}

TEST_F(Editor, NoMoreThanEightyCharactersCanBeTyped) {
  Add([] {
    Type(discriminatorName, QString(90, 'n'));
    EXPECT_EQ(Edit(discriminatorName)->text().size(), 80);
    QApplication::clipboard()->setText(QString(200, 'p'));
    Edit(discriminatorName)->clear();
    Edit(discriminatorName)->paste();
    EXPECT_EQ(Edit(discriminatorName)->text(), QString(80, 'p'));
    Type(descriptionEdit, QString(300, 'd'));
    EXPECT_EQ(Edit(descriptionEdit)->text().size(), 300);
    Click(IDCANCEL);
  });
}

TEST_F(Editor, ALongerNameThatWasLoadedIsNotCut) {
  const QByteArray name(100, 'n');
  const QString path =
      PutFile("1." + name + ".xdct", "<main><id>1</id><name>" + name + "</name></main>");
  const int result = Modify(path, [] {
    EXPECT_EQ(Edit(discriminatorName)->text().size(), 100);
    Press(discriminatorName, Qt::Key_Home);
    QTest::keyClicks(Edit(discriminatorName), "x");
    EXPECT_EQ(Edit(discriminatorName)->text().size(), 100);
    Press(discriminatorName, Qt::Key_Delete);
    EXPECT_EQ(Edit(discriminatorName)->text().size(), 99);
    Click(IDOK);
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(Files(), QStringList{QString("1." + name.left(99) + ".xdct")});
}

TEST_F(Editor, WhatADocumentCannotHoldIsNotAccepted) {
  Add([] {
    Edit(discriminatorName)->insert(QString(QChar(0xFFFF)));
    EXPECT_EQ(Edit(discriminatorName)->text(), "");
    Click(IDCANCEL);
  });
}

TEST_F(Editor, AFileThatCannotBeLoadedCancelsAtOnce) {
  const QVWideString path = ToWide(PutFile("1.old.xdct", "<main>"));
  CDlgAddModifyDiscriminator editor(deviceGroups.Root(), nullptr, &path);
  EXPECT_EQ(editor.DoModal(), IDCANCEL);
  EXPECT_FALSE(editor.isVisible());
  EXPECT_FALSE(editor.m_modified);
  EXPECT_EQ(Content("1.old.xdct"), "<main>");
}

TEST_F(Editor, AFileThatCannotBeLoadedIsToldWithItsReasonWhereTheLanguageHasWords) {
  host->loadString.additions = {Text::DiscriminatorNotOpened, Text::DiscriminatorDamagedAt};
  const QVWideString path = ToWide(PutFile("1.old.xdct", "<main>"));
  CDlgAddModifyDiscriminator editor(deviceGroups.Root(), nullptr, &path);
  const int result = Play(editor, [&] {
    EXPECT_FALSE(editor.isVisible());
    const auto* box = qobject_cast<QMessageBox*>(TopWindow());
    ASSERT_TRUE(box);
    EXPECT_EQ(box->windowTitle(), TitleOf(Text::ModifyDiscriminatorTitle));
    EXPECT_EQ(box->informativeText(), TitleOf(Text::DiscriminatorDamagedAt));
    AnswerBox(Text::DiscriminatorNotOpened, QMessageBox::Ok);
  });
  EXPECT_EQ(result, IDCANCEL);
  EXPECT_FALSE(modified);
  EXPECT_EQ(Content("1.old.xdct"), "<main>");
}

TEST_F(Editor, ControlsStandInTheirOrderWithoutOverlap) {
  Add([] {
    const QList<int> column = {discriminatorNameLabel,
                               discriminatorName,
                               descriptionLabel,
                               descriptionEdit,
                               hourTypesLink,
                               setZeroCheck,
                               IDOK};
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
