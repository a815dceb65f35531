// A stroke is drawn on the year with a real mouse, which the offscreen platform doesn't have.
#include <gtest/gtest.h>

#include <QTest>

#include "tests/support/VirtualDisplay.h"

namespace qv {
namespace {

TEST(YearDragging, ARealDragMarksDates) {
  const VirtualDisplay display;
  QProcess process;
  display.Start(process, CALENDAR_FILE, {});
  display.Focus(process);
  display.Press("Down");  // the list has the focus, and its first row becomes the brush
  // From one month into one of the row below, at the dialog's own size.
  display.Drag(process, {100, 110}, {420, 230});
  display.Press("Return");
  ASSERT_TRUE(process.waitForFinished(patience));
  const QStringList words = QString::fromLatin1(process.readAllStandardOutput()).split(' ');
  ASSERT_EQ(words.size(), 3);
  EXPECT_EQ(words[0], "1");
  EXPECT_GT(words[1].toInt(), 40);
  EXPECT_LE(words[1].toInt(), words[2].toInt());
}

}  // namespace
}  // namespace qv
