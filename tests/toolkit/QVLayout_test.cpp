#include "toolkit/QVLayout.h"

#include <gtest/gtest.h>

#include "tests/toolkit/LayoutWindow.h"

namespace qv {
namespace {

constexpr QRect area(10, 20, 300, 200);

class QVLayoutTest : public ::testing::Test {
 protected:
  QVLayoutTest() {
    for (const int id : {1, 2, 3, 4}) {
      m_window.Add(id);
    }
  }

  /// Where a control stands that has all of a layout within its borders.
  template <class Layout>
  QRect PlaceWithin(LayoutSize firstBorder, LayoutSize secondBorder, const QRect& room = area) {
    Layout layout(&m_window);
    layout.SetBorders(firstBorder, secondBorder);
    layout.AddControl(1, 100);
    layout.Layout(room);
    return m_window.At(1);
  }

  LayoutWindow m_window;
  LayoutMetrics m_metrics = m_window.Metrics();
};

TEST_F(QVLayoutTest, ColumnSpreadsItsItemsOverTheWidth) {
  QVVerticalLayout column(&m_window);
  column.AddControl(1, PixelSize(30));
  column.AddGap(PixelSize(10));
  column.AddControl(2, 100);
  column.Layout(area);
  EXPECT_EQ(m_window.At(1), QRect(10, 20, 300, 30));
  EXPECT_EQ(m_window.At(2), QRect(10, 60, 300, 160));
}

TEST_F(QVLayoutTest, RowSpreadsItsItemsOverTheHeight) {
  QVHoritzontalLayout row(&m_window);
  row.AddControl(1, 50);
  row.AddGap(PixelSize(20));
  row.AddControl(2, 50);
  row.Layout(area);
  EXPECT_EQ(m_window.At(1), QRect(10, 20, 140, 200));
  EXPECT_EQ(m_window.At(2), QRect(170, 20, 140, 200));
}

TEST_F(QVLayoutTest, StandardIsASpacingAsAGapAndAButtonAsAControl) {
  QVVerticalLayout column(&m_window);
  column.AddGap(LayoutSizeStandard);
  column.AddControl(1, LayoutSizeStandard);
  column.Layout(area);
  EXPECT_EQ(m_window.At(1), QRect(10, 20 + m_metrics.standard, 300, m_metrics.button));
}

TEST_F(QVLayoutTest, GapsMayBeShares) {
  QVHoritzontalLayout row(&m_window);
  row.AddGap(10);
  row.AddControl(1, 80);
  row.AddGap(10);
  row.Layout(area);
  EXPECT_EQ(m_window.At(1), QRect(40, 20, 240, 200));
}

TEST_F(QVLayoutTest, ControlsMayBeGivenThemselves) {
  QWidget* control = m_window.Add(77);
  QVVerticalLayout column(&m_window);
  column.AddControl(control, 100);
  column.Layout(area);
  EXPECT_EQ(control->geometry(), area);
}

TEST_F(QVLayoutTest, BordersOfAColumnAreLeftAndRight) {
  EXPECT_EQ(PlaceWithin<QVVerticalLayout>(PixelSize(5), PixelSize(9)), QRect(15, 20, 286, 200));
}

TEST_F(QVLayoutTest, BordersOfARowAreAboveAndBelow) {
  EXPECT_EQ(PlaceWithin<QVHoritzontalLayout>(PixelSize(5), PixelSize(9)), QRect(10, 25, 300, 186));
}

TEST_F(QVLayoutTest, StandardBordersAreTheStandardSpacing) {
  EXPECT_EQ(PlaceWithin<QVVerticalLayout>(LayoutSizeStandard, LayoutSizeStandard),
            area.adjusted(m_metrics.standard, 0, -m_metrics.standard, 0));
}

TEST_F(QVLayoutTest, NestedLayoutTakesItsShare) {
  QVVerticalLayout inner(nullptr);
  inner.AddControl(2, 100);
  QVHoritzontalLayout row(&m_window);
  row.AddControl(1, 20);
  row.AddLayout(&inner, 80);
  row.Layout(area);
  EXPECT_EQ(m_window.At(2), QRect(70, 20, 240, 200));
}

TEST_F(QVLayoutTest, NestedLayoutOfZeroHasItsNaturalHeightInAColumn) {
  QVVerticalLayout inner(&m_window);
  inner.AddControl(1, PixelSize(31));
  inner.AddControl(2, PixelSize(11));
  QVVerticalLayout column(&m_window);
  column.AddLayout(&inner, 0);
  column.AddControl(3, 100);
  column.Layout(area);
  EXPECT_EQ(m_window.At(2), QRect(10, 51, 300, 11));
  EXPECT_EQ(m_window.At(3), QRect(10, 62, 300, 158));
}

TEST_F(QVLayoutTest, ShareOfZeroInARowLeavesNoWidthEvenToFixedContent) {
  QVHoritzontalLayout inner(&m_window);
  inner.AddGap(50);
  inner.AddControl(1, PixelSize(24));
  inner.AddGap(50);
  QVHoritzontalLayout row(&m_window);
  row.AddLayout(&inner, 0);
  row.AddControl(2, 0);
  row.AddControl(3, 100);
  row.Layout(area);
  EXPECT_EQ(m_window.At(1).width(), 0);
  EXPECT_EQ(m_window.At(2).width(), 0);
  EXPECT_EQ(m_window.At(3), area);
}

TEST_F(QVLayoutTest, ControlOfZeroInAColumnHasNoHeight) {
  QVVerticalLayout column(&m_window);
  column.AddControl(1, 0);
  column.AddControl(2, 100);
  column.Layout(area);
  EXPECT_EQ(m_window.At(1).height(), 0);
  EXPECT_EQ(m_window.At(2), area);
}

TEST_F(QVLayoutTest, NestedLayoutGetsNoLessThanItNeeds) {
  QVVerticalLayout inner(&m_window);
  inner.AddControl(1, PixelSize(50));
  inner.AddControl(2, PixelSize(50));
  QVVerticalLayout column(&m_window);
  column.AddLayout(&inner, PixelSize(20));
  column.AddControl(3, 100);
  column.Layout(area);
  EXPECT_EQ(m_window.At(3).top(), area.top() + 100);
}

TEST_F(QVLayoutTest, NestedLayoutOfOneEditLinesUpWithALabelledEdit) {
  QVVerticalLayout swatch(&m_window);
  swatch.AddGap(100);
  swatch.AddControl(3, PixelSize(10));
  QVVerticalLayout right(&m_window);
  right.AddLayout(&swatch, LayoutSizeEdit);
  QVVerticalLayout left(&m_window);
  left.AddControlAndLabel(1, 2, LayoutSizeEdit, 2, LayoutSizeLabel);
  QVHoritzontalLayout row(&m_window);
  row.AddLayout(&left, 50);
  row.AddLayout(&right, 50);
  row.Layout(area);
  EXPECT_EQ(m_window.At(3).bottom(), m_window.At(1).bottom());
}

TEST_F(QVLayoutTest, ControlOfOneEditHasTheHeightOfAnEdit) {
  QVVerticalLayout column(&m_window);
  column.AddControl(1, LayoutSizeEdit);
  column.Layout(area);
  EXPECT_EQ(m_window.At(1).height(), m_metrics.edit);
}

TEST_F(QVLayoutTest, LabelStandsAboveItsControl) {
  QVVerticalLayout column(&m_window);
  column.AddControlAndLabel(1, 2, LayoutSizeEdit, 2, LayoutSizeLabel);
  column.AddControl(3, 100);
  column.Layout(area);
  EXPECT_EQ(m_window.At(2), QRect(10, 20, 300, m_metrics.label));
  EXPECT_EQ(m_window.At(1), QRect(10, 20 + m_metrics.label + 2, 300, m_metrics.edit));
  EXPECT_EQ(m_window.At(3).top(), m_window.At(1).bottom() + 1);
}

TEST_F(QVLayoutTest, LabelIsPartOfAShareInAColumn) {
  QVVerticalLayout column(&m_window);
  column.AddControlAndLabel(1, 2, 100, 7, PixelSize(13));
  column.Layout(area);
  EXPECT_EQ(m_window.At(2), QRect(10, 20, 300, 13));
  EXPECT_EQ(m_window.At(1), QRect(10, 40, 300, 180));
}

TEST_F(QVLayoutTest, LabelledControlsStandSideBySideInARow) {
  QVHoritzontalLayout row(&m_window);
  row.AddControlAndLabel(1, 2, 50, 2, LayoutSizeLabel);
  row.AddGap(PixelSize(10));
  row.AddControlAndLabel(3, 4, 50, 2, LayoutSizeLabel);
  row.Layout(area);
  EXPECT_EQ(m_window.At(2), QRect(10, 20, 145, m_metrics.label));
  EXPECT_EQ(m_window.At(1).width(), 145);
  EXPECT_EQ(m_window.At(4), QRect(165, 20, 145, m_metrics.label));
  EXPECT_EQ(m_window.At(3).top(), 20 + m_metrics.label + 2);
  EXPECT_EQ(m_window.At(3).bottom(), area.bottom());
}

TEST_F(QVLayoutTest, RowOfLabelledControlsAtOneEditGivesThemTheHeightOfAnEdit) {
  QVHoritzontalLayout row(&m_window);
  row.AddControlAndLabel(1, 2, 60, 2, LayoutSizeLabel);
  row.AddControl(3, 40);
  QVVerticalLayout column(&m_window);
  column.AddLayout(&row, LayoutSizeEdit);
  column.Layout(area);
  EXPECT_EQ(m_window.At(1).height(), m_metrics.edit);
}

TEST_F(QVLayoutTest, ButtonStandsBesideTheLabelledControl) {
  QVVerticalLayout column(&m_window);
  column.AddControlAndLabelAndButton(1, 2, 3, LayoutSizeEdit, 10, 2);
  column.Layout(area);
  const QRect control = m_window.At(1);
  const QRect button = m_window.At(3);
  EXPECT_EQ(m_window.At(2), QRect(10, 20, 300, m_metrics.label));
  EXPECT_EQ(control.top(), 20 + m_metrics.label + 2);
  EXPECT_EQ(control.height(), m_metrics.edit);
  EXPECT_EQ(button.top(), control.top());
  EXPECT_EQ(button.height(), control.height());
  EXPECT_EQ(button.left(), control.right() + 1 + m_metrics.standard);
  EXPECT_EQ(button.right(), area.right());
  EXPECT_NEAR(button.width(), 30, 2);
}

TEST_F(QVLayoutTest, HiddenControlKeepsItsPlace) {
  FindControl(&m_window, 1)->hide();
  QVVerticalLayout column(&m_window);
  column.AddControl(1, PixelSize(30));
  column.AddControl(2, 100);
  column.Layout(area);
  EXPECT_EQ(m_window.At(1), QRect(10, 20, 300, 30));
  EXPECT_EQ(m_window.At(2).top(), 50);
}

TEST_F(QVLayoutTest, MissingControlsAndLayoutsKeepTheirPlace) {
  QVVerticalLayout column(&m_window);
  column.AddControl(999, PixelSize(30));
  column.AddControl(nullptr, PixelSize(10));
  column.AddLayout(nullptr, PixelSize(5));
  column.AddControl(2, 100);
  column.Layout(area);
  EXPECT_EQ(m_window.At(2), QRect(10, 65, 300, 155));
}

TEST_F(QVLayoutTest, TooLittleRoomCutsTheLastItems) {
  QVVerticalLayout column(&m_window);
  column.AddControl(1, PixelSize(30));
  column.AddControl(2, 100);
  column.AddControl(3, PixelSize(30));
  column.Layout(QRect(0, 0, 100, 40));
  EXPECT_EQ(m_window.At(1), QRect(0, 0, 100, 30));
  EXPECT_EQ(m_window.At(2).height(), 0);
  EXPECT_EQ(m_window.At(3), QRect(0, 30, 100, 10));
}

TEST_F(QVLayoutTest, RectangleSmallerThanItsBordersHoldsNothing) {
  const QRect place =
      PlaceWithin<QVVerticalLayout>(PixelSize(50), PixelSize(50), QRect(0, 0, 60, 40));
  EXPECT_EQ(place.width(), 0);
}

TEST_F(QVLayoutTest, LayingOutAgainFollowsTheNewRectangle) {
  QVHoritzontalLayout row(&m_window);
  row.AddControl(1, 50);
  row.AddControl(2, 50);
  row.Layout(area);
  row.Layout(QRect(0, 0, 80, 30));
  EXPECT_EQ(m_window.At(2), QRect(40, 0, 40, 30));
}

}  // namespace
}  // namespace qv
