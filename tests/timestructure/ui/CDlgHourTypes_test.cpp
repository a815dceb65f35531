#include "timestructure/ui/CDlgHourTypes.h"

#include <QScrollBar>

#include "tests/timestructure/ui/HourTypesFixture.h"

namespace qv {
namespace {

class HourTypeList : public HourTypesFixture {
 protected:
  int Run(const std::function<void()>& script) {
    CDlgHourTypes dialog(nullptr, hours.get(), dayTypes.get());
    return Play(dialog, script);
  }

  /// Lets the editor that comes next give the hour type a name.
  static void NameNext(const QString& name, int end = IDOK) {
    WhenNextWindow([=] {
      Type(hourName, name);
      Click(end);
    });
  }

  static QColor IconColour(int row) {
    const QIcon icon = List(typeList)->topLevelItem(row)->icon(0);
    return icon.pixmap(List(typeList)->iconSize()).toImage().pixelColor(3, 3);
  }

  const std::unique_ptr<XmlNode> dayTypes = Parsed("<dayTypes><day/></dayTypes>");
};

TEST_F(HourTypeList, ShowsNamesWithTheirColours) {
  const int result = Run([] {
    EXPECT_EQ(Names(typeList), QStringList({"day", "night"}));
    EXPECT_EQ(IconColour(0), QColor(Qt::red));
    EXPECT_EQ(IconColour(1), QColor(Qt::blue));
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::HourTypeListTitle));
    EXPECT_EQ(List(typeList)->accessibleName(), TitleOf(Text::HourTypes));
    EXPECT_EQ(List(typeList)->headerItem()->text(0), TitleOf(Text::Name));
    EXPECT_TRUE(SelectedRows(typeList).empty());
    ExpectNoneSelected();
    Click(IDOK);
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_FALSE(modified);
  EXPECT_EQ(*hours, before);
}

TEST_F(HourTypeList, AWhiteHourTypeStaysVisible) {
  Hour(L"day").SetValue(L"color", L"FFFFFF");
  Run([] {
    EXPECT_EQ(IconColour(0), QColor(Qt::white));
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, ASelectedRowEnablesItsButtons) {
  Run([] {
    ClickRow(typeList, 1);
    ExpectOneSelected();
    EXPECT_EQ(SelectedRows(typeList), std::vector<int>{1});
    Press(typeList, Qt::Key_Up);
    EXPECT_EQ(SelectedRows(typeList), std::vector<int>{0});
    Press(typeList, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(SelectedRows(typeList), std::vector<int>{1}) << "one row at a time";
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, AddByButtonAndByKey) {
  Run([] {
    ClickRow(typeList, 0);
    NameNext("morning");
    Click(addButton);
    EXPECT_EQ(Names(typeList), QStringList({"day", "morning", "night"}));
    EXPECT_TRUE(SelectedRows(typeList).empty());
    ExpectNoneSelected();
    NameNext("zenith");
    Press(typeList, Qt::Key_Insert);
    EXPECT_EQ(Names(typeList).last(), "zenith");
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
}

TEST_F(HourTypeList, ACancelledAddLeavesTheListAsItWas) {
  Run([] {
    ClickRow(typeList, 1);
    NameNext("morning", IDCANCEL);
    Click(addButton);
    EXPECT_EQ(SelectedRows(typeList), std::vector<int>{1});
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
  EXPECT_EQ(*hours, before);
}

TEST_F(HourTypeList, AfterANewNameTheOldPlaceIsSelected) {
  Run([] {
    ClickRow(typeList, 0);
    NameNext("zenith");
    Click(modifyButton);
    EXPECT_EQ(Names(typeList), QStringList({"night", "zenith"}));
    EXPECT_EQ(SelectedRows(typeList), std::vector<int>{0});
    ExpectOneSelected();
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
}

TEST_F(HourTypeList, ADoubleClickOpensTheSelectedRow) {
  Run([] {
    QString opened;
    WhenNextWindow([&] {
      opened = Edit(hourName)->text();
      Click(IDOK);
    });
    ClickRow(typeList, 1);
    DoubleClickRow(typeList, 1);
    EXPECT_EQ(opened, "night");
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
  EXPECT_TRUE(Hour(L"night").Node(L"value")) << "taken over also without a change";
}

TEST_F(HourTypeList, ADoubleClickOnTheEmptyAreaOpensNothing) {
  Run([] {
    DoubleClickBelowRows(typeList);
    EXPECT_TRUE(qobject_cast<CDlgHourTypes*>(TopWindow()));
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, RemoveTakesARowWithoutAsking) {
  Run([] {
    ClickRow(typeList, 0);
    Press(typeList, Qt::Key_Delete);
    EXPECT_EQ(Names(typeList), QStringList({"night"}));
    EXPECT_EQ(SelectedRows(typeList), std::vector<int>{0});
    Click(removeButton);
    EXPECT_TRUE(Names(typeList).isEmpty());
    ExpectNoneSelected();
    Press(typeList, Qt::Key_Delete);
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
  EXPECT_TRUE(hours->Node(L"other"));
  EXPECT_TRUE(dayTypes->Node(L"day"));
}

TEST_F(HourTypeList, EachControlHasItsText) {
  Run([] {
    const std::pair<int, Text> texts[] = {{addButton, Text::Add},
                                          {modifyButton, Text::Modify},
                                          {removeButton, Text::Remove},
                                          {IDOK, Text::Ok},
                                          {IDCANCEL, Text::Cancel}};
    for (const auto& [id, text] : texts) {
      EXPECT_EQ(Caption(id), TitleOf(text));
    }
    EXPECT_EQ(Caption(hourTypesBox), TitleOf(Text::HourTypes));
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, AddingWithAnothersColourCanBeGivenUp) {
  Run([] {
    WhenNextWindow([] {
      Type(hourName, "new");
      ChooseNextColour(Qt::red);
      Click(hourSwatch);
      AnswerNextBox(Text::TypeColourTaken, QMessageBox::No);
      Click(IDOK);
      EXPECT_EQ(Swatch()->ShownColour(), 0x0000FFU);
      Click(IDCANCEL);
    });
    Click(addButton);
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
  EXPECT_EQ(*hours, before);
}

TEST_F(HourTypeList, TheColumnFillsAListThatScrolls) {
  for (int i = 0; i < 50; ++i) {
    hours->NewChild(L"hour", nullptr)->SetValue(L"name", std::to_wstring(i).c_str());
  }
  Run([] {
    Settle();
    EXPECT_EQ(List(typeList)->columnWidth(0), List(typeList)->viewport()->width());
    NameNext("zz");
    Click(addButton);
    Settle();
    EXPECT_EQ(List(typeList)->columnWidth(0), List(typeList)->viewport()->width());
    EXPECT_FALSE(List(typeList)->horizontalScrollBar()->isVisible());
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, OtherKeysDoNothing) {
  Run([] {
    ClickRow(typeList, 0);
    Press(typeList, Qt::Key_C, Qt::ControlModifier);
    Press(typeList, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Names(typeList).size(), 2);
    Click(IDCANCEL);
  });
  EXPECT_FALSE(modified);
}

TEST_F(HourTypeList, ItHasALeastSizeAndItsColumnFollows) {
  Run([] {
    EXPECT_EQ(TopWindow()->minimumSize(), QSize(200, 300));
    for (const QSize size : {QSize(200, 300), QSize(700, 500)}) {
      TopWindow()->resize(size);
      Settle();
      EXPECT_EQ(List(typeList)->columnWidth(0), List(typeList)->viewport()->width());
      EXPECT_TRUE(TopControl(hourTypesBox)
                      ->geometry()
                      .contains(QRect(List(typeList)->mapTo(TopWindow(), QPoint()),
                                      List(typeList)->size())));
      EXPECT_LT(TopControl(removeButton)->geometry().left(),
                TopControl(removeButton)->geometry().right());
    }
    EXPECT_EQ(TopControl(addButton)->geometry().top(), TopControl(removeButton)->geometry().top());
    EXPECT_GT(TopControl(modifyButton)->geometry().top(), TopControl(addButton)->geometry().top());
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, TheEditorSeesTheNewHourTypeInTheList) {
  Run([] {
    WhenNextWindow([] {
      Type(hourName, "day");
      AnswerNextBox(Text::TypeNameTaken, QMessageBox::Ok);
      Click(IDOK);
      Click(IDCANCEL);
    });
    Click(addButton);
    Click(IDCANCEL);
  });
  EXPECT_EQ(*hours, before);
}

TEST(HourTypeListAlone, WithoutAHostItGivesMinusOne) {
  XmlNode hours(L"hourTypes");
  CDlgHourTypes dialog(nullptr, &hours, nullptr);
  EXPECT_EQ(dialog.DoModal(), -1);
}

}  // namespace
}  // namespace qv
