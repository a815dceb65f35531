// Both dialogs of conditions, used by keyboard alone.
#include <QMenu>
#include <QTimer>

#include "conditions/ui/CDlgConditions.h"
#include "tests/conditions/ui/ConditionsFixture.h"

namespace qv {
namespace {

class ConditionKeys : public ConditionsFixture {
 protected:
  int Run(const std::function<void()>& script) {
    CDlgConditions dialog(nullptr, conditions.get());
    return Play(dialog, script);
  }

  /// A key for whatever has the focus in the window on top.
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    TopWindow()->activateWindow();  // as a window system does when an editor over it is left
    QWidget* focus = TopWindow()->focusWidget();
    QTest::keyClick(focus ? focus : TopWindow(), key, modifiers);
    Settle();
  }

  static void Keys(const QString& text) { QTest::keyClicks(TopWindow()->focusWidget(), text); }

  static bool HasFocus(int id) { return TopWindow()->focusWidget() == TopControl(id); }
};

TEST_F(ConditionKeys, AConditionIsAddedMovedAndConfirmed) {
  EXPECT_EQ(Run([] {
              EXPECT_TRUE(HasFocus(conditionList));
              WhenNextWindow([] {
                Keys("Name");
                Key(Qt::Key_Tab);
                Keys("d");
                Key(Qt::Key_Return);
              });
              Key(Qt::Key_Insert);
              EXPECT_EQ(Rows(conditionList), QStringList({"A a", "B b", "C c", "Name d"}));
              Key(Qt::Key_End);
              Key(Qt::Key_Up, Qt::AltModifier);
              Key(Qt::Key_Up, Qt::AltModifier);
              EXPECT_EQ(Names(conditionList), QStringList({"A", "Name", "B", "C"}));
              Key(Qt::Key_Down, Qt::AltModifier);
              EXPECT_EQ(Names(conditionList), QStringList({"A", "B", "Name", "C"}));
              EXPECT_TRUE(HasFocus(conditionList));
              Key(Qt::Key_Return);
            }),
            IDOK);
  EXPECT_TRUE(modified);
}

TEST_F(ConditionKeys, TheKeysOfMovesStopAtTheEnds) {
  Run([] {
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Names(conditionList), QStringList({"A", "B", "C"}));
    for (int i = 0; i < 5; ++i) {
      Key(Qt::Key_Down, Qt::AltModifier);
    }
    EXPECT_EQ(Names(conditionList), QStringList({"B", "C", "A"}));
    Key(Qt::Key_Up, Qt::AltModifier);
    Key(Qt::Key_Up, Qt::AltModifier);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Names(conditionList), QStringList({"A", "B", "C"})) << "several are selected";
    Key(Qt::Key_Escape);
  });
}

TEST_F(ConditionKeys, TabGoesThroughTheListInTheOrderOfItsControls) {
  Run([] {
    for (const int id : {addCondition, modifyCondition, removeCondition, conditionDown, 1, 2}) {
      Key(Qt::Key_Tab);
      EXPECT_TRUE(HasFocus(id)) << id;
    }
    Key(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(conditionList));
    Key(Qt::Key_Escape);
  });
}

TEST_F(ConditionKeys, TabGoesThroughTheEditorInTheOrderOfItsControls) {
  Run([] {
    WhenNextWindow([] {
      EXPECT_TRUE(HasFocus(conditionName));
      for (const int id : {expressionEdit, wizardButton, 1, 2, conditionName}) {
        Key(Qt::Key_Tab);
        EXPECT_TRUE(HasFocus(id)) << id;
      }
      Key(Qt::Key_Escape);
    });
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    Key(Qt::Key_Space);
    Key(Qt::Key_Escape);
  });
  EXPECT_EQ(*conditions, before);
}

/// Opens the list's menu by keyboard and gives it to `use`.
void UseMenu(const std::function<void(QMenu&)>& use) {
  QTimer::singleShot(0, qApp, [use] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    use(*menu);
    menu->close();
  });
  QTreeWidget* list = List(conditionList);
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, list->mapToGlobal(QPoint(9, 9)));
  QApplication::sendEvent(list, &event);
}

QStringList Offered(const QMenu& menu) {
  QStringList offered;
  for (const QAction* action : menu.actions()) {
    if (action->isEnabled() && !action->isSeparator()) {
      offered << action->text();
    }
  }
  return offered;
}

TEST_F(ConditionKeys, TheMenuOffersWhatTheButtonsDo) {
  host->loadString.additions = {Text::ConditionUp, Text::ConditionDown, Text::TryConditions};
  Run([] {
    UseMenu([](QMenu& menu) {
      EXPECT_EQ(menu.actions().size(), 7);
      EXPECT_EQ(Offered(menu),
                QStringList({"[415]\tIns", "[416]", "[420]\tDel", "[60081]\tAlt+Down", "[60093]"}));
      menu.actions()[4]->trigger();
    });
    EXPECT_EQ(Names(conditionList), QStringList({"B", "A", "C"}));
    Click(IDCANCEL);
  });
}

TEST_F(ConditionKeys, TheMenuOfAnEmptyListOffersToAdd) {
  host->loadString.additions = {Text::TryConditions};
  conditions = Parsed("<conditions/>");
  Run([] {
    UseMenu([](QMenu& menu) { EXPECT_EQ(Offered(menu), QStringList({"[415]\tIns"})); });
    Click(IDCANCEL);
  });
}

TEST_F(ConditionKeys, AMuteLanguageHasOnlyTheRequiredLines) {
  Run([] {
    UseMenu([](QMenu& menu) { EXPECT_EQ(menu.actions().size(), 3); });
    Click(IDCANCEL);
  });
}

TEST_F(ConditionKeys, TheMenuTriesTheConditions) {
  host->loadString.additions = {Text::TryConditions, Text::TrialTitle};
  Run([] {
    WhenNextWindow([] {
      EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::TrialTitle));
      EXPECT_EQ(TopWindow()->findChild<QTreeWidget*>()->topLevelItemCount(), 3);
      Key(Qt::Key_Escape);
    });
    UseMenu([](QMenu& menu) { menu.actions().back()->trigger(); });
    Settle();
    Click(IDCANCEL);
  });
  EXPECT_FALSE(modified);
}

}  // namespace
}  // namespace qv
