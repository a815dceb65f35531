#include "toolkit/MessageBoxes.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "toolkit/Texts.h"

namespace qv {
namespace {

/// Texts with what boxes have to cope with.
class Wordings : public NumberTexts {
 public:
  QVWideString& operator()(unsigned id, QVWideString& text) const override {
    const auto found = wordings.find(static_cast<Text>(id));
    return found == wordings.end() ? NumberTexts::operator()(id, text) : text = found->second;
  }
  std::map<Text, const wchar_t*> wordings;
};

class MessageBoxesTest : public testing::Test {
 protected:
  static QMessageBox* Box() { return qobject_cast<QMessageBox*>(TopWindow()); }

  bool AskAnd(const std::function<void()>& script) {
    return Drive([this] { return boxes.Ask(Text::RemoveDiscriminatorsQuestion); }, script) != 0;
  }

  void ShowAnd(Text text, const Prompter::Arguments& arguments,
               const std::function<void()>& script) {
    Drive([&] { return boxes.Show(text, arguments), 0; }, script);
  }

  Wordings texts;
  QWidget window;
  MessageBoxes boxes{&window, texts};
};

TEST_F(MessageBoxesTest, ABoxShowsItsTextAndCarriesItsNumber) {
  ShowAnd(Text::DiscriminatorNameMissing, {}, [this] {
    EXPECT_EQ(Box()->text(), HostText(texts, Text::DiscriminatorNameMissing));
    EXPECT_EQ(Box()->property("textNumber").toUInt(), Number(Text::DiscriminatorNameMissing));
    QTest::keyClick(Box(), Qt::Key_Return);
  });
}

TEST_F(MessageBoxesTest, PlaceholdersAreFilledIn) {
  texts.wordings[Text::DiscriminatorNameMissing] = L"%d of %s";
  ShowAnd(Text::DiscriminatorNameMissing, {3, L"many"}, [] {
    EXPECT_EQ(Box()->text(), "3 of many");
    Box()->close();
  });
}

TEST_F(MessageBoxesTest, WithoutArgumentsAPerCentSignStandsForItself) {
  texts.wordings[Text::DiscriminatorNameMissing] = L"100 %s <b>";
  ShowAnd(Text::DiscriminatorNameMissing, {}, [] {
    EXPECT_EQ(Box()->text(), "100 %s <b>");
    EXPECT_EQ(Box()->textFormat(), Qt::PlainText);
    Box()->close();
  });
}

TEST_F(MessageBoxesTest, AMessageReadsPlain) {
  texts.wordings[Text::DiscriminatorNameMissing] = L"&Name && value of %s";
  ShowAnd(Text::DiscriminatorNameMissing, {L"R&D"}, [] {
    EXPECT_EQ(Box()->text(), "Name & value of R&D") << "in data it is a character";
    Box()->close();
  });
}

TEST_F(MessageBoxesTest, ReturnPressesTheFocusedButton) {
  EXPECT_FALSE(AskAnd([] {
    QAbstractButton* no = Box()->button(QMessageBox::No);
    no->setFocus(Qt::TabFocusReason);
    QTest::keyClick(no, Qt::Key_Return);
  }));
  EXPECT_TRUE(AskAnd([] { QTest::keyClick(Box(), Qt::Key_Return); })) << "Yes at first";
}

TEST_F(MessageBoxesTest, OnlyYesIsYes) {
  EXPECT_TRUE(AskAnd([] { Box()->button(QMessageBox::Yes)->click(); }));
  EXPECT_FALSE(AskAnd([] { Box()->button(QMessageBox::No)->click(); }));
  EXPECT_FALSE(AskAnd([] { QTest::keyClick(Box(), Qt::Key_Escape); }));
  EXPECT_FALSE(AskAnd([] { Box()->close(); }));
}

TEST_F(MessageBoxesTest, ButtonsTakeTheHostsCaptionsIfItHasThem) {
  AskAnd([this] {
    EXPECT_NE(Box()->button(QMessageBox::Yes)->text(), HostText(texts, Text::MessageYes));
    Box()->close();
  });
  texts.additions = {Text::MessageYes, Text::MessageNo};
  AskAnd([this] {
    EXPECT_EQ(Box()->button(QMessageBox::Yes)->text(), HostText(texts, Text::MessageYes));
    EXPECT_EQ(Box()->button(QMessageBox::No)->text(), HostText(texts, Text::MessageNo));
    Box()->close();
  });
}

TEST_F(MessageBoxesTest, ATextWithoutNumberIsShownAsItStands) {
  Drive([this] { return boxes.ShowText(L"50 % <i>"), 0; },
        [] {
          EXPECT_EQ(Box()->text(), "50 % <i>");
          Box()->close();
        });
}

TEST_F(MessageBoxesTest, TheTitleIsThatOfTheWindow) {
  window.setWindowTitle(QStringLiteral("Manager"));
  ShowAnd(Text::DiscriminatorNameMissing, {}, [] {
    EXPECT_EQ(Box()->windowTitle(), "Manager");
    Box()->close();
  });
}

}  // namespace
}  // namespace qv
