#include "timestructure/ui/CDlgAddModifyHourType.h"

#include <QApplication>
#include <QColorDialog>

#include "tests/timestructure/ui/HourTypesFixture.h"

namespace qv {
namespace {

class HourTypeEditor : public HourTypesFixture {
 protected:
  /// Runs the editor on this node while `script` plays the user.
  int Run(XmlNode& hour, const std::function<void()>& script) {
    CDlgAddModifyHourType editor(nullptr, hours.get(), &hour);
    return Play(editor, script);
  }
};

TEST_F(HourTypeEditor, ShowsNameColourAndTexts) {
  const int result = Run(Hour(L"day"), [&] {
    EXPECT_EQ(Edit(hourName)->text(), "day");
    EXPECT_EQ(Edit(hourValue)->text(), "7");
    EXPECT_EQ(Swatch()->ShownColour(), 0x0000FFU);
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::ModifyHourTypeTitle));
    EXPECT_EQ(Swatch()->accessibleName(), TitleOf(Text::Colour));
    EXPECT_EQ(Edit(hourName)->accessibleName(), TitleOf(Text::Name));
    QTest::keyClick(TopWindow(), Qt::Key_Escape);
  });
  EXPECT_EQ(result, IDCANCEL);
  EXPECT_FALSE(modified);
  EXPECT_EQ(*hours, before);
}

TEST_F(HourTypeEditor, AnHourTypeWithoutANameIsANewOne) {
  XmlNode hour(L"hour");
  Run(hour, [&] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::AddHourTypeTitle));
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeEditor, OkWritesAndReturnPressesIt) {
  EXPECT_EQ(Run(Hour(L"day"),
                [&] {
                  Type(hourName, "noon");
                  Press(hourName, Qt::Key_Return);
                }),
            IDOK);
  EXPECT_TRUE(modified);
  EXPECT_EQ(Hour(L"noon").Value(L"value"), L"7");
}

TEST_F(HourTypeEditor, TheValueIsShownOnEmbeddedInstallationsOnly) {
  int without = 0;
  Run(Hour(L"day"), [&] {
    EXPECT_FALSE(TopControl(hourValue)->isVisible());
    EXPECT_FALSE(TopControl(hourValueLabel)->isVisible());
    without = TopWindow()->height();
    Click(IDOK);
  });
  EXPECT_EQ(Hour(L"day").Value(L"value"), L"7") << "a hidden value survives";
  EXPECT_FALSE(modified);
  host->AddDevice(embeddedDriver);
  Run(Hour(L"day"), [&] {
    EXPECT_TRUE(TopControl(hourValue)->isVisible());
    EXPECT_TRUE(TopControl(hourValueLabel)->isVisible());
    EXPECT_GT(TopWindow()->height(), without);
    Type(hourValue, "x y");
    Click(IDOK);
  });
  EXPECT_EQ(Hour(L"day").Value(L"value"), L"x y");
  EXPECT_TRUE(modified);
}

TEST_F(HourTypeEditor, AHiddenValueOfAnyTextComesBackUnchanged) {
  const std::wstring values[] = {L" blanks ", L"tab\tand\nline", L"\U0001F4A1",
                                 std::wstring(40000, L'v')};
  for (const std::wstring& value : values) {
    Hour(L"day").SetValue(L"value", value.c_str());
    Run(Hour(L"day"), [] { Click(IDOK); });
    EXPECT_EQ(Hour(L"day").Value(L"value"), value.c_str());
    EXPECT_FALSE(modified);
  }
}

TEST_F(HourTypeEditor, EachControlHasItsTextAndItsPicture) {
  Run(Hour(L"day"), [&] {
    EXPECT_EQ(Caption(hourNameLabel), TitleOf(Text::Name));
    EXPECT_EQ(Caption(hourValueLabel), TitleOf(Text::HourTypeValue));
    EXPECT_EQ(Caption(hourColourLabel), TitleOf(Text::Colour));
    EXPECT_EQ(Caption(IDOK), TitleOf(Text::Ok));
    EXPECT_EQ(Caption(IDCANCEL), TitleOf(Text::Cancel));
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeEditor, ItsHeightFitsAndCanNotBeChanged) {
  for (const bool embedded : {false, true}) {
    if (embedded) {
      host->AddDevice(embeddedDriver);
    }
    Run(Hour(L"day"), [] {
      const QWidget* window = TopWindow();
      EXPECT_EQ(window->minimumSize(), window->maximumSize());
      const QRect ok = TopControl(IDOK)->geometry();
      const QRect cancel = TopControl(IDCANCEL)->geometry();
      EXPECT_EQ(ok.bottom(), cancel.bottom());
      EXPECT_LT(ok.right(), cancel.left());
      EXPECT_LE(window->height() - ok.bottom(), 20);
      EXPECT_GT(window->height(), ok.bottom());
      EXPECT_GT(ok.top(), Swatch()->geometry().bottom());
      Click(IDCANCEL);
    });
  }
}

TEST_F(HourTypeEditor, AClickAndSpaceChooseAColour) {
  Run(Hour(L"day"), [&] {
    ChooseNextColour(QColor(0, 128, 0));
    Click(hourSwatch);
    EXPECT_EQ(Swatch()->ShownColour(), 0x008000U);
    ChooseNextColour(QColor(1, 2, 3));
    Swatch()->setFocus();
    Press(hourSwatch, Qt::Key_Space);
    EXPECT_EQ(Swatch()->ShownColour(), 0x030201U);
    Click(IDOK);
  });
  EXPECT_EQ(Hour(L"day").Value(L"color"), L"030201");
  EXPECT_TRUE(modified);
}

TEST_F(HourTypeEditor, ACancelledChoiceOfColourChangesNothing) {
  Run(Hour(L"day"), [&] {
    ChooseNextColour(QColor(0, 128, 0), Qt::Key_Escape);
    Click(hourSwatch);
    EXPECT_EQ(Swatch()->ShownColour(), 0x0000FFU);
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
}

TEST_F(HourTypeEditor, TheColourDialogOpensWithTheColourInForce) {
  Run(Hour(L"night"), [&] {
    WhenNextWindow([] {
      EXPECT_EQ(qobject_cast<QColorDialog*>(TopWindow())->currentColor(), QColor(Qt::blue));
      QTest::keyClick(TopWindow(), Qt::Key_Escape);
    });
    Click(hourSwatch);
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeEditor, ARefusedNameLeavesTheEditorOpenAndTheFocusWhereItWas) {
  Run(Hour(L"day"), [&] {
    Type(hourName, "night");
    AnswerNextBox(Text::TypeNameTaken, QMessageBox::Ok);
    Press(hourName, Qt::Key_Return);
    EXPECT_EQ(TopWindow()->focusWidget(), Edit(hourName));
    EXPECT_EQ(Edit(hourName)->text(), "night");
    Click(IDCANCEL);
  });
  EXPECT_EQ(*hours, before);
}

TEST_F(HourTypeEditor, AnotherOnesColourIsAskedAboutAndNoKeepsIt) {
  const int result = Run(Hour(L"day"), [&] {
    ChooseNextColour(Qt::blue);
    Click(hourSwatch);
    AnswerNextBox(Text::TypeColourTaken, QMessageBox::No);
    Click(IDOK);
    EXPECT_EQ(Swatch()->ShownColour(), 0xFF0000U);
    AnswerNextBox(Text::TypeColourTaken, QMessageBox::Yes);
    Click(IDOK);
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_EQ(Hour(L"day").Value(L"color"), L"FF0000");
}

TEST_F(HourTypeEditor, ANameHasAtMost128Characters) {
  Run(Hour(L"day"), [&] {
    Type(hourName, QString(200, 'x'));
    EXPECT_EQ(Edit(hourName)->text().size(), 128);
    Click(IDCANCEL);
  });
  Hour(L"day").SetValue(L"name", std::wstring(200, L'y').c_str());
  Run(Hour(std::wstring(200, L'y').c_str()), [&] {
    EXPECT_EQ(Edit(hourName)->text().size(), 200) << "what was loaded is never cut";
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeEditor, TabGoesThroughTheFields) {
  host->AddDevice(embeddedDriver);
  Run(Hour(L"day"), [&] {
    Edit(hourName)->setFocus();
    for (const int next : {hourValue, hourSwatch, IDOK, IDCANCEL, hourName}) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      EXPECT_EQ(QApplication::focusWidget(), TopControl(next)) << next;
    }
    Click(IDCANCEL);
  });
}

TEST(HourTypeEditorAlone, WithoutAHostItGivesMinusOne) {
  XmlNode hours(L"hourTypes");
  XmlNode hour(L"hour");
  CDlgAddModifyHourType editor(nullptr, &hours, &hour);
  EXPECT_EQ(editor.DoModal(), -1);
}

}  // namespace
}  // namespace qv
