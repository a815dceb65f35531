#include "toolkit/QVControlBoxButtonsLayout.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QPushButton>

#include "tests/toolkit/LayoutWindow.h"

namespace qv {
namespace {

constexpr QRect area(0, 0, 300, 240);
constexpr int list = 10;
constexpr int box = 11;

class ButtonsLayoutTest : public ::testing::Test {
 protected:
  ButtonsLayoutTest() {
    m_window.Add(list);
    for (const int id : {1, 2, 3}) {
      m_window.Add<QPushButton>(id);
    }
    m_window.Add<QGroupBox>(box);
  }

  void ExpectRows(int left, int right, int below) const {
    const LayoutMetrics metrics = m_window.Metrics();
    const QRect first = m_window.At(left);
    const QRect second = m_window.At(right);
    const QRect across = m_window.At(below);
    EXPECT_EQ(first.topLeft(), m_window.At(list).bottomLeft() + QPoint(0, 1 + metrics.standard));
    EXPECT_EQ(second.top(), first.top());
    EXPECT_EQ(second.left(), first.right() + 1 + metrics.standard);
    EXPECT_LE(std::abs(second.width() - first.width()), 1);
    EXPECT_EQ(across.topLeft(), first.bottomLeft() + QPoint(0, 1 + metrics.standard));
    EXPECT_EQ(across.right(), second.right());
    for (const QRect& button : {first, second, across}) {
      EXPECT_EQ(button.height(), metrics.button);
    }
  }

  LayoutWindow m_window;
};

TEST_F(ButtonsLayoutTest, AddButtonsPutsTheThirdAcrossBelow) {
  QVControlBoxButtonsLayout layout(&m_window, list, box);
  layout.AddButtons(1, 2, 3);
  layout.Layout(area);
  ExpectRows(1, 2, 3);
}

TEST_F(ButtonsLayoutTest, AddButtons21PutsTheSecondAcrossBelow) {
  QVControlBoxButtonsLayout layout(&m_window, list, box);
  layout.AddButtons21(1, 2, 3);
  layout.Layout(area);
  ExpectRows(1, 3, 2);
}

TEST_F(ButtonsLayoutTest, EverythingStandsInsideTheBox) {
  QVControlBoxButtonsLayout layout(&m_window, list, box);
  layout.AddButtons(1, 2, 3);
  layout.Layout(area);
  EXPECT_EQ(m_window.At(box), area);
  const int standard = m_window.Metrics().standard;
  EXPECT_EQ(m_window.At(list).left(), area.left() + standard);
  EXPECT_EQ(m_window.At(3).bottom(), area.bottom() - standard);
  EXPECT_GT(m_window.At(list).top(), area.top() + m_window.fontMetrics().height());
}

TEST_F(ButtonsLayoutTest, WithoutButtonsTheListFillsTheBox) {
  QVControlBoxButtonsLayout layout(&m_window, list, box);
  layout.Layout(area);
  EXPECT_EQ(m_window.At(list).bottom(), area.bottom() - m_window.Metrics().standard);
}

TEST_F(ButtonsLayoutTest, FixedSizeHoldsTheButtonsAndTheGaps) {
  QVControlBoxButtonsLayout layout(&m_window, list, box);
  layout.AddButtons(1, 2, 3);
  layout.Layout(QRect(QPoint(), QSize(300, layout.FixedSize().height())));
  EXPECT_EQ(m_window.At(list).height(), 0);
  ExpectRows(1, 2, 3);
}

}  // namespace
}  // namespace qv
