#include "conditions/ui/CDlgConditionsNewModify.h"

#include <QHelpEvent>
#include <QMessageBox>
#include <QToolTip>

#include "tests/conditions/ui/ConditionsFixture.h"
#include "toolkit/QVLayout.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

class ConditionEditor : public ConditionsFixture {
 protected:
  int Modify(const std::function<void()>& script) {
    CDlgConditionsNewModify editor(nullptr, &Condition(L"A"), conditions.get());
    return Play(editor, script);
  }

  int Add(const std::function<void()>& script) {
    CDlgConditionsNewModify editor(nullptr, &scratch, conditions.get());
    return Play(editor, script);
  }

  static QString Status(const QString& words) {
    return TitleOf(Text::Condition) + " (" + words + ")";
  }

  static void ExpectFocus(int id, const QString& selected) {
    EXPECT_EQ(TopWindow()->focusWidget(), TopControl(id));
    EXPECT_EQ(Edit(id)->selectedText(), selected);
  }

  static const std::vector<ExpressionMark>& Marks() {
    return TopControl<ExpressionEdit>(expressionEdit)->Marks();
  }

  static QString ExpressionHint() {
    EXPECT_EQ(TopControl(expressionEdit)->toolTip().isEmpty(),
              TopControl(expressionEdit)->accessibleDescription().isEmpty());
    return TopControl(expressionEdit)->accessibleDescription();
  }

  XmlNode scratch{L"condition"};
};

TEST_F(ConditionEditor, ShowsTheCondition) {
  host->loadString.additions = {Text::ComposeExpression};
  EXPECT_EQ(Modify([] {
              EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::ModifyConditionTitle));
              EXPECT_EQ(Edit(conditionName)->text(), "A");
              EXPECT_EQ(Edit(expressionEdit)->text(), "a");
              EXPECT_EQ(Caption(conditionNameLabel), TitleOf(Text::Name));
              EXPECT_EQ(Caption(expressionLabel), TitleOf(Text::Condition));
              EXPECT_EQ(TopControl(conditionName)->accessibleName(), TitleOf(Text::Name));
              EXPECT_EQ(TopControl(expressionEdit)->accessibleName(), TitleOf(Text::Condition));
              EXPECT_EQ(Caption(wizardButton), "");
              EXPECT_EQ(TopControl(wizardButton)->accessibleName(),
                        TitleOf(Text::ComposeExpression));
              EXPECT_EQ(Caption(IDOK), TitleOf(Text::ConfirmOk));
              EXPECT_EQ(Caption(IDCANCEL), TitleOf(Text::ConfirmCancel));
              Click(IDCANCEL);
            }),
            IDCANCEL);
  EXPECT_EQ(*conditions, before);
}

TEST_F(ConditionEditor, ANewConditionHasATitleOfItsOwnAndAsksForAnExpression) {
  Add([] {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::AddConditionTitle));
    EXPECT_EQ(Caption(expressionLabel), Status(TitleOf(Text::ExpressionMissing)));
    Click(IDCANCEL);
  });
}

struct StatusCase {
  const char* expression;
  ScriptedExpression says;
  QString words;
};

TEST_F(ConditionEditor, TheCaptionTellsTheStateWhileOneTypes) {
  host->driverSupport.words[9] = L"R&D <b>failed</b>";
  const StatusCase cases[] = {
      {"x", {.analysis = 0}, TitleOf(Text::ExpressionInvalid)},
      {"number", {.type = 0}, TitleOf(Text::ResultNotLogical)},
      {"module", {.code = 1, .hasModule = true}, TitleOf(Text::ExpressionUsesModule)},
      {"odd", {.code = 9}, "R&&D <b>failed</b>"},
      {"odder", {.code = 8}, ""},
      {"laternumber", {.code = 62, .type = 0}, TitleOf(Text::ResultNotLogical)},
  };
  for (const StatusCase& one : cases) {
    host->driverSupport.script[QString(one.expression).toStdWString()] = one.says;
  }
  host->driverSupport.script[L"later"] = {.code = 62};
  Modify([&] {
    for (const StatusCase& one : cases) {
      Edit(expressionEdit)->setFocus();
      Type(expressionEdit, one.expression);
      EXPECT_EQ(Caption(expressionLabel), Status(one.words)) << one.expression;
      EXPECT_EQ(TopWindow()->focusWidget(), Edit(expressionEdit));
    }
    Type(expressionEdit, "later");
    EXPECT_EQ(Caption(expressionLabel), TitleOf(Text::Condition));
    Edit(expressionEdit)->clear();
    EXPECT_EQ(Caption(expressionLabel), Status(TitleOf(Text::ExpressionMissing)));
    Click(IDCANCEL);
  });
}

TEST_F(ConditionEditor, EachChangeIsCheckedByANewEvaluator) {
  Modify([this] {
    auto& calls = host->driverSupport.calls;
    calls.clear();
    QTest::keyClicks(Edit(expressionEdit), "b");
    const std::vector<std::wstring> expected = {
        L"new " + Edit(expressionEdit)->text().toStdWString(), L"SetFlags 4 -1",
        L"EnableDiscriminators false", L"AnalizeExpression"};
    EXPECT_EQ(calls, expected);
    Click(IDCANCEL);
  });
}

TEST_F(ConditionEditor, TypingStopsAt512CharactersOfWhich511AreSeen) {
  host->driverSupport.script[std::wstring(511, L'1')] = {};
  Add([] {
    Edit(expressionEdit)->insert(QString(600, '1'));
    EXPECT_EQ(Edit(expressionEdit)->text().size(), 512);
    EXPECT_EQ(Caption(expressionLabel), TitleOf(Text::Condition));
    Click(IDCANCEL);
  });
}

TEST_F(ConditionEditor, AStoredExpressionIsShownWhole) {
  Condition(L"A").SetValue(L"exp", std::wstring(600, L'1').c_str());
  Modify([] {
    EXPECT_EQ(Edit(expressionEdit)->text().size(), 600);
    Click(IDCANCEL);
  });
  EXPECT_EQ(Condition(L"A").Value(L"exp").Length(), 600U);
}

TEST_F(ConditionEditor, ChangesAreWrittenByOk) {
  EXPECT_EQ(Modify([] {
              Type(conditionName, "a");
              Type(expressionEdit, "d");
              Click(IDOK);
            }),
            IDOK);
  EXPECT_TRUE(modified);
  EXPECT_EQ(Condition(L"a").Value(L"exp"), L"d");
}

TEST_F(ConditionEditor, OkWithoutAChangeIsACancel) {
  EXPECT_EQ(Modify([] { Click(IDOK); }), IDCANCEL);
  EXPECT_FALSE(modified);
  EXPECT_EQ(*conditions, before);
}

TEST_F(ConditionEditor, CancelWritesNothing) {
  EXPECT_EQ(Modify([] {
              Type(conditionName, "N");
              Type(expressionEdit, "d");
              QTest::keyClick(TopWindow(), Qt::Key_Escape);
            }),
            IDCANCEL);
  EXPECT_FALSE(modified);
  EXPECT_EQ(*conditions, before);
}

TEST_F(ConditionEditor, RefusalsLeadToTheFieldAtFault) {
  host->driverSupport.script[L"number"] = {.type = 0};
  Modify([] {
    Edit(conditionName)->clear();
    AnswerNextBox(Text::ConditionNameMissing, QMessageBox::Ok);
    Click(IDOK);
    ExpectFocus(conditionName, "");
    Type(conditionName, "B");
    AnswerNextBox(Text::ConditionNameTaken, QMessageBox::Ok);
    Click(IDOK);
    ExpectFocus(conditionName, "B");
    Type(expressionEdit, "x");
    AnswerNextBox(Text::ExpressionInvalid, QMessageBox::Ok);
    Click(IDOK);
    ExpectFocus(expressionEdit, "x");
    Type(expressionEdit, "number");
    AnswerNextBox(Text::ExpressionInvalid, QMessageBox::Ok);
    Click(IDOK);
    ExpectFocus(expressionEdit, "number");
    Edit(expressionEdit)->clear();
    AnswerNextBox(Text::ExpressionInvalid, QMessageBox::Ok);
    Click(IDOK);
    ExpectFocus(expressionEdit, "");
    Click(IDCANCEL);
  });
  EXPECT_EQ(*conditions, before);
}

TEST_F(ConditionEditor, TheHostsWordsAreShownAsTheyStand) {
  host->driverSupport.script[L"odd"] = {.code = 9};
  host->driverSupport.words[9] = L"R&D <b>failed</b>";
  Modify([] {
    Type(expressionEdit, "odd");
    WhenNextWindow([] {
      auto* box = qobject_cast<QMessageBox*>(TopWindow());
      ASSERT_TRUE(box);
      EXPECT_EQ(box->text(), "R&D <b>failed</b>");
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      EXPECT_EQ(box->buttons().size(), 1);
      box->button(QMessageBox::Ok)->click();
    });
    Click(IDOK);
    ExpectFocus(expressionEdit, "odd");
    Click(IDCANCEL);
  });
}

TEST_F(ConditionEditor, WhatIsLongerThanIsKeptIsCutByOk) {
  host->driverSupport.script[std::wstring(64, L'1')] = {};
  EXPECT_EQ(Add([] {
              Type(conditionName, QString(70, 'n'));
              Type(expressionEdit, QString(100, '1'));
              Click(IDOK);
            }),
            IDOK);
  EXPECT_EQ(scratch.Value(L"name").Length(), 64U);
  EXPECT_EQ(scratch.Value(L"exp").Length(), 64U);
}

TEST_F(ConditionEditor, WhatIsNotKeptIsMarkedAndTold) {
  host->loadString.additions = {Text::ExpressionNotKept};
  host->driverSupport.script[std::wstring(64, L'1')] = {};
  host->driverSupport.script[std::wstring(70, L'1')] = {};
  Add([] {
    Type(expressionEdit, QString(64, '1'));
    EXPECT_TRUE(Marks().empty());
    EXPECT_EQ(ExpressionHint(), "");
    Type(expressionEdit, QString(70, '1'));
    EXPECT_EQ(Marks(), (std::vector<ExpressionMark>{{{64, 6}, ExpressionMark::Kind::NotKept}}));
    EXPECT_EQ(ExpressionHint(), TitleOf(Text::ExpressionNotKept));
    Click(IDCANCEL);
  });
}

TEST_F(ConditionEditor, TheFaultIsMarkedAndTold) {
  host->driverSupport.script[L"a+"] = {.analysis = 0, .fault = ExpressionFault{{1, 1}, L"more"}};
  Modify([] {
    EXPECT_TRUE(Marks().empty());
    Type(expressionEdit, "a+");
    EXPECT_EQ(Marks(), (std::vector<ExpressionMark>{{{1, 1}, ExpressionMark::Kind::Fault}}));
    EXPECT_EQ(ExpressionHint(), "more");
    EXPECT_EQ(Caption(expressionLabel), Status(TitleOf(Text::ExpressionInvalid)));
    Click(IDCANCEL);
  });
}

TEST_F(ConditionEditor, WhatMayBeStoredHasNoMark) {
  const ExpressionFault fault{{0, 1}, L"no value"};
  host->driverSupport.script[L"later"] = {.code = QVEvaluator::CodeNoValue, .fault = fault};
  host->driverSupport.script[L"module"] = {
      .code = QVEvaluator::CodeUnreadable, .hasModule = true, .fault = fault};
  Modify([] {
    for (const char* expression : {"later", "module"}) {
      Type(expressionEdit, expression);
      EXPECT_TRUE(Marks().empty()) << expression;
      EXPECT_EQ(ExpressionHint(), "no value") << expression;
    }
    Click(IDCANCEL);
  });
}

TEST_F(ConditionEditor, ALongExpressionThatLookedRightIsRefusedForWhatIsKeptOfIt) {
  host->driverSupport.script[std::wstring(100, L'1')] = {};
  Modify([] {
    Type(expressionEdit, QString(100, '1'));
    EXPECT_EQ(Caption(expressionLabel), TitleOf(Text::Condition));
    AnswerNextBox(Text::ExpressionInvalid, QMessageBox::Ok);
    Click(IDOK);
    ExpectFocus(expressionEdit, QString(100, '1'));
    Click(IDCANCEL);
  });
  EXPECT_EQ(*conditions, before);
}

TEST_F(ConditionEditor, ByKeyboardTheWizardGetsTheCursorAndGivesTheFocusBack) {
  host->informes.composed = L"b";
  Modify([] {
    EXPECT_EQ(Edit(expressionEdit)->cursorPosition(), 1) << "behind what is there";
    QTest::keyClick(Edit(conditionName), Qt::Key_Tab);
    EXPECT_FALSE(Edit(expressionEdit)->hasSelectedText());
    TopControl(wizardButton)->setFocus();
    QTest::keyClick(TopControl(wizardButton), Qt::Key_Space);
    EXPECT_TRUE(Edit(expressionEdit)->hasFocus());
    EXPECT_EQ(Edit(expressionEdit)->cursorPosition(), 1);
    Edit(expressionEdit)->undo();
    EXPECT_EQ(Edit(expressionEdit)->text(), "a");
    Click(IDCANCEL);
  });
  EXPECT_EQ(host->informes.runs.front().selectionStart, 1);
  EXPECT_EQ(host->informes.runs.front().selectionEnd, 1);
}

TEST_F(ConditionEditor, AComposedExpressionIsTakenWhole) {
  host->informes.composed = std::wstring(600, L'1');
  Modify([] {
    Click(wizardButton);
    EXPECT_EQ(Edit(expressionEdit)->text().size(), 600);
    Click(IDCANCEL);
  });
}

TEST_F(ConditionEditor, ThePresentResultIsTold) {
  host->loadString.additions = {Text::PresentResult, Text::ResultTrue};
  Modify([] {
    EXPECT_EQ(ExpressionHint(), TitleOf(Text::PresentResult));
    Click(IDCANCEL);
  });
}

TEST_F(ConditionEditor, NamesAreCompletedFromTheHost) {
  host->driverSupport.script[L"M"] = {.proposals = {{0, 1}, {{L"Meter", L"a device", 5}}}};
  Modify([] {
    Type(expressionEdit, "M");
    QTest::keyClick(Edit(expressionEdit), Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(Edit(expressionEdit)->text(), "Meter");
    Click(IDCANCEL);
  });
}

TEST_F(ConditionEditor, TheWizardGetsTextAndSelectionAndItsResultIsTaken) {
  host->informes.composed = L"b";
  QWidget* window = nullptr;
  EXPECT_EQ(Modify([&] {
              window = TopWindow();
              Edit(expressionEdit)->setText(QString::fromUtf8("\U0001F319 = d"));
              Edit(expressionEdit)->setSelection(3, 2);
              Click(wizardButton);
              EXPECT_EQ(Edit(expressionEdit)->text(), "b");
              EXPECT_EQ(Caption(expressionLabel), TitleOf(Text::Condition));
              Click(IDOK);
            }),
            IDOK);
  ASSERT_EQ(host->informes.runs.size(), 1U);
  const ScriptedInformes::Run& run = host->informes.runs.front();
  EXPECT_EQ(run.parent, window);
  EXPECT_EQ(run.classes, QVInformes::VariableClasses(16));
  EXPECT_FALSE(run.withDiscriminators);
  EXPECT_EQ(run.purpose, 13);
  EXPECT_EQ(run.text, L"\U0001F319 = d");
  EXPECT_EQ(run.selectionStart, 2) << "in the characters of the rules";
  EXPECT_EQ(run.selectionEnd, 4);
  EXPECT_EQ(Condition(L"A").Value(L"exp"), L"b");
}

TEST_F(ConditionEditor, ACancelledWizardChangesNothing) {
  Modify([] {
    Edit(expressionEdit)->setCursorPosition(1);
    Click(wizardButton);
    EXPECT_EQ(Edit(expressionEdit)->text(), "a");
    Click(IDCANCEL);
  });
  EXPECT_EQ(host->informes.runs.front().selectionStart, 1);
  EXPECT_EQ(host->informes.runs.front().selectionEnd, 1);
}

TEST_F(ConditionEditor, WithoutAListAnyNameIsFree) {
  CDlgConditionsNewModify editor(nullptr, &Condition(L"A"), nullptr);
  EXPECT_EQ(Play(editor,
                 [] {
                   Type(conditionName, "B");
                   Click(IDOK);
                 }),
            IDOK);
}

TEST_F(ConditionEditor, NeedsTheServicesOfExpressions) {
  CDlgConditionsNewModify editor(nullptr, &scratch, conditions.get());
  {
    const Installed<QVDriverSupport> none(nullptr);
    EXPECT_EQ(editor.DoModal(), -1);
  }
  {
    const Installed<QVInformes> none(nullptr);
    EXPECT_EQ(editor.DoModal(), -1);
  }
}

TEST_F(ConditionEditor, AStatusWithoutEnoughRoomIsWholeInItsToolTip) {
  host->driverSupport.words[9] = std::wstring(300, L'w');
  host->driverSupport.script[L"odd"] = {.code = 9};
  Modify([] {
    const auto hint = [] {
      QWidget* label = TopControl(expressionLabel);
      QHelpEvent event(QEvent::ToolTip, {1, 1}, label->mapToGlobal(QPoint(1, 1)));
      QApplication::sendEvent(label, &event);
      return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    EXPECT_EQ(hint(), "");
    Type(expressionEdit, "odd");
    EXPECT_EQ(hint(), "<p>" + Status(QString(300, 'w')) + "</p>");
    Click(IDCANCEL);
  });
}

TEST_F(ConditionEditor, TheHeightFitsItsContent) {
  Modify([] {
    const int gap = QVLayout::Size2Pixels(LayoutSizeStandard, TopWindow()).width();
    const int below = TopWindow()->height() - TopControl(IDOK)->geometry().bottom() - 1;
    EXPECT_EQ(below, gap);
    EXPECT_EQ(TopWindow()->minimumHeight(), TopWindow()->maximumHeight());
    Click(IDCANCEL);
  });
}

}  // namespace
}  // namespace qv
