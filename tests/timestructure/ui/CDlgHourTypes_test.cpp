#include "timestructure/ui/CDlgHourTypes.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QScrollBar>

#include "tests/timestructure/ui/HourTypesFixture.h"
#include "toolkit/ReportList.h"

namespace qv {
namespace {

constexpr int list = 5303;
constexpr int box = 5317;
constexpr int removeButton = 5347;
constexpr int addButton = 5348;
constexpr int modifyButton = 5349;

class HourTypeList : public HourTypesFixture {
 protected:
  int Run(const std::function<void()>& script) {
    CDlgHourTypes dialog(nullptr, &Hours(), dayTypes.Root());
    const int result = Drive([&] { return dialog.DoModal(); }, script);
    modified = dialog.m_modified;
    return result;
  }

  static ReportList* List() { return qobject_cast<ReportList*>(TopControl(list)); }

  static QStringList Names() {
    QStringList names;
    for (int row = 0; row < List()->topLevelItemCount(); ++row) {
      names += List()->topLevelItem(row)->text(0);
    }
    return names;
  }

  static std::vector<int> Selected() { return List()->SelectedRows(); }

  static void ClickRow(int row, bool twice = false) {
    const QPoint place = List()->visualItemRect(List()->topLevelItem(row)).center();
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, place);
    if (twice) {
      QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, place);
    }
  }

  static void ExpectButtons(bool enabled) {
    EXPECT_TRUE(TopControl(addButton)->isEnabled());
    EXPECT_EQ(TopControl(modifyButton)->isEnabled(), enabled);
    EXPECT_EQ(TopControl(removeButton)->isEnabled(), enabled);
  }

  /// Lets the editor that comes next give the hour type a name.
  static void NameNext(const QString& name, int end = IDOK) {
    WhenNextWindow([=] {
      Type(nameEdit, name);
      Click(end);
    });
  }

  static QColor IconColour(int row) {
    const QIcon icon = List()->topLevelItem(row)->icon(0);
    return icon.pixmap(List()->iconSize()).toImage().pixelColor(3, 3);
  }

  void SetUp() override { ASSERT_TRUE(dayTypes.Parse("<dayTypes><day/></dayTypes>")); }

  XmlDocument dayTypes;
  bool modified = false;
};

TEST_F(HourTypeList, ShowsNamesWithTheirColours) {
  const int result = Run([&] {
    EXPECT_EQ(Names(), QStringList({"day", "night"}));
    EXPECT_EQ(IconColour(0), QColor(Qt::red));
    EXPECT_EQ(IconColour(1), QColor(Qt::blue));
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::HourTypeListTitle));
    EXPECT_EQ(List()->accessibleName(), TitleOf(Text::HourTypes));
    EXPECT_EQ(List()->headerItem()->text(0), TitleOf(Text::Name));
    EXPECT_TRUE(Selected().empty());
    ExpectButtons(false);
    Click(IDOK);
  });
  EXPECT_EQ(result, IDOK);
  EXPECT_FALSE(modified);
  EXPECT_EQ(Hours(), *before);
}

TEST_F(HourTypeList, AWhiteHourTypeStaysVisible) {
  Hour(L"day").SetValue(L"color", L"FFFFFF");
  Run([&] {
    EXPECT_EQ(IconColour(0), QColor(Qt::white));
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, ASelectedRowEnablesItsButtons) {
  Run([&] {
    ClickRow(1);
    ExpectButtons(true);
    EXPECT_EQ(Selected(), std::vector<int>{1});
    QTest::keyClick(List(), Qt::Key_Up);
    EXPECT_EQ(Selected(), std::vector<int>{0});
    QTest::keyClick(List(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), std::vector<int>{1}) << "one row at a time";
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, AddByButtonAndByKey) {
  Run([&] {
    ClickRow(0);
    NameNext("morning");
    Click(addButton);
    EXPECT_EQ(Names(), QStringList({"day", "morning", "night"}));
    EXPECT_TRUE(Selected().empty());
    ExpectButtons(false);
    NameNext("zenith");
    QTest::keyClick(List(), Qt::Key_Insert);
    EXPECT_EQ(Names().last(), "zenith");
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
}

TEST_F(HourTypeList, ACancelledAddLeavesTheListAsItWas) {
  Run([&] {
    ClickRow(1);
    NameNext("morning", IDCANCEL);
    Click(addButton);
    EXPECT_EQ(Selected(), std::vector<int>{1});
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
  EXPECT_EQ(Hours(), *before);
}

TEST_F(HourTypeList, AfterANewNameTheOldPlaceIsSelected) {
  Run([&] {
    ClickRow(0);
    NameNext("zenith");
    Click(modifyButton);
    EXPECT_EQ(Names(), QStringList({"night", "zenith"}));
    EXPECT_EQ(Selected(), std::vector<int>{0});
    ExpectButtons(true);
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
}

TEST_F(HourTypeList, ADoubleClickOpensTheSelectedRow) {
  Run([&] {
    QString opened;
    WhenNextWindow([&] {
      opened = Edit(nameEdit)->text();
      Click(IDOK);
    });
    ClickRow(1, true);
    EXPECT_EQ(opened, "night");
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
  EXPECT_TRUE(Hour(L"night").Node(L"value")) << "taken over also without a change";
}

TEST_F(HourTypeList, ADoubleClickOnTheEmptyAreaOpensNothing) {
  Run([&] {
    const QPoint below = List()->viewport()->rect().bottomLeft() - QPoint(-5, 5);
    QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, below);
    EXPECT_TRUE(qobject_cast<CDlgHourTypes*>(TopWindow()));
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, RemoveTakesARowWithoutAsking) {
  Run([&] {
    ClickRow(0);
    QTest::keyClick(List(), Qt::Key_Delete);
    EXPECT_EQ(Names(), QStringList({"night"}));
    EXPECT_EQ(Selected(), std::vector<int>{0});
    Click(removeButton);
    EXPECT_TRUE(Names().isEmpty());
    ExpectButtons(false);
    QTest::keyClick(List(), Qt::Key_Delete);
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
  EXPECT_TRUE(Hours().Node(L"other"));
  EXPECT_TRUE(dayTypes.Root()->Node(L"day"));
}

TEST_F(HourTypeList, EachControlHasItsText) {
  Run([&] {
    const std::pair<int, Text> texts[] = {{addButton, Text::Add},
                                          {modifyButton, Text::Modify},
                                          {removeButton, Text::Remove},
                                          {IDOK, Text::Ok},
                                          {IDCANCEL, Text::Cancel}};
    for (const auto& [id, text] : texts) {
      EXPECT_EQ(qobject_cast<QPushButton*>(TopControl(id))->text(), TitleOf(text));
    }
    EXPECT_EQ(qobject_cast<QGroupBox*>(TopControl(box))->title(), TitleOf(Text::HourTypes));
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, AddingWithAnothersColourCanBeGivenUp) {
  Run([&] {
    WhenNextWindow([] {
      Type(nameEdit, "new");
      ChooseNextColour(Qt::red);
      Click(swatch);
      AnswerNextBox(Text::TypeColourTaken, QMessageBox::No);
      Click(IDOK);
      EXPECT_EQ(Swatch()->ShownColour(), 0x0000FFU);
      Click(IDCANCEL);
    });
    Click(addButton);
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
  EXPECT_EQ(Hours(), *before);
}

TEST_F(HourTypeList, TheColumnFillsAListThatScrolls) {
  for (int i = 0; i < 50; ++i) {
    Hours().NewChild(L"hour", nullptr)->SetValue(L"name", std::to_wstring(i).c_str());
  }
  Run([&] {
    Settle();
    EXPECT_EQ(List()->columnWidth(0), List()->viewport()->width());
    NameNext("zz");
    Click(addButton);
    Settle();
    EXPECT_EQ(List()->columnWidth(0), List()->viewport()->width());
    EXPECT_FALSE(List()->horizontalScrollBar()->isVisible());
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, OtherKeysDoNothing) {
  Run([&] {
    ClickRow(0);
    QTest::keyClick(List(), Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(List(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Names().size(), 2);
    Click(IDCANCEL);
  });
  EXPECT_FALSE(modified);
}

TEST_F(HourTypeList, ItHasALeastSizeAndItsColumnFollows) {
  Run([&] {
    EXPECT_EQ(TopWindow()->minimumSize(), QSize(200, 300));
    for (const QSize size : {QSize(200, 300), QSize(700, 500)}) {
      TopWindow()->resize(size);
      Settle();
      EXPECT_EQ(List()->columnWidth(0), List()->viewport()->width());
      EXPECT_TRUE(TopControl(box)->geometry().contains(
          QRect(List()->mapTo(TopWindow(), QPoint()), List()->size())));
      EXPECT_LT(TopControl(removeButton)->geometry().left(),
                TopControl(removeButton)->geometry().right());
    }
    EXPECT_EQ(TopControl(addButton)->geometry().top(), TopControl(removeButton)->geometry().top());
    EXPECT_GT(TopControl(modifyButton)->geometry().top(), TopControl(addButton)->geometry().top());
    Click(IDCANCEL);
  });
}

TEST_F(HourTypeList, TheEditorSeesTheNewHourTypeInTheList) {
  Run([&] {
    WhenNextWindow([] {
      Type(nameEdit, "day");
      AnswerNextBox(Text::TypeNameTaken, QMessageBox::Ok);
      Click(IDOK);
      Click(IDCANCEL);
    });
    Click(addButton);
    Click(IDCANCEL);
  });
  EXPECT_EQ(Hours(), *before);
}

TEST(HourTypeListAlone, WithoutAHostItGivesMinusOne) {
  XmlNode hours(L"hourTypes");
  CDlgHourTypes dialog(nullptr, &hours, nullptr);
  EXPECT_EQ(dialog.DoModal(), -1);
}

}  // namespace
}  // namespace qv
