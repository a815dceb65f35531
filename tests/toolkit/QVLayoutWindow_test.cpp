#include <gtest/gtest.h>

#include <QEvent>
#include <QGroupBox>

#include "tests/toolkit/LayoutWindow.h"
#include "toolkit/QVLayout.h"

// How layouts find the window they work in, and what they do with its group boxes.

namespace qv {
namespace {

constexpr QRect area(10, 20, 300, 200);
constexpr int boxId = 50;

class QVLayoutWindow : public ::testing::Test {
 protected:
  QVLayoutWindow() {
    m_window.Add(1);
    m_window.Add(2);
  }

  QGroupBox* AddBox(int id = boxId) {
    auto* box = m_window.Add<QGroupBox>(id);
    box->setTitle(QStringLiteral("Title"));
    return box;
  }

  QRect BoxedContent(int id, bool titled) {
    QVVerticalLayout column(&m_window);
    column.SetBoxControl(id, PixelSize(12), titled);
    column.AddControl(1, 100);
    column.Layout(area);
    return m_window.At(1);
  }

  LayoutWindow m_window;
};

TEST_F(QVLayoutWindow, NestedLayoutTakesTheWindowOfItsOuterOne) {
  QVHoritzontalLayout inner(nullptr);
  inner.AddControl(1, 100);
  QVVerticalLayout column(&m_window);
  column.AddLayout(&inner, 100);
  column.Layout(area);
  EXPECT_EQ(m_window.At(1), area);
}

TEST_F(QVLayoutWindow, OuterLayoutTakesTheWindowOfItsNestedOne) {
  QVHoritzontalLayout inner(&m_window);
  inner.AddControl(1, 100);
  QVVerticalLayout column(nullptr);
  column.AddControl(2, PixelSize(40));
  column.AddLayout(&inner, 100);
  column.Layout(area);
  EXPECT_EQ(m_window.At(2), QRect(10, 20, 300, 40));
  EXPECT_EQ(m_window.At(1), QRect(10, 60, 300, 160));
}

TEST_F(QVLayoutWindow, NestedLayoutKeepsItsOwnWindow) {
  LayoutWindow other;
  other.Add(1);
  QVHoritzontalLayout inner(&other);
  inner.AddControl(1, 100);
  QVVerticalLayout column(&m_window);
  column.AddLayout(&inner, 100);
  const QRect before = m_window.At(1);
  column.Layout(area);
  EXPECT_EQ(other.At(1), area);
  EXPECT_EQ(m_window.At(1), before);
}

TEST_F(QVLayoutWindow, LayoutWithoutWindowTakesThatOfAControl) {
  QFont font = m_window.font();
  font.setPointSize(30);
  m_window.setFont(font);
  QVVerticalLayout column(nullptr);
  column.AddControl(2, LayoutSizeLabel);
  column.AddControl(FindControl(&m_window, 1), LayoutSizeStandard);
  column.Layout(area);
  EXPECT_EQ(m_window.At(2).height(), m_window.Metrics().label);
  EXPECT_EQ(m_window.At(1).height(), m_window.Metrics().button);
}

TEST_F(QVLayoutWindow, LayoutsWithoutAnyWindowPassOverNumbers) {
  QVHoritzontalLayout inner(nullptr);
  inner.SetBoxControl(boxId, LayoutSizeStandard, true);
  inner.AddControl(1, 100);
  QVVerticalLayout column(nullptr);
  column.AddLayout(&inner, 100);
  column.AddControl(2, LayoutSizeStandard);
  const QRect before = m_window.At(1);
  column.Layout(area);
  EXPECT_EQ(m_window.At(1), before);
  EXPECT_GE(column.FixedSize().height(), MetricsOf(nullptr).button);
}

TEST_F(QVLayoutWindow, ParentMayBeSetLater) {
  QVVerticalLayout column(nullptr);
  column.AddControl(1, 100);
  column.SetParent(&m_window);
  column.Layout(area);
  EXPECT_EQ(m_window.At(1), area);
}

TEST_F(QVLayoutWindow, ControlDeeperInTheWindowStandsAtTheSamePlace) {
  auto* page = new QWidget(&m_window);
  page->setGeometry(7, 9, 100, 100);
  auto* control = new QWidget(page);
  QVVerticalLayout column(&m_window);
  column.AddControl(control, 100);
  column.Layout(area);
  EXPECT_EQ(QRect(control->mapTo(&m_window, QPoint()), control->size()), area);
}

TEST_F(QVLayoutWindow, BoxFillsTheLayoutAndKeepsItsContentInside) {
  const auto* box = AddBox();
  const QRect content = BoxedContent(boxId, false);
  EXPECT_EQ(box->geometry(), area);
  EXPECT_EQ(content.left(), area.left() + 12);
  EXPECT_EQ(content.right(), area.right() - 12);
  EXPECT_EQ(content.bottom(), area.bottom() - 12);
  EXPECT_GE(content.top(), area.top() + 12);
}

TEST_F(QVLayoutWindow, TitledBoxKeepsItsContentBelowTheTitle) {
  AddBox();
  const int plain = BoxedContent(boxId, false).top();
  const int titled = BoxedContent(boxId, true).top();
  EXPECT_GE(titled, area.top() + m_window.fontMetrics().height() + 12);
  EXPECT_GT(titled, plain);
}

TEST_F(QVLayoutWindow, MinusOneWithoutSuchABoxIsJustABorder) {
  EXPECT_EQ(BoxedContent(-1, false), area.adjusted(12, 12, -12, -12));
}

TEST_F(QVLayoutWindow, MinusOneFindsABoxOfThatNumber) {
  const auto* box = AddBox(-1);
  const QRect content = BoxedContent(-1, false);
  EXPECT_EQ(box->geometry(), area);
  EXPECT_TRUE(box->geometry().contains(content));
}

TEST_F(QVLayoutWindow, BoxOfAnotherKindHasItsTitleInOneLine) {
  m_window.Add<QWidget>(boxId);
  const int line = m_window.fontMetrics().height();
  EXPECT_EQ(BoxedContent(boxId, true), area.adjusted(12, 12 + line, -12, -12));
}

TEST_F(QVLayoutWindow, HiddenBoxKeepsItsPlace) {
  auto* box = AddBox();
  const QRect shown = BoxedContent(boxId, true);
  box->hide();
  EXPECT_EQ(BoxedContent(boxId, true), shown);
  EXPECT_EQ(box->geometry(), area);
}

TEST_F(QVLayoutWindow, BordersLieInsideTheBox) {
  const auto* box = AddBox();
  const QRect plain = BoxedContent(boxId, true);
  QVVerticalLayout column(&m_window);
  column.SetBoxControl(boxId, PixelSize(12), true);
  column.SetBorders(PixelSize(5), PixelSize(6));
  column.AddControl(1, 100);
  column.Layout(area);
  EXPECT_EQ(box->geometry(), area);
  EXPECT_EQ(m_window.At(1), plain.adjusted(5, 0, -6, 0));
}

TEST_F(QVLayoutWindow, ControlWithBoxStandsInIt) {
  const auto* box = AddBox();
  const QRect expected = BoxedContent(boxId, true);
  QVVerticalLayout column(&m_window);
  column.AddControlWithBox(1, boxId, 100, PixelSize(12), true);
  column.Layout(area);
  EXPECT_EQ(box->geometry(), area);
  EXPECT_EQ(m_window.At(1), expected);
}

TEST_F(QVLayoutWindow, BoxesLieBehindTheControls) {
  m_window.resize(400, 300);
  const auto* first = AddBox(51);
  const auto* second = AddBox(52);
  QVVerticalLayout column(&m_window);
  column.AddControlWithBox(1, 51, 50, PixelSize(4), true);
  column.AddControlWithBox(2, 52, 50, PixelSize(4), true);
  column.Layout(area);
  for (const int id : {1, 2}) {
    EXPECT_EQ(m_window.childAt(m_window.At(id).center()), FindControl(&m_window, id));
  }
  EXPECT_EQ(m_window.childAt(first->geometry().center()), FindControl(&m_window, 1));
  EXPECT_EQ(m_window.childAt(second->geometry().center()), FindControl(&m_window, 2));
}

/// Counts how often widgets change their place in the stack.
class StackWatcher : public QObject {
 public:
  int changes = 0;

  bool eventFilter(QObject* watched, QEvent* event) override {
    changes += event->type() == QEvent::ZOrderChange ? 1 : 0;
    return QObject::eventFilter(watched, event);
  }
};

TEST_F(QVLayoutWindow, BoxesThatLieBehindAreLeftAlone) {
  StackWatcher watcher;
  AddBox(51)->installEventFilter(&watcher);
  AddBox(52)->installEventFilter(&watcher);
  QVVerticalLayout column(&m_window);
  column.AddControlWithBox(1, 51, 50, PixelSize(4), true);
  column.AddControlWithBox(2, 52, 50, PixelSize(4), true);
  column.Layout(area);
  EXPECT_EQ(watcher.changes, 2);
  column.Layout(area);
  EXPECT_EQ(watcher.changes, 2);
}

}  // namespace
}  // namespace qv
