#include "toolkit/MessageBoxes.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "tests/support/DialogDriver.h"
#include "tests/support/FakeHost.h"
#include "tests/support/TemporaryDirectory.h"
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

  FakeHost host;
  Wordings texts;
  QWidget window;
  MessageBoxes boxes{
      &window, {host.setup, host.mainCfg, host.guids, texts, host.createIndex, host.clipboard}};
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

TEST_F(MessageBoxesTest, OneOfTheLibrarysOwnThatTheLanguageLacksIsNotShown) {
  boxes.Show(Text::DiscriminatorNotOpened);  // would wait for an answer
  texts.additions = {Text::DiscriminatorNotOpened};
  ShowAnd(Text::DiscriminatorNotOpened, {}, [] {
    EXPECT_EQ(Box()->text(), "[60034]");
    Box()->close();
  });
}

TEST_F(MessageBoxesTest, WhatIsAddedStandsBelowTheTextAsItStands) {
  texts.additions = {Text::ItemToRemove, Text::AndMore};
  texts.wordings[Text::ItemToRemove] = L"- %s";
  const Addition addition = {{Text::ItemToRemove, {L"<b>a</b>"}}, {Text::AndMore}};
  const auto look = [] {
    EXPECT_EQ(Box()->text(), "[32368]");
    EXPECT_EQ(Box()->informativeText(), "- <b>a</b>\n[60031]");
    for (const QLabel* label : Box()->findChildren<QLabel*>()) {
      EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
    }
    Box()->close();
  };
  Drive([&] { return boxes.Ask(Text::RemoveDiscriminatorsQuestion, {}, addition); }, look);
  Drive([&] { return boxes.Show(Text::RemoveDiscriminatorsQuestion, {}, addition), 0; }, look);
}

TEST_F(MessageBoxesTest, WithoutTextsForItNothingIsAdded) {
  Drive([this] { return boxes.Show(Text::DiscriminatorNotSaved, {}, AboutFile(L"/a", {})), 0; },
        [] {
          EXPECT_EQ(Box()->informativeText(), "");
          Box()->close();
        });
}

TEST_F(MessageBoxesTest, BeforeItsWindowShowsABoxStandsOverTheOwnerThatDoes) {
  window.setWindowTitle(QStringLiteral("Manager"));
  QDialog middle(&window);
  QDialog dialog(&middle);
  dialog.setWindowTitle(QStringLiteral("Editor"));
  MessageBoxes early(&dialog, host.Services());
  const auto parentOfBox = [&early] {
    const QWidget* parent = nullptr;
    Drive([&] { return early.Show(Text::DiscriminatorNameMissing), 0; },
          [&] {
            parent = Box()->parentWidget();
            EXPECT_EQ(Box()->windowTitle(), "Editor");
            Box()->close();
          });
    return parent;
  };
  EXPECT_EQ(parentOfBox(), nullptr) << "none of them shows";
  window.show();
  EXPECT_EQ(parentOfBox(), &window);
  dialog.show();
  EXPECT_EQ(parentOfBox(), &dialog);
}

/// Boxes of a host that has pictures.
class PicturesOfBoxes : public MessageBoxesTest {
 protected:
  void SetUp() override {
    for (const char* name : {"WARNING-32", "QUESTION-32", "OK-16", "CANCEL-16"}) {
      const int size = QByteArray(name).endsWith("32") ? 32 : 16;
      SavePicture(name, size, Qt::red);
      SavePicture(QByteArray(name) + "@2x", 2 * size, Qt::blue);
    }
    host.setup.imagePath = QVWideString(directory.WidePath());
  }

  void SavePicture(const QByteArray& name, int size, Qt::GlobalColor colour) const {
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(colour);
    const auto path = directory.Path() / (name.toStdString() + ".png");
    EXPECT_TRUE(image.save(QString::fromStdString(path.string())));
  }

  static QColor ColourOf(const QPixmap& pixmap) { return pixmap.toImage().pixelColor(5, 5); }

  TemporaryDirectory directory;
};

TEST_F(PicturesOfBoxes, AreTheHosts) {
  AskAnd([] {
    EXPECT_EQ(ColourOf(Box()->iconPixmap()), QColor(Qt::red));
    EXPECT_EQ(Box()->iconPixmap().deviceIndependentSize(), QSizeF(32, 32));
    for (const auto button : {QMessageBox::Yes, QMessageBox::No}) {
      EXPECT_EQ(ColourOf(Box()->button(button)->icon().pixmap(QSize(16, 16), 1)), QColor(Qt::red));
      EXPECT_EQ(ColourOf(Box()->button(button)->icon().pixmap(QSize(16, 16), 2)), QColor(Qt::blue));
    }
    Box()->close();
  });
  ShowAnd(Text::DiscriminatorNameMissing, {}, [] {
    EXPECT_EQ(ColourOf(Box()->iconPixmap()), QColor(Qt::red));
    EXPECT_FALSE(Box()->button(QMessageBox::Ok)->icon().isNull());
    Box()->close();
  });
}

TEST_F(MessageBoxesTest, WithoutPicturesOfTheHostBoxesHaveThoseOfTheStyle) {
  AskAnd([] {
    EXPECT_EQ(Box()->icon(), QMessageBox::Question);
    EXPECT_FALSE(Box()->iconPixmap().isNull());
    Box()->close();
  });
}

}  // namespace
}  // namespace qv
