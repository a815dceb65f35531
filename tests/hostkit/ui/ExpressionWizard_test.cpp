#include "hostkit/ui/ExpressionWizard.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QKeySequence>
#include <QMimeData>
#include <QTest>
#include <QTreeWidgetItemIterator>

#include "hostkit/LanguageFile.h"
#include "hostkit/ui/VariableTree.h"
#include "hostkit/ui/VocabularyList.h"
#include "hostkit/ui/WizardSupport.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "toolkit/EmptyHint.h"
#include "toolkit/ProposalList.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

constexpr int condition = WizardSupport::Condition;

/// A wizard over a few devices, run as the library runs it.
class ExpressionWizardTest : public testing::Test {
 protected:
  ExpressionWizardTest() {
    Device station(L"TS1", L"");
    station.Add({L"VL1", L"voltage of phase one", L"V", classes, false, DailyCurve({{0, 230}})});
    station.Add({L"OIL", L"oil temperature", L"°C",
                 classes | ClassAlone(VariableClass::Temperature), false,
                 DailyCurve({{0, 20}, {720, 60}})});
    Device lights(L"LIGHTS 2", L"");
    lights.Add({L"ON", L"street lights", L"", classes, false, {}});
    lights.Add({L"SETUP",
                L"no class in common",
                L"",
                ClassAlone(VariableClass::Configuration),
                false,
                {}});
    Device tariff(L"R$DISC_tariff", L"");
    tariff.Add({L"DAY", L"its day", L"", classes, false, DailyCurve({{0, 1}})});
    for (Device* device : {&station, &lights, &tariff}) {
      model.Add(std::move(*device));
    }
    host->loadString.additions.insert(Text::ExpressionProposals);
  }

  /// Runs a wizard on this text while `script` plays its user, and gives its result.
  int Run(const wchar_t* text, int start, int end, const std::function<void()>& script,
          int purpose = condition) {
    const WizardSupport wizards(support);
    const auto wizard = wizards.NewWizzard(nullptr, mask, withDiscriminators, purpose);
    wizard->SetExpression(text, start, end);
    const int result = Drive([&] { return wizard->DoModal(); }, script);
    composed = std::wstring(wizard->m_expression.ToView());
    return result;
  }

  // What is in the wizard on top.
  template <class Widget>
  static Widget& The() {
    return *TopWindow()->findChild<Widget*>();
  }
  static ExpressionEdit& Expression() { return The<ExpressionEdit>(); }
  static VariableTree& Variables() { return The<VariableTree>(); }
  static QLineEdit& Words() {
    for (auto* edit : TopWindow()->findChildren<QLineEdit*>()) {
      if (edit != &Expression()) {
        return *edit;
      }
    }
    return Expression();
  }
  static QStringList Told() {
    QStringList texts;
    for (const auto* label : TopWindow()->findChildren<QLabel*>()) {
      texts.append(label->text());
    }
    return texts;
  }

  /// The rows of the tree: devices, and their variables behind a blank.
  static QStringList Shown() {
    QStringList rows;
    for (QTreeWidgetItemIterator row(&Variables()); *row; ++row) {
      rows.append(((*row)->parent() ? QStringLiteral(" ") : QString()) + (*row)->text(0));
    }
    return rows;
  }

  static QTreeWidgetItem& Row(EntryTree& tree, const QString& text) {
    return *tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive).at(0);
  }

  static void DoubleClick(EntryTree& tree, const QString& text) {
    QTreeWidgetItem& row = Row(tree, text);
    tree.scrollToItem(&row);
    const QPoint place = tree.visualItemRect(&row).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, place);
  }

  /// Presses a key where the focus is.
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  static void Keys(const char* text) {
    QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
  }

  const VariableClasses classes = ClassAlone(VariableClass::Expression);
  VariableClasses mask = classes;
  bool withDiscriminators = false;
  int minute = 0;
  InstalledFakeHost host;
  DeviceModel model;
  ExpressionSupport support{model, host->loadString, [this] { return minute; }};
  std::wstring composed;
};

TEST_F(ExpressionWizardTest, ShowsWhatItIsGivenAndGivesItBack) {
  EXPECT_EQ(Run(L"TS1.VL1 > 3", 4, 7,
                [] {
                  EXPECT_EQ(Expression().text(), QStringLiteral("TS1.VL1 > 3"));
                  EXPECT_EQ(Expression().selectedText(), QStringLiteral("VL1"));
                  EXPECT_TRUE(Expression().hasFocus());
                  Key(Qt::Key_Return);
                }),
            1);
  EXPECT_EQ(composed, L"TS1.VL1 > 3");
}

TEST_F(ExpressionWizardTest, EscapeLeavesTheExpressionAsItWas) {
  EXPECT_EQ(Run(L"a", 1, 1,
                [] {
                  Keys("bc");
                  EXPECT_EQ(Expression().text(), QStringLiteral("abc"));
                  Key(Qt::Key_Escape);
                }),
            2);
  EXPECT_EQ(composed, L"a");
}

TEST_F(ExpressionWizardTest, AFaultyExpressionMayBeTaken) {
  EXPECT_EQ(Run(L"", 0, 0,
                [] {
                  Keys("(1 +");
                  Key(Qt::Key_Return);
                }),
            1);
  EXPECT_EQ(composed, L"(1 +");
}

TEST_F(ExpressionWizardTest, IsDrivenByKeyboardAlone) {
  EXPECT_EQ(Run(L"", 0, 0,
                [] {
                  Key(Qt::Key_F, Qt::ControlModifier);
                  Keys("OIL temp");
                  Key(Qt::Key_Down);
                  Key(Qt::Key_Return);
                  EXPECT_EQ(Expression().text(), QStringLiteral("TS1.OIL"));
                  The<VocabularyList>().setFocus();
                  Keys("a >=");
                  Key(Qt::Key_Return);
                  Keys("20");
                  Key(Qt::Key_Return);
                }),
            1);
  EXPECT_EQ(composed, L"TS1.OIL >= 20");
}

TEST_F(ExpressionWizardTest, AFunctionTakesTheSelectionAlthoughTheFocusIsInItsList) {
  Run(L"TS1.VL1 - 1", 0, 11, [] {
    DoubleClick(The<VocabularyList>(), QStringLiteral("abs(a)"));
    EXPECT_EQ(Expression().text(), QStringLiteral("abs(TS1.VL1 - 1)"));
    EXPECT_TRUE(Expression().hasFocus());
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Expression().text(), QStringLiteral("TS1.VL1 - 1"));
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, AVariableReplacesWhatIsSelected) {
  Run(L"1 + 22 > 3", 4, 6, [] {
    DoubleClick(Variables(), QStringLiteral("ON"));
    EXPECT_EQ(Expression().text(), QStringLiteral("1 + [LIGHTS 2.ON] > 3"));
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, TabLeavesTheCursorOfTheExpressionWhereItIs) {
  Run(L"abc", 1, 1, [] {
    Key(Qt::Key_Backtab);
    EXPECT_TRUE(The<VocabularyList>().hasFocus());
    Key(Qt::Key_Tab);
    EXPECT_TRUE(Expression().hasFocus());
    EXPECT_FALSE(Expression().hasSelectedText());
    EXPECT_EQ(Expression().cursorPosition(), 1);
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, ADoubleClickOnADeviceWritesNothing) {
  Run(L"", 0, 0, [] {
    DoubleClick(Variables(), QStringLiteral("TS1"));
    EXPECT_EQ(Expression().text(), QString());
    EXPECT_FALSE(Row(Variables(), QStringLiteral("TS1")).isExpanded());
    Variables().setFocus();
    Key(Qt::Key_Return);
    EXPECT_TRUE(Row(Variables(), QStringLiteral("TS1")).isExpanded());
    Key(Qt::Key_Escape);
  });
}

/// Drops the row `text` of a list at the end of the expression.
void DropAtEnd(EntryTree& list, const QString& text, ExpressionEdit& expression) {
  const auto rows = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, text, 1,
                                        Qt::MatchExactly | Qt::MatchRecursive);
  const std::unique_ptr<QMimeData> dragged(list.model()->mimeData(rows));
  const QPoint place(expression.width() - 3, expression.height() / 2);
  QDragEnterEvent enter(place, Qt::CopyAction, dragged.get(), Qt::LeftButton, {});
  QApplication::sendEvent(&expression, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(place, Qt::CopyAction, dragged.get(), Qt::LeftButton, {});
  QApplication::sendEvent(&expression, &drop);
}

TEST_F(ExpressionWizardTest, EntriesAreDraggedIntoTheExpression) {
  Run(L"1 +", 0, 0, [] {
    DropAtEnd(Variables(), QStringLiteral("ON"), Expression());
    EXPECT_EQ(Expression().text(), QStringLiteral("1 +[LIGHTS 2.ON]"));
    DropAtEnd(The<VocabularyList>(), QStringLiteral("a * b"), Expression());
    EXPECT_EQ(Expression().text(), QStringLiteral("1 +[LIGHTS 2.ON] * "));
    EXPECT_TRUE(Expression().hasFocus());
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, TheTreeHasTheVariablesOfTheMaskWithoutDiscriminators) {
  const auto expect = [this](const QStringList& rows) {
    Run(L"", 0, 0, [&] {
      EXPECT_EQ(Shown(), rows);
      Key(Qt::Key_Escape);
    });
  };
  const QStringList readable = {QStringLiteral("TS1"), QStringLiteral(" VL1"),
                                QStringLiteral(" OIL"), QStringLiteral("LIGHTS 2"),
                                QStringLiteral(" ON")};
  expect(readable);
  withDiscriminators = true;
  expect(readable + QStringList({QStringLiteral("R$DISC_tariff"), QStringLiteral(" DAY")}));
  mask = ClassAlone(VariableClass::Temperature) | ClassAlone(VariableClass::Spare);
  expect({QStringLiteral("TS1"), QStringLiteral(" OIL")});
}

TEST_F(ExpressionWizardTest, TheSearchLooksIntoNamesAndDescriptions) {
  Run(L"", 0, 0, [] {
    Words().setText(QStringLiteral("STREET"));
    EXPECT_EQ(Shown(), QStringList({QStringLiteral("LIGHTS 2"), QStringLiteral(" ON")}));
    Words().setText(QStringLiteral("phase ts1"));
    EXPECT_EQ(Shown(), QStringList({QStringLiteral("TS1"), QStringLiteral(" VL1")}));
    Words().setText(QStringLiteral("phase lights"));
    EXPECT_EQ(Shown(), QStringList());
    EXPECT_TRUE(The<EmptyHint>().isVisible());
    EXPECT_EQ(The<EmptyHint>().text(), TitleOf(Text::WizardNothingFound));
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, SaysSoIfThereIsNothingToShow) {
  mask = ClassAlone(VariableClass::Spare);
  Run(L"", 0, 0, [] {
    EXPECT_EQ(Shown(), QStringList());
    EXPECT_EQ(The<EmptyHint>().text(), TitleOf(Text::WizardNothingToShow));
    Key(Qt::Key_F, Qt::ControlModifier);
    Key(Qt::Key_Down);
    Key(Qt::Key_Return);  // takes nothing, and leaves the window open
    EXPECT_EQ(Expression().text(), QString());
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, ResultAndValuesFollowTheClock) {
  Run(L"TS1.OIL > 30", 0, 0, [this] {
    EXPECT_TRUE(Told().contains(TitleOf(Text::ResultFalse)));
    EXPECT_EQ(Row(Variables(), QStringLiteral("OIL")).text(3), QStringLiteral("20"));
    minute = 720;
    EXPECT_EQ(Row(Variables(), QStringLiteral("OIL")).text(3), QStringLiteral("60"));
    EXPECT_TRUE(QTest::qWaitFor([] { return Told().contains(TitleOf(Text::ResultTrue)); }, 3000));
    EXPECT_EQ(Expression().accessibleDescription(), TitleOf(Text::ResultTrue));
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, MarksFaultsBracketsAndWhatIsNotKept) {
  using Kind = ExpressionMark::Kind;
  Run(L"(1 +", 0, 0, [] {
    ASSERT_EQ(Expression().Marks().size(), 1);
    EXPECT_EQ(Expression().Marks()[0].kind, Kind::Fault);
    Expression().setText(QStringLiteral("(1 < 2)"));
    EXPECT_EQ(Expression().Marks(),
              (std::vector<ExpressionMark>{{{0, 1}, Kind::Bracket}, {{6, 1}, Kind::Bracket}}));
    Expression().setText(QStringLiteral("1 < ") + QString(70, u'1'));
    EXPECT_EQ(Expression().Marks(), (std::vector<ExpressionMark>{{{64, 10}, Kind::NotKept}}));
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, OtherExpressionsThanConditionsAreKeptWhole) {
  Run(
      L"", 0, 0,
      [] {
        EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::WizardTitle));
        Expression().setText(QString(70, u'1'));
        EXPECT_EQ(Expression().Marks().size(), 0);
        Key(Qt::Key_Escape);
      },
      1);
}

TEST_F(ExpressionWizardTest, NamesComplete) {
  Run(L"", 0, 0, [] {
    Keys("TS1.");
    ASSERT_TRUE(The<ProposalList>().isVisible());
    EXPECT_EQ(The<ProposalList>().accessibleName(), TitleOf(Text::ExpressionProposals));
    Keys("oi");
    Key(Qt::Key_Return);
    EXPECT_EQ(Expression().text(), QStringLiteral("TS1.OIL"));
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, EveryControlHasANameForAssistiveTechnology) {
  Run(L"", 0, 0, [] {
    for (auto* widget : TopWindow()->findChildren<QWidget*>()) {
      const bool isReached = widget->focusPolicy() & Qt::TabFocus && widget->isVisible();
      EXPECT_TRUE(!isReached || !widget->accessibleName().isEmpty())
          << widget->metaObject()->className();
    }
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, MnemonicsDifferInEachLanguage) {
  for (const wchar_t* file : {L"/en.txt", L"/es.txt"}) {
    LanguageFile texts;
    ASSERT_TRUE(texts.Load(QStringLiteral(LANGUAGES_FOLDER).toStdWString() + file));
    QVLoadString::Install(&texts);
    Run(L"", 0, 0, [] {
      QStringList letters;
      for (const auto* label : TopWindow()->findChildren<QLabel*>()) {
        const QString letter = QKeySequence::mnemonic(label->text()).toString();
        EXPECT_FALSE(letters.contains(letter)) << label->text().toStdString();
        letters += letter.isEmpty() ? QStringList() : QStringList(letter);
      }
      EXPECT_EQ(letters.size(), 4);
      Key(Qt::Key_Escape);
    });
  }
  QVLoadString::Install(&host->loadString);
}

TEST_F(ExpressionWizardTest, SixtyDevicesWithLongNamesFitIn) {
  for (int i = 0; i < 60; ++i) {
    Device device(std::wstring(76, L'D') + std::to_wstring(1000 + i), L"");
    for (int k = 0; k < 40; ++k) {
      device.Add({std::wstring(77, L'V') + std::to_wstring(100 + k), std::wstring(200, L'd'), L"V",
                  classes, false, DailyCurve({{0, 1}})});
    }
    model.Add(std::move(device));
  }
  Run(L"", 0, 0, [] {
    EXPECT_LE(TopWindow()->minimumSizeHint().width(), 700);
    Words().setText(QStringLiteral("1059 139"));
    EXPECT_EQ(Shown().size(), 2);
    Key(Qt::Key_F, Qt::ControlModifier);
    Key(Qt::Key_Down);
    Key(Qt::Key_Return);
    EXPECT_EQ(Expression().text().size(), 161);
    EXPECT_LE(TopWindow()->minimumSizeHint().width(), 700);
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, DevicesThatAreReadAnewMeanwhileDoNoHarm) {
  Run(L"TS1.OIL", 0, 0, [this] {
    model = DeviceModel();
    Variables().viewport()->repaint();
    EXPECT_EQ(Row(Variables(), QStringLiteral("OIL")).text(3), QString());
    Expression().setText(QStringLiteral("TS1.OIL > 1"));
    EXPECT_EQ(Expression().Marks().size(), 1);
    Key(Qt::Key_Escape);
  });
}

TEST_F(ExpressionWizardTest, AParentThatGoesTakesTheWindowWithIt) {
  auto parent = std::make_unique<QWidget>();
  const auto wizard = WizardSupport(support).NewWizzard(parent.get(), mask, false, condition);
  wizard->SetExpression(L"a", 0, 0);
  EXPECT_EQ(Drive([&] { return wizard->DoModal(); }, [&] { parent.reset(); }), 2);
}

TEST_F(ExpressionWizardTest, WithoutTextsThereIsNoWindow) {
  const auto wizard = WizardSupport(support).NewWizzard(nullptr, mask, false, condition);
  QVLoadString::Install(nullptr);
  EXPECT_EQ(wizard->DoModal(), 2);
  QVLoadString::Install(&host->loadString);
}

}  // namespace
}  // namespace qv
