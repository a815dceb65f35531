#include "toolkit/DialogColumn.h"

#include <gtest/gtest.h>

#include "tests/toolkit/LayoutWindow.h"
#include "toolkit/Types.h"

namespace qv {
namespace {

constexpr int control = 10;
constexpr int label = 11;

class DialogColumnTest : public testing::Test {
 protected:
  DialogColumnTest() : metrics(window.Metrics()) {
    for (const int id : {IDOK, IDCANCEL, control, label}) {
      window.Add(id);
    }
  }

  /// Left edge and width of OK and Cancel in a row of 200 pixels.
  std::vector<int> Row(OkCancelWidth width) {
    OkCancelRow row(&window, width);
    row.Layout({0, 0, 200, 20});
    return {window.At(IDOK).left(), window.At(IDOK).width(), window.At(IDCANCEL).left(),
            window.At(IDCANCEL).width()};
  }

  LayoutWindow window;
  LayoutMetrics metrics;
};

TEST_F(DialogColumnTest, OkAndCancelTakeTheWholeWidth) {
  const int half = (200 - metrics.standard) / 2;
  EXPECT_EQ(Row(OkCancelWidth::Whole),
            (std::vector<int>{0, half, half + metrics.standard, 200 - half - metrics.standard}));
}

TEST_F(DialogColumnTest, OkAndCancelLeaveATenthFreeOnBothSides) {
  const auto row = Row(OkCancelWidth::Narrow);
  const int tenth = (200 - metrics.standard) / 10;
  EXPECT_NEAR(row[0], tenth, 1);
  EXPECT_NEAR(row[1], 4 * tenth, 3);
  EXPECT_EQ(row[2], row[0] + row[1] + metrics.standard);
  EXPECT_NEAR(row[3], row[1], 1);
}

TEST_F(DialogColumnTest, OkAndCancelLeaveWideMarginsFree) {
  const auto row = Row(OkCancelWidth::WideMargins);
  EXPECT_EQ(row[0], metrics.wide);
  EXPECT_EQ(row[2] + row[3], 200 - metrics.wide);
}

TEST_F(DialogColumnTest, PartsHaveGapsAroundAndBetweenThem) {
  OkCancelRow buttons(&window, OkCancelWidth::Whole);
  DialogColumn column(&window);
  column.Add(control, 100);
  column.Add(&buttons, LayoutSizeStandard);
  column.Layout({0, 0, 200, 100});
  const int gap = metrics.standard;
  EXPECT_EQ(window.At(control), QRect(gap, gap, 200 - 2 * gap, 100 - 3 * gap - metrics.button));
  EXPECT_EQ(window.At(IDOK).topLeft(), QPoint(gap, 100 - gap - metrics.button));
  EXPECT_EQ(window.At(IDOK).height(), metrics.button);
}

TEST_F(DialogColumnTest, ALabelStandsTwoPixelsAboveItsControl) {
  DialogColumn column(&window);
  column.AddLabelled(control, label);
  column.Layout({0, 0, 200, 100});
  EXPECT_EQ(window.At(label).top(), metrics.standard);
  EXPECT_EQ(window.At(label).height(), metrics.label);
  EXPECT_EQ(window.At(control).top(), window.At(label).bottom() + 1 + 2);
  EXPECT_EQ(window.At(control).height(), metrics.edit);
}

}  // namespace
}  // namespace qv
