#include "hostkit/ui/QtClipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

namespace qv {
namespace {

TEST(QtClipboard, ABlockOfTextBecomesTextWithoutItsTerminator) {
  QtClipboard clipboard;
  EXPECT_TRUE(clipboard.PutToClipboard("a\xC3\xB1o", 5, QVClipboard::TextFormat));
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("a\xC3\xB1o"));
}

TEST(QtClipboard, TextBecomesABlockWithATerminatorThatCounts) {
  QGuiApplication::clipboard()->setText(QString::fromUtf8("a\xC3\xB1o"));
  std::unique_ptr<char[]> bytes;
  EXPECT_EQ(QtClipboard().GetFromClipboard(bytes, QVClipboard::TextFormat), 5);
  EXPECT_STREQ(bytes.get(), "a\xC3\xB1o");
}

TEST(QtClipboard, AClipboardWithoutTextGivesNothing) {
  std::unique_ptr<char[]> bytes;
  QGuiApplication::clipboard()->clear();
  EXPECT_LE(QtClipboard().GetFromClipboard(bytes, QVClipboard::TextFormat), 0);
  QGuiApplication::clipboard()->setImage(QImage(2, 2, QImage::Format_RGB32));
  EXPECT_LE(QtClipboard().GetFromClipboard(bytes, QVClipboard::TextFormat), 0);
  EXPECT_EQ(bytes, nullptr);
}

TEST(QtClipboard, OtherFormatsAreNotServed) {
  QtClipboard clipboard;
  std::unique_ptr<char[]> bytes;
  EXPECT_FALSE(clipboard.PutToClipboard("x", 2, 8));
  EXPECT_LE(clipboard.GetFromClipboard(bytes, 8), 0);
  EXPECT_FALSE(clipboard.PutToClipboard("", 0, QVClipboard::TextFormat));
}

}  // namespace
}  // namespace qv
