// What an expression edit proposes, as its user sees and steers it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>

#include "toolkit/ExpressionEdit.h"
#include "toolkit/ProposalList.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

class ExpressionCompletionTest : public testing::Test {
 protected:
  ExpressionCompletionTest() {
    auto* column = new QVBoxLayout(&dialog);
    column->addWidget(&edit);
    column->addWidget(&ok);
    ok.setDefault(true);
    QObject::connect(&ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    edit.SetProposals([this](const QString& text, int place) { return Offer(text, place); },
                      QStringLiteral("Proposals"));
    dialog.open();
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    edit.setFocus();
  }

  /// Those of `words` that begin with what stands between the last blank, dot or bracket and the
  /// cursor.
  ExpressionProposals Offer(const QString& text, int place) const {
    int start = place;
    while (start > 0 && text[start - 1].isLetterOrNumber()) {
      --start;
    }
    ExpressionProposals offer{{start, place - start}, {}};
    for (const auto& word : words) {
      if (ToQString(word.text).startsWith(text.mid(start, place - start), Qt::CaseInsensitive)) {
        offer.proposals.push_back(word);
      }
    }
    return offer;
  }

  QStringList Shown() const {
    QStringList texts;
    for (int row = 0; list.isVisible() && row < list.topLevelItemCount(); ++row) {
      texts.append(list.topLevelItem(row)->text(0));
    }
    return texts;
  }

  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&edit, key, modifiers);
  }

  std::vector<ExpressionProposal> words = {
      {L"VL1", L"voltage", 3}, {L"VL2", L"voltage", 3}, {L"max(, )", L"the larger one", 4}};
  QDialog dialog;
  ExpressionEdit edit;
  QPushButton ok;
  ProposalList& list = *edit.findChild<ProposalList*>();
};

TEST_F(ExpressionCompletionTest, ControlAndSpaceShowWhatMayBeWritten) {
  Key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Shown(),
            QStringList({QStringLiteral("VL1"), QStringLiteral("VL2"), QStringLiteral("max(, )")}));
  EXPECT_EQ(list.topLevelItem(2)->text(1), QStringLiteral("the larger one"));
  EXPECT_EQ(list.Current(), 0);
  EXPECT_EQ(list.accessibleName(), QStringLiteral("Proposals"));
  EXPECT_EQ(edit.text(), QString());
}

TEST_F(ExpressionCompletionTest, TheListNeverTakesTheFocus) {
  Key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), &edit);
  EXPECT_TRUE(dialog.isActiveWindow());
  EXPECT_TRUE(list.isWindow());
}

TEST_F(ExpressionCompletionTest, ADotThatIsTypedOpensTheListAndOtherCharactersDoNot) {
  QTest::keyClicks(&edit, QStringLiteral("TS1"));
  EXPECT_EQ(Shown(), QStringList());
  QTest::keyClicks(&edit, QStringLiteral("."));
  EXPECT_EQ(Shown().size(), 3);
}

TEST_F(ExpressionCompletionTest, ADotThatIsLaidBareDoesNot) {
  edit.setText(QStringLiteral("TS1.V"));
  Key(Qt::Key_Backspace);
  EXPECT_EQ(edit.text(), QStringLiteral("TS1."));
  EXPECT_EQ(Shown(), QStringList());
}

TEST_F(ExpressionCompletionTest, TypingNarrowsTheListAndErasingWidensIt) {
  QTest::keyClicks(&edit, QStringLiteral(".v"));
  EXPECT_EQ(Shown().size(), 2);
  QTest::keyClicks(&edit, QStringLiteral("l2"));
  EXPECT_EQ(Shown(), QStringList({QStringLiteral("VL2")}));
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Shown().size(), 2);
  QTest::keyClicks(&edit, QStringLiteral("x"));
  EXPECT_EQ(Shown(), QStringList());
}

TEST_F(ExpressionCompletionTest, ArrowsChooseAndReturnTakesWithoutConfirmingTheDialog) {
  QTest::keyClicks(&edit, QStringLiteral("TS1.v"));
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);  // stays at the last one
  Key(Qt::Key_Return);
  EXPECT_EQ(edit.text(), QStringLiteral("TS1.VL2"));
  EXPECT_EQ(edit.cursorPosition(), 7);
  EXPECT_FALSE(list.isVisible());
  EXPECT_TRUE(dialog.isVisible());
  Key(Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ExpressionCompletionTest, TabTakesTooAndKeepsTheFocus) {
  QTest::keyClicks(&edit, QStringLiteral(".v"));
  Key(Qt::Key_PageDown);
  Key(Qt::Key_Up);
  Key(Qt::Key_Tab);
  EXPECT_EQ(edit.text(), QStringLiteral(".VL1"));
  EXPECT_TRUE(edit.hasFocus());
  Key(Qt::Key_Tab);
  EXPECT_FALSE(edit.hasFocus());
}

TEST_F(ExpressionCompletionTest, EscapeClosesTheListFirstAndThenTheDialog) {
  QTest::keyClicks(&edit, QStringLiteral(".v"));
  Key(Qt::Key_Escape);
  EXPECT_FALSE(list.isVisible());
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(edit.text(), QStringLiteral(".v"));
  Key(Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ExpressionCompletionTest, AClickTakes) {
  QTest::keyClicks(&edit, QStringLiteral("."));
  const QRect row = list.visualItemRect(list.topLevelItem(1));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row.center());
  EXPECT_EQ(edit.text(), QStringLiteral(".VL2"));
  EXPECT_FALSE(list.isVisible());
  EXPECT_TRUE(edit.hasFocus());
}

TEST_F(ExpressionCompletionTest, TheOnlyProposalIsTakenAtOnceOnWishButNotWhileTyping) {
  QTest::keyClicks(&edit, QStringLiteral("1 + ma"));
  Key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(edit.text(), QStringLiteral("1 + max(, )"));
  EXPECT_EQ(edit.cursorPosition(), 8);
  words = {{L"VL1", L"", 3}};
  QTest::keyClicks(&edit, QStringLiteral("TS1."));
  EXPECT_EQ(edit.text(), QStringLiteral("1 + max(TS1., )"));
  EXPECT_EQ(Shown(), QStringList({QStringLiteral("VL1")}));
}

TEST_F(ExpressionCompletionTest, ATakenProposalIsOneStepOfUndo) {
  QTest::keyClicks(&edit, QStringLiteral("TS1.v"));
  Key(Qt::Key_Return);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edit.text(), QStringLiteral("TS1.v"));
}

TEST_F(ExpressionCompletionTest, WhatIsWrittenAlreadyIsNotProposed) {
  QTest::keyClicks(&edit, QStringLiteral(".VL1"));
  EXPECT_EQ(Shown(), QStringList());
  Key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Shown(), QStringList());
  EXPECT_EQ(edit.text(), QStringLiteral(".VL1"));
}

TEST_F(ExpressionCompletionTest, ANameThatEndsInADotGoesOnWithItsParts) {
  words.push_back({L"TS1.", L"", 4});
  QTest::keyClicks(&edit, QStringLiteral("T"));
  Key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(edit.text(), QStringLiteral("TS1."));
  EXPECT_EQ(Shown().size(), 4);
}

TEST_F(ExpressionCompletionTest, TheListClosesWhenItsEditIsLeft) {
  const std::function<void()> departures[] = {
      [this] { ok.setFocus(); }, [this] { dialog.resize(400, 200); },
      [this] {
        QTest::mouseClick(&dialog, Qt::LeftButton, {}, {1, 1});
      },
      [this] { QTest::mouseClick(&edit, Qt::LeftButton); }};
  for (const auto& leave : departures) {
    edit.setFocus();
    edit.setText({});
    Key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(list.isVisible());
    leave();
    EXPECT_FALSE(list.isVisible());
  }
}

TEST_F(ExpressionCompletionTest, NothingIsProposedToWhoMayNotWrite) {
  edit.setReadOnly(true);
  Key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Shown(), QStringList());
}

TEST_F(ExpressionCompletionTest, NamesShowAsTheyAre) {
  words = {{L"a&b", L"<b>x</b>", 3}, {L"<i>c</i>", L"", 8}};
  Key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Shown(), QStringList({QStringLiteral("a&b"), QStringLiteral("<i>c</i>")}));
  Key(Qt::Key_Return);
  EXPECT_EQ(edit.text(), QStringLiteral("a&b"));
}

TEST_F(ExpressionCompletionTest, TheListIsAsWideAsItsTextsAndWithinTheScreen) {
  Key(Qt::Key_Space, Qt::ControlModifier);
  const int narrow = list.width();
  Key(Qt::Key_Escape);
  for (int i = 0; i < 200; ++i) {
    words.push_back({L"VARIABLE_" + std::to_wstring(i), std::wstring(40, L'x'), 3});
  }
  Key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_GT(list.width(), narrow);
  EXPECT_LT(list.height(), 400);
  Key(Qt::Key_Escape);
  words.push_back({std::wstring(500, L'x'), L"long", 3});
  Key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_TRUE(edit.screen()->availableGeometry().contains(list.geometry()));
}

TEST_F(ExpressionCompletionTest, TheListIsAboveAnEditAtTheEndOfTheScreen) {
  const QRect screen = edit.screen()->availableGeometry();
  dialog.move(screen.bottomRight() - QPoint(dialog.width(), dialog.height()));
  Key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_LE(list.geometry().bottom(), edit.mapToGlobal(QPoint(0, edit.height())).y());
  EXPECT_TRUE(screen.contains(list.geometry()));
}

}  // namespace
}  // namespace qv
