#include "toolkit/Caption.h"

#include <gtest/gtest.h>

#include "tests/toolkit/PictureFiles.h"

namespace qv {
namespace {

TEST(Caption, AmpersandsAreDoubledInALiteralText) {
  EXPECT_EQ(LiteralText(QStringLiteral("a & b &&")), QStringLiteral("a && b &&&&"));
  EXPECT_EQ(LiteralText(QString()), QString());
}

TEST(Caption, ElidesOnlyWhatDoesNotFit) {
  const QWidget widget;
  const QFontMetrics font = widget.fontMetrics();
  const auto text = QStringLiteral("Selección rápida y más");
  const int width = CaptionWidth(text, font);
  EXPECT_EQ(ElidedCaption(text, font, width), text);
  EXPECT_NE(ElidedCaption(text, font, width - 1), text);
  const QString cut = ElidedCaption(text, font, width / 2);
  EXPECT_TRUE(cut.endsWith(QChar(0x2026)));
  EXPECT_TRUE(text.startsWith(cut.chopped(1)));
  EXPECT_LE(font.horizontalAdvance(cut), width / 2);
}

TEST(Caption, TooltipAppearsOnlyWhereTheCaptionIsCut) {
  QWidget widget;
  const auto text = QStringLiteral("A caption of some length");
  DescribeByCaption(&widget, text, 20);
  EXPECT_TRUE(widget.toolTip().contains(text));
  EXPECT_EQ(widget.accessibleName(), text);
  DescribeByCaption(&widget, text, 2000);
  EXPECT_TRUE(widget.toolTip().isEmpty());
  EXPECT_EQ(widget.accessibleName(), text);
}

TEST(Caption, TagsInACaptionAreNoTagsInItsTooltip) {
  QWidget widget;
  DescribeByCaption(&widget, QStringLiteral("<b>bold</b>"), 10);
  EXPECT_TRUE(widget.toolTip().contains(QStringLiteral("&lt;b&gt;bold")));
  EXPECT_FALSE(widget.accessibleDescription().contains(QLatin1Char('&'))) << "plain words";
}

TEST(PictureIcon, HasThePictureAndItsDoubledForm) {
  const PictureFiles files;
  const QVWideString path = files.Write("A-16.png", 16, Qt::red);
  files.Write("A-16@2x.png", 32, Qt::blue);
  const QIcon icon = PictureIcon(path);
  EXPECT_EQ(icon.pixmap(QSize(16, 16), 1.0).toImage().pixelColor(8, 8), QColor(Qt::red));
  const QPixmap dense = icon.pixmap(QSize(16, 16), 2.0);
  EXPECT_EQ(dense.size(), QSize(32, 32));
  EXPECT_EQ(dense.toImage().pixelColor(8, 8), QColor(Qt::blue));
}

TEST(PictureIcon, DoesWithoutADoubledForm) {
  const PictureFiles files;
  const QIcon icon = PictureIcon(files.Write("A-16.png", 16, Qt::red));
  EXPECT_EQ(icon.availableSizes(), QList<QSize>{QSize(16, 16)});
}

TEST(PictureIcon, IsNullWithoutAPicture) {
  const PictureFiles files;
  EXPECT_TRUE(PictureIcon(files.Path("absent.png")).isNull());
  EXPECT_TRUE(PictureIcon(files.WriteText("text.png")).isNull());
  EXPECT_TRUE(PictureIcon(QVWideString()).isNull());
}

}  // namespace
}  // namespace qv
