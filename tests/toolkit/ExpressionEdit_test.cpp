#include "toolkit/ExpressionEdit.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace qv {
namespace {

using Kind = ExpressionMark::Kind;

class ExpressionEditTest : public testing::Test {
 protected:
  ExpressionEditTest() {
    window.resize(300, 60);
    (new QVBoxLayout(&window))->addWidget(&edit);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    edit.setFocus();
  }

  QImage Picture() { return edit.grab().toImage(); }

  /// What `edit` looks like without a cursor, which blinks, and with these marks.
  QImage PictureWith(const std::vector<ExpressionMark>& marks) {
    edit.clearFocus();
    edit.SetMarks(marks);
    return Picture();
  }

  QWidget window;
  ExpressionEdit edit;
};

TEST_F(ExpressionEditTest, MarksAreSeenUntilOthersAreSet) {
  edit.setText(QStringLiteral("(a + b)"));
  const QImage plain = PictureWith({});
  std::vector<QImage> pictures = {plain};
  for (const Kind kind : {Kind::Fault, Kind::NotKept, Kind::Bracket}) {
    pictures.push_back(PictureWith({{{1, 3}, kind}}));
    for (std::size_t i = 0; i + 1 < pictures.size(); ++i) {
      EXPECT_NE(pictures.back(), pictures[i]) << i;
    }
  }
  EXPECT_EQ(PictureWith({}), plain);
}

TEST_F(ExpressionEditTest, MarksTellNobodyAndMoveNothing) {
  QTest::keyClicks(&edit, QStringLiteral("abc"));
  edit.setSelection(2, -2);
  QSignalSpy changed(&edit, &QLineEdit::textChanged);
  QSignalSpy edited(&edit, &QLineEdit::textEdited);
  QSignalSpy moved(&edit, &QLineEdit::cursorPositionChanged);
  QSignalSpy selected(&edit, &QLineEdit::selectionChanged);
  edit.SetMarks({{{0, 2}, Kind::Fault}});
  edit.SetMarks({});
  EXPECT_EQ(changed.size() + edited.size() + moved.size() + selected.size(), 0);
  EXPECT_EQ(edit.selectedText(), QStringLiteral("ab"));
  EXPECT_EQ(edit.cursorPosition(), 0);
}

TEST_F(ExpressionEditTest, MarksSetWhileTypingLeaveUndoAndRedoWhole) {
  QObject::connect(&edit, &QLineEdit::textChanged, &edit, [this] {
    edit.SetMarks({{{0, 1}, Kind::Fault}});
  });
  QTest::keyClicks(&edit, QStringLiteral("abc"));
  edit.undo();
  EXPECT_EQ(edit.text(), QString());
  edit.redo();
  EXPECT_EQ(edit.text(), QStringLiteral("abc"));
}

TEST_F(ExpressionEditTest, MarksStayWhenTheProgramSetsAText) {
  edit.setText(QStringLiteral("abc"));
  const QImage marked = PictureWith({{{0, 3}, Kind::Fault}});
  edit.setText(QStringLiteral("xyz"));
  edit.setText(QStringLiteral("abc"));
  EXPECT_EQ(Picture(), marked);
}

TEST_F(ExpressionEditTest, AFaultOfNoLengthIsSeenAtTheCharacterBefore) {
  edit.setText(QStringLiteral("abc"));
  EXPECT_EQ(PictureWith({{{3, 0}, Kind::Fault}}), PictureWith({{{2, 1}, Kind::Fault}}));
  EXPECT_EQ(PictureWith({{{0, 0}, Kind::Fault}}), PictureWith({{{0, 1}, Kind::Fault}}));
}

TEST_F(ExpressionEditTest, PlacesOutsideTheTextAreCut) {
  edit.setText(QStringLiteral("abc"));
  EXPECT_EQ(PictureWith({{{1, 1000}, Kind::Fault}}), PictureWith({{{1, 2}, Kind::Fault}}));
  EXPECT_EQ(PictureWith({{{64, 10}, Kind::NotKept}}), PictureWith({}));
  edit.clear();
  EXPECT_EQ(PictureWith({{{0, 0}, Kind::Fault}}), PictureWith({}));
}

TEST_F(ExpressionEditTest, PlacesCountCharactersBeyondTheBasicPlaneOnce) {
  edit.setText(QString::fromUtf8("\xF0\x9D\x84\x9E\xF0\x9D\x84\x9E(b)"));
  edit.Select({1, 2});
  EXPECT_EQ(edit.selectedText(), QString::fromUtf8("\xF0\x9D\x84\x9E("));
  EXPECT_EQ(edit.Selection(), (ExpressionPlace{1, 2}));
  edit.Select({3, 0});
  EXPECT_EQ(edit.cursorPosition(), 5);
  EXPECT_EQ(edit.Selection(), (ExpressionPlace{3, 0}));
  edit.Replace({3, 1}, QStringLiteral("max()"), 4);
  EXPECT_EQ(edit.text(), QString::fromUtf8("\xF0\x9D\x84\x9E\xF0\x9D\x84\x9E(max())"));
  EXPECT_EQ(edit.Selection(), (ExpressionPlace{7, 0}));
}

TEST_F(ExpressionEditTest, KeysThatLeadToItSelectNothing) {
  edit.setText(QStringLiteral("abcd"));
  for (const auto reason : {Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::ShortcutFocusReason}) {
    edit.clearFocus();
    edit.setCursorPosition(2);
    edit.setFocus(reason);
    EXPECT_FALSE(edit.hasSelectedText());
    EXPECT_EQ(edit.cursorPosition(), 2);
  }
}

TEST_F(ExpressionEditTest, TheSelectionStaysWhenTheFocusGoes) {
  edit.setText(QStringLiteral("abcd"));
  for (const int length : {2, -2}) {
    edit.setFocus();
    edit.setSelection(2, length);
    const int cursor = edit.cursorPosition();
    edit.clearFocus();
    EXPECT_EQ(edit.selectedText().size(), 2);
    EXPECT_EQ(edit.cursorPosition(), cursor);
  }
}

/// Lets an input method show `preedit` in the edit and put `commit` into it.
void Compose(QWidget& edit, const QString& preedit, const QString& commit = {}) {
  QInputMethodEvent event(preedit, {});
  event.setCommitString(commit);
  QApplication::sendEvent(&edit, &event);
}

TEST_F(ExpressionEditTest, MarksWaitForTheEndOfAComposition) {
  edit.setText(QStringLiteral("abc"));
  edit.clearFocus();  // so that no cursor blinks in the pictures
  Compose(edit, QStringLiteral("wide text"));
  const QImage composing = Picture();
  edit.SetMarks({{{0, 2}, Kind::Fault}, {{2, 1}, Kind::NotKept}});
  EXPECT_EQ(Picture(), composing);
  Compose(edit, {}, QStringLiteral("d"));
  EXPECT_EQ(edit.text(), QStringLiteral("abcd"));
  const QImage afterwards = Picture();
  EXPECT_EQ(PictureWith(edit.Marks()), afterwards);
  EXPECT_NE(PictureWith({}), afterwards);
}

TEST_F(ExpressionEditTest, MarksSurviveACompositionThatWasGivenUp) {
  edit.setText(QStringLiteral("abc"));
  const QImage marked = PictureWith({{{0, 2}, Kind::Fault}});
  Compose(edit, QStringLiteral("x"));
  Compose(edit, {});
  EXPECT_EQ(Picture(), marked);
}

TEST_F(ExpressionEditTest, FaultsAreLegibleOnLightAndOnDarkGround) {
  for (const QColor& ground : {QColor(Qt::white), QColor(Qt::black), QColor(0x2B, 0x2B, 0x2B)}) {
    QPalette palette;
    palette.setColor(QPalette::Base, ground);
    EXPECT_GE(std::abs(qGray(FaultColour(palette).rgb()) - qGray(ground.rgb())), 90);
  }
}

TEST_F(ExpressionEditTest, ReplacingIsOneStepOfUndo) {
  QTest::keyClicks(&edit, QStringLiteral("1 + ma"));
  edit.Replace({4, 2}, QStringLiteral("max(, )"), 4);
  EXPECT_EQ(edit.cursorPosition(), 8);
  QTest::keyClicks(&edit, QStringLiteral("2"));
  edit.undo();
  EXPECT_EQ(edit.text(), QStringLiteral("1 + max(, )"));
  edit.undo();
  EXPECT_EQ(edit.text(), QStringLiteral("1 + ma"));
  edit.undo();
  EXPECT_EQ(edit.text(), QString());
}

TEST_F(ExpressionEditTest, InsertingBetweenWordsIsOneStepOfUndoToo) {
  for (const char* before : {"", "TS1."}) {
    edit.clear();
    QTest::keyClicks(&edit, QString::fromLatin1(before));
    edit.Replace({edit.cursorPosition(), 0}, QStringLiteral("VL1"), 3);
    edit.undo();
    EXPECT_EQ(edit.text(), QString::fromLatin1(before));
  }
}

TEST_F(ExpressionEditTest, ReplacingTellsOfOneChangeAsOfTyping) {
  edit.setText(QStringLiteral("ab"));
  QSignalSpy changed(&edit, &QLineEdit::textChanged);
  QSignalSpy edited(&edit, &QLineEdit::textEdited);
  edit.Replace({0, 2}, QStringLiteral("xyz"), 1);
  EXPECT_EQ(changed.size(), 1);
  EXPECT_EQ(edited.size(), 1);
  EXPECT_EQ(edit.cursorPosition(), 1);
}

TEST(ExpressionEdit, WorksWithoutBeingShown) {
  ExpressionEdit edit;
  edit.setText(QStringLiteral("abc"));
  edit.SetMarks({{{1, 1}, Kind::Fault}});
  edit.Replace({1, 1}, QStringLiteral("x"), 1);
  EXPECT_EQ(edit.text(), QStringLiteral("axc"));
  EXPECT_EQ(edit.Marks().size(), 1);
}

}  // namespace
}  // namespace qv
