// A slot is selected on the grid with a real mouse, which the offscreen platform doesn't have.
#include <gtest/gtest.h>

#include <QTest>

#include "tests/support/VirtualDisplay.h"

namespace qv {
namespace {

TEST(SlotDragging, ARealDragSelectsASlot) {
  const VirtualDisplay display;
  QProcess process;
  display.Start(process, SLOT_EDITOR_FILE, {});
  display.Focus(process);
  // Two places inside the grid, the second to the right of the first, at the dialog's own size.
  display.Drag(process, {150, 165}, {350, 260});
  display.Press("Return");
  ASSERT_TRUE(process.waitForFinished(patience));
  const QString line = QString::fromLatin1(process.readAllStandardOutput()).trimmed();
  EXPECT_TRUE(line.startsWith("1 ")) << qPrintable(line);
  const int from = line.mid(2, 2).toInt() * 60 + line.mid(5, 2).toInt();
  const int to = line.mid(8, 2).toInt() * 60 + line.mid(11, 2).toInt();
  EXPECT_GT(from, 0) << qPrintable(line);
  EXPECT_GT(to - from, 4 * 60) << qPrintable(line);
  EXPECT_EQ(from % 15, 0);
  EXPECT_EQ(to % 15, 0);
}

}  // namespace
}  // namespace qv
