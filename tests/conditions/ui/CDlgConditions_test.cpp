#include "conditions/ui/CDlgConditions.h"

#include <QHelpEvent>
#include <QToolTip>

#include "tests/conditions/ui/ConditionsFixture.h"

namespace qv {
namespace {

class ConditionsDialog : public ConditionsFixture {
 protected:
  int Run(const std::function<void()>& script) {
    CDlgConditions dialog(nullptr, conditions.get());
    return Play(dialog, script);
  }

  /// Lets the editor that comes next give the condition a name and an expression.
  static void WriteNext(const QString& name, const QString& expression, int end = IDOK) {
    WhenNextWindow([=] {
      Type(conditionName, name);
      Type(expressionEdit, expression);
      Click(end);
    });
  }

  static void Remove(QMessageBox::StandardButton answer) {
    AnswerNextBox(Text::RemoveConditionsQuestion, answer);
    Click(removeCondition);
  }

  /// The tooltip of a row's first column.
  static QString ToolTipOf(int row) {
    QTreeWidget* list = List(conditionList);
    const QPoint place = list->visualItemRect(list->topLevelItem(row)).center();
    QHelpEvent event(QEvent::ToolTip, place, list->viewport()->mapToGlobal(place));
    QApplication::sendEvent(list->viewport(), &event);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
  }

  static bool HasFocus(int id) { return TopWindow()->focusWidget() == TopControl(id); }
};

TEST_F(ConditionsDialog, ShowsTheConditionsInTheirOrderWithTheFirstSelected) {
  EXPECT_EQ(Run([] {
              EXPECT_EQ(Rows(conditionList), QStringList({"A a", "B b", "C c"}));
              EXPECT_EQ(SelectedRows(conditionList), std::vector<int>{0});
              EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::ConditionListTitle));
              EXPECT_EQ(Caption(conditionsBox), TitleOf(Text::ConditionBox));
              EXPECT_EQ(List(conditionList)->headerItem()->text(0), TitleOf(Text::Name));
              EXPECT_EQ(List(conditionList)->headerItem()->text(1), TitleOf(Text::Condition));
              EXPECT_EQ(List(conditionList)->accessibleName(), TitleOf(Text::ConditionBox));
              Click(IDOK);
            }),
            IDOK);
  EXPECT_FALSE(modified);
  EXPECT_EQ(*conditions, before);
}

TEST_F(ConditionsDialog, ButtonsSayWhatTheyDo) {
  host->loadString.additions = {Text::AltUpKey, Text::AltDownKey};
  Run([] {
    const std::pair<int, Text> buttons[] = {{addCondition, Text::Add},
                                            {modifyCondition, Text::Modify},
                                            {removeCondition, Text::Remove},
                                            {IDOK, Text::ConfirmOk},
                                            {IDCANCEL, Text::ConfirmCancel}};
    for (const auto& [id, text] : buttons) {
      EXPECT_EQ(Caption(id), TitleOf(text)) << id;
    }
    const std::pair<int, Text> arrows[] = {{conditionUp, Text::AltUpKey},
                                           {conditionDown, Text::AltDownKey}};
    for (const auto& [id, text] : arrows) {
      EXPECT_EQ(Caption(id), "") << id;
      EXPECT_EQ(TopControl(id)->accessibleName(), TitleOf(text)) << id;
      EXPECT_EQ(TopControl(id)->toolTip(), "<p>" + TitleOf(text) + "</p>") << id;
    }
    Click(IDCANCEL);
  });
}

TEST_F(ConditionsDialog, TheColumnsShareTheListsWidth) {
  Run([] {
    const QTreeWidget* list = List(conditionList);
    const int room = list->viewport()->width();
    EXPECT_EQ(list->columnWidth(0), room / 2);
    EXPECT_EQ(list->columnWidth(1), room - room / 2);
    Click(IDCANCEL);
  });
}

TEST_F(ConditionsDialog, AnEmptyListOffersOnlyToAdd) {
  conditions = Parsed("<conditions/>");
  EXPECT_EQ(Run([] {
              ExpectEnabled({addCondition},
                            {modifyCondition, removeCondition, conditionUp, conditionDown});
              DoubleClickBelowRows(conditionList);
              Press(conditionList, Qt::Key_Delete);
              Click(IDOK);
            }),
            IDOK);
  EXPECT_EQ(*conditions, *Parsed("<conditions/>"));
}

TEST_F(ConditionsDialog, WhatIsOfferedFollowsTheSelection) {
  Run([] {
    ExpectEnabled({modifyCondition, removeCondition, conditionDown}, {conditionUp});
    ClickRow(conditionList, 1);
    ExpectEnabled({modifyCondition, removeCondition, conditionUp, conditionDown}, {});
    ClickRow(conditionList, 2);
    ExpectEnabled({modifyCondition, removeCondition, conditionUp}, {conditionDown});
    ClickRow(conditionList, 1, Qt::ControlModifier);
    ExpectEnabled({removeCondition}, {modifyCondition, conditionUp, conditionDown});
    ClickRow(conditionList, 1, Qt::ControlModifier);
    ClickRow(conditionList, 2, Qt::ControlModifier);
    ExpectEnabled({addCondition}, {modifyCondition, removeCondition, conditionUp, conditionDown});
    Click(IDCANCEL);
  });
}

TEST_F(ConditionsDialog, ASingleConditionCannotBeMoved) {
  conditions = Parsed("<conditions><condition/></conditions>");
  Run([] {
    ExpectEnabled({modifyCondition, removeCondition}, {conditionUp, conditionDown});
    Click(IDCANCEL);
  });
}

TEST_F(ConditionsDialog, ANamelessConditionIsSelectedOnOpening) {
  Condition(L"B").SetValue(L"name", L"");
  Run([] {
    EXPECT_EQ(SelectedRows(conditionList), std::vector<int>{1});
    Click(IDCANCEL);
  });
}

TEST_F(ConditionsDialog, AnAddedConditionComesLastAndLeavesTheSelection) {
  Run([] {
    ClickRow(conditionList, 2);
    WriteNext("D", "d");
    Click(addCondition);
    EXPECT_EQ(Rows(conditionList), QStringList({"A a", "B b", "C c", "D d"}));
    EXPECT_EQ(SelectedRows(conditionList), std::vector<int>{2});
    ExpectEnabled({conditionUp, conditionDown}, {});
    EXPECT_TRUE(HasFocus(conditionList));
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
  EXPECT_EQ((*std::prev(conditions->ChildsEnd()))->Value(L"name"), L"D");
}

TEST_F(ConditionsDialog, ACancelledEditorChangesNothing) {
  Run([] {
    WriteNext("D", "d", IDCANCEL);
    Click(addCondition);
    WriteNext("D", "d", IDCANCEL);
    Click(modifyCondition);
    EXPECT_EQ(Rows(conditionList), QStringList({"A a", "B b", "C c"}));
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
  EXPECT_EQ(*conditions, before);
}

TEST_F(ConditionsDialog, AnEditorWithNothingToChangeChangesNothing) {
  Run([] {
    WriteNext("A", "a");
    DoubleClickRow(conditionList, 0);
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
  EXPECT_EQ(*conditions, before);
}

TEST_F(ConditionsDialog, AModifiedConditionKeepsItsRow) {
  Run([] {
    WriteNext("N", "d");
    DoubleClickRow(conditionList, 1);
    EXPECT_EQ(Rows(conditionList), QStringList({"A a", "N d", "C c"}));
    EXPECT_EQ(SelectedRows(conditionList), std::vector<int>{1});
    EXPECT_TRUE(HasFocus(conditionList));
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
  EXPECT_EQ(Condition(L"N").Value(L"id"), L"2");
}

TEST_F(ConditionsDialog, ADoubleClickWithSeveralRowsGoesToTheFirst) {
  Run([] {
    ClickRow(conditionList, 1);
    ClickRow(conditionList, 2, Qt::ControlModifier);
    WriteNext("N", "d");
    emit TopControl<ReportList>(conditionList)->DoubleClicked();
    EXPECT_EQ(Rows(conditionList), QStringList({"A a", "N d", "C c"}));
    Click(IDOK);
  });
}

TEST_F(ConditionsDialog, ManyAreRemovedAfterOneQuestion) {
  Run([] {
    ClickRow(conditionList, 1, Qt::ControlModifier);
    Remove(QMessageBox::Yes);
    EXPECT_EQ(Rows(conditionList), QStringList({"C c"}));
    EXPECT_EQ(SelectedRows(conditionList), std::vector<int>{0});
    ExpectEnabled({modifyCondition, removeCondition}, {conditionUp, conditionDown});
    Remove(QMessageBox::Yes);
    EXPECT_EQ(Rows(conditionList), QStringList());
    EXPECT_TRUE(HasFocus(conditionList)) << "not the button that is disabled now";
    ExpectEnabled({addCondition}, {modifyCondition, removeCondition, conditionUp, conditionDown});
    Click(IDOK);
  });
  EXPECT_TRUE(modified);
  EXPECT_EQ(*conditions, *Parsed("<conditions><other/></conditions>"));
}

TEST_F(ConditionsDialog, AfterTheLastRowTheOneBeforeIsSelected) {
  Run([] {
    ClickRow(conditionList, 2);
    AnswerNextBox(Text::RemoveConditionsQuestion, QMessageBox::Yes);
    Press(conditionList, Qt::Key_Delete);
    EXPECT_EQ(SelectedRows(conditionList), std::vector<int>{1});
    Click(IDCANCEL);
  });
}

TEST_F(ConditionsDialog, ANoLeavesTheSelection) {
  Run([] {
    ClickRow(conditionList, 1, Qt::ControlModifier);
    Remove(QMessageBox::No);
    EXPECT_EQ(SelectedRows(conditionList), (std::vector<int>{0, 1}));
    Click(IDOK);
  });
  EXPECT_FALSE(modified);
  EXPECT_EQ(*conditions, before);
}

TEST_F(ConditionsDialog, TheSelectionFollowsAMoveAndNothingCountsAsModified) {
  EXPECT_EQ(Run([] {
              Click(conditionDown);
              EXPECT_EQ(Rows(conditionList), QStringList({"B b", "A a", "C c"}));
              EXPECT_EQ(SelectedRows(conditionList), std::vector<int>{1});
              Click(conditionDown);
              EXPECT_EQ(SelectedRows(conditionList), std::vector<int>{2});
              ExpectEnabled({conditionUp}, {conditionDown});
              Click(conditionUp);
              EXPECT_EQ(Rows(conditionList), QStringList({"B b", "A a", "C c"}));
              Click(IDOK);
            }),
            IDOK);
  EXPECT_FALSE(modified);
  EXPECT_EQ(Condition(L"A").Value(L"id"), L"2");
}

TEST_F(ConditionsDialog, AnArrowKeepsTheFocusAsLongAsItCanBePressed) {
  Run([] {
    TopControl(conditionDown)->setFocus();
    Press(conditionDown, Qt::Key_Space);
    EXPECT_TRUE(HasFocus(conditionDown));
    Press(conditionDown, Qt::Key_Space);
    EXPECT_TRUE(HasFocus(conditionList));
    EXPECT_EQ(Rows(conditionList), QStringList({"B b", "C c", "A a"}));
    Click(IDCANCEL);
  });
}

TEST_F(ConditionsDialog, ARowTellsWhatItGivesNow) {
  host->loadString.additions = {Text::PresentResult, Text::ResultTrue, Text::ResultNoValue};
  host->driverSupport.script[L"b"].code = 62;
  host->driverSupport.script.erase(L"c");
  Run([this] {
    EXPECT_EQ(ToolTipOf(0), "<p>" + TitleOf(Text::PresentResult) + "</p>");
    EXPECT_EQ(ToolTipOf(1), "<p>" + TitleOf(Text::ResultNoValue) + "</p>");
    EXPECT_EQ(ToolTipOf(2), "<p>" + TitleOf(Text::ExpressionInvalid) + "</p>");
    host->driverSupport.script[L"c"] = {.code = 62};
    EXPECT_EQ(ToolTipOf(2), "<p>" + TitleOf(Text::ResultNoValue) + "</p>") << "asked anew";
    Click(IDCANCEL);
  });
}

TEST_F(ConditionsDialog, ARowIsMuteWhereTheLanguageIs) {
  Run([] {
    EXPECT_EQ(ToolTipOf(0), "");
    Click(IDCANCEL);
  });
}

TEST_F(ConditionsDialog, SizesThatAreAskedForAreAtLeast150By200) {
  RECT rect{0, 0, 100, 100};
  EXPECT_TRUE(CDlgConditions::OnSizing(WMSZ_TOPLEFT, &rect));
  EXPECT_EQ(rect, (RECT{-50, -100, 100, 100}));
  RECT large{0, 0, 150, 200};
  EXPECT_FALSE(CDlgConditions::OnSizing(WMSZ_BOTTOMRIGHT, &large));
}

TEST_F(ConditionsDialog, NeedsTheServicesOfExpressions) {
  CDlgConditions dialog(nullptr, conditions.get());
  {
    const Installed<QVDriverSupport> none(nullptr);
    EXPECT_EQ(dialog.DoModal(), -1);
  }
  {
    const Installed<QVInformes> none(nullptr);
    EXPECT_EQ(dialog.DoModal(), -1);
  }
  {
    const Installed<QVClipboard> none(nullptr);
    EXPECT_EQ(dialog.DoModal(), -1);
  }
}

TEST_F(ConditionsDialog, NamesAreShownAsTheyStand) {
  Condition(L"A").SetValue(L"name", L"<b>&Day</b>");
  Condition(L"B").SetValue(L"name", L"\u05D0\u05D1 1");
  Condition(L"C").SetValue(L"name", L"tab\tand\nline");
  Run([] {
    EXPECT_EQ(Names(conditionList),
              QStringList({"<b>&Day</b>", QString::fromUtf8("\u05D0\u05D1 1"), "tab\tand\nline"}));
    Click(IDOK);
  });
}

TEST_F(ConditionsDialog, SixtyLongConditionsAreListedAndMoved) {
  conditions = Parsed("<conditions/>");
  for (int i = 0; i < 60; ++i) {
    XmlNode* added = conditions->NewChild(L"condition", nullptr);
    const std::wstring number = std::to_wstring(i);
    added->SetValue(L"name", (number + std::wstring(80 - number.size(), L'n')).c_str());
    added->SetValue(L"exp", (number + std::wstring(500 - number.size(), L'1')).c_str());
  }
  Run([] {
    EXPECT_EQ(List(conditionList)->topLevelItemCount(), 60);
    ClickRow(conditionList, 0);
    for (int i = 0; i < 59; ++i) {
      TopControl<QAbstractButton>(conditionDown)->click();
    }
    EXPECT_EQ(SelectedRows(conditionList), std::vector<int>{59});
    EXPECT_TRUE(Names(conditionList).back().startsWith("0n"));
    QTreeWidget* list = List(conditionList);
    EXPECT_TRUE(
        list->viewport()->rect().contains(list->visualItemRect(list->topLevelItem(59)).center()))
        << "the moved row is to be seen";
    Click(IDOK);
  });
}

}  // namespace
}  // namespace qv
