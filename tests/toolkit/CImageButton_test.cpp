#include "toolkit/CImageButton.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QStyleOptionButton>

#include "tests/toolkit/PictureFiles.h"

namespace {

constexpr auto noArgument = static_cast<unsigned long>(-1);

/// Lets a test see what the button hands to its style.
class OpenButton : public CImageButton {
 public:
  QString PaintedText() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    return option.text;
  }
};

class CImageButtonTest : public ::testing::Test {
 protected:
  CImageButtonTest() { m_button.resize(300, 24); }

  /// Gives the button a caption that fits, and expects it to read as `reading`.
  void ExpectShown(const QString& caption, const QString& reading) {
    m_button.SetCaption(caption);
    EXPECT_EQ(m_button.ShownCaption(), caption);
    EXPECT_EQ(m_button.PaintedText(), caption);
    EXPECT_TRUE(m_button.toolTip().isEmpty());
    EXPECT_EQ(m_button.accessibleName(), reading);
  }

  qv::PictureFiles m_files;
  OpenButton m_button;
};

const auto longCaption = QStringLiteral("A caption that needs more room than that and \"so\" on");

TEST_F(CImageButtonTest, ShowsItsCaptionWhole) {
  ExpectShown(QStringLiteral("Modify"), QStringLiteral("Modify"));
}

TEST_F(CImageButtonTest, AnAmpersandMarksTheMnemonicAndTwoAreOne) {
  ExpectShown(QStringLiteral("A && &B"), QStringLiteral("A & B"));
  EXPECT_EQ(m_button.shortcut(), QKeySequence(Qt::ALT | Qt::Key_B));
}

TEST_F(CImageButtonTest, AMnemonicStaysInACaptionThatIsElided) {
  m_button.resize(90, 24);
  m_button.SetCaption(QStringLiteral("&A caption that needs more room than that"));
  EXPECT_TRUE(m_button.ShownCaption().startsWith(QLatin1String("&A")));
  EXPECT_TRUE(m_button.toolTip().contains(QStringLiteral("<p>A caption that")));
}

TEST_F(CImageButtonTest, CaptionThatDoesNotFitIsElidedWithATooltip) {
  m_button.resize(90, 24);
  m_button.SetCaption(longCaption);
  EXPECT_TRUE(m_button.ShownCaption().endsWith(QChar(0x2026)));
  EXPECT_EQ(m_button.PaintedText(), m_button.ShownCaption());
  EXPECT_TRUE(m_button.toolTip().contains(QStringLiteral("A caption that needs more room")));
  EXPECT_EQ(m_button.accessibleName(), longCaption);
}

TEST_F(CImageButtonTest, CaptionComesBackWithTheRoom) {
  m_button.SetCaption(longCaption);
  m_button.show();
  m_button.resize(90, 24);
  EXPECT_FALSE(m_button.toolTip().isEmpty());
  m_button.resize(m_button.sizeHint().width() + 20, 24);
  EXPECT_EQ(m_button.ShownCaption(), longCaption);
  EXPECT_TRUE(m_button.toolTip().isEmpty());
}

TEST_F(CImageButtonTest, NaturalWidthIsThatOfTheWholeCaption) {
  m_button.resize(40, 24);
  m_button.SetCaption(longCaption);
  EXPECT_GT(m_button.sizeHint().width(), m_button.fontMetrics().horizontalAdvance(longCaption));
}

TEST_F(CImageButtonTest, NaturalWidthHasRoomForTheWholeCaption) {
  m_button.SetImage(m_files.Write("A-16.png", 16, Qt::red), noArgument, false);
  m_button.SetCaption(QStringLiteral("Configuration"));
  m_button.resize(m_button.sizeHint());
  EXPECT_EQ(m_button.ShownCaption(), QStringLiteral("Configuration"));
}

TEST_F(CImageButtonTest, GreaterFontElides) {
  m_button.SetCaption(QStringLiteral("Configuration of things"));
  m_button.show();
  ASSERT_TRUE(m_button.toolTip().isEmpty());
  QFont font = m_button.font();
  font.setPointSize(40);
  m_button.setFont(font);
  EXPECT_FALSE(m_button.toolTip().isEmpty());
}

TEST_F(CImageButtonTest, PictureTakesRoomFromTheCaption) {
  m_button.SetCaption(longCaption);
  m_button.resize(150, 24);
  const auto without = m_button.ShownCaption().size();
  m_button.SetImage(m_files.Write("A-16.png", 16, Qt::red), noArgument, false);
  EXPECT_LT(m_button.ShownCaption().size(), without);
}

TEST_F(CImageButtonTest, PictureIsPainted) {
  m_button.SetCaption(QStringLiteral("Red"));
  m_button.SetImage(m_files.Write("A-16.png", 16, Qt::red), noArgument, false);
  EXPECT_EQ(qv::CountPixels(m_button.grab().toImage(), Qt::red), 16 * 16);
}

TEST_F(CImageButtonTest, MissingPictureLeavesAPlainButton) {
  m_button.SetCaption(QStringLiteral("Plain"));
  const QSize plain = m_button.sizeHint();
  m_button.SetImage(m_files.Path("absent.png"), noArgument, false);
  EXPECT_TRUE(m_button.icon().isNull());
  EXPECT_EQ(m_button.sizeHint(), plain);
}

TEST_F(CImageButtonTest, AHintStandsInTheTooltipBelowAnElidedCaption) {
  m_button.SetCaption(QStringLiteral("Add"));
  m_button.SetHint(QStringLiteral("Insert key"));
  EXPECT_EQ(m_button.toolTip(), "<p>Insert key</p>");
  EXPECT_EQ(m_button.accessibleDescription(), "Insert key");
  m_button.resize(90, 24);
  m_button.SetCaption(longCaption);
  EXPECT_EQ(m_button.accessibleDescription(), longCaption + "\nInsert key");
  EXPECT_TRUE(m_button.toolTip().endsWith(QLatin1String("<br>Insert key</p>")));
}

TEST_F(CImageButtonTest, MissingPictureTakesAnOlderOneAway) {
  m_button.SetImage(m_files.Write("A-16.png", 16, Qt::red), noArgument, false);
  m_button.SetImage(m_files.Path("absent.png"), noArgument, false);
  EXPECT_TRUE(m_button.icon().isNull());
}

TEST_F(CImageButtonTest, CaptionOfATemplateIsLeftToTheStyle) {
  m_button.SetCaption(QStringLiteral("Other"));
  m_button.setText(QStringLiteral("&Accept"));
  EXPECT_EQ(m_button.PaintedText(), QStringLiteral("&Accept"));
}

TEST(CImageButton, TakesReturnForItselfInADialog) {
  QDialog dialog;
  const CImageButton button(&dialog);
  EXPECT_TRUE(button.autoDefault());
}

}  // namespace
