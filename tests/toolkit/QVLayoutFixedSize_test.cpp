#include <gtest/gtest.h>

#include <QGroupBox>
#include <random>

#include "tests/toolkit/LayoutWindow.h"
#include "toolkit/QVLayout.h"

// What `FixedSize` promises, and that `Layout` keeps it.

namespace qv {
namespace {

class FixedSizeTest : public ::testing::Test {
 protected:
  LayoutWindow m_window;
  LayoutMetrics m_metrics = m_window.Metrics();
};

TEST_F(FixedSizeTest, EmptyLayoutNeedsNothing) {
  EXPECT_EQ(QVVerticalLayout(&m_window).FixedSize(), QSize(0, 0));
}

TEST_F(FixedSizeTest, ColumnNeedsTheSumOfItsFixedItems) {
  QVVerticalLayout column(&m_window);
  column.AddGap(LayoutSizeStandard);
  column.AddControl(1, LayoutSizeStandard);
  column.AddControl(2, 100);
  column.AddGap(PixelSize(7));
  EXPECT_EQ(column.FixedSize().height(), m_metrics.standard + m_metrics.button + 7);
}

TEST_F(FixedSizeTest, RowNeedsTheSumOfItsFixedWidths) {
  QVHoritzontalLayout row(&m_window);
  row.AddControl(1, PixelSize(40));
  row.AddGap(PixelSize(5));
  row.AddControl(2, 50);
  EXPECT_EQ(row.FixedSize(), QSize(45, 0));
}

TEST_F(FixedSizeTest, BordersCountAcross) {
  QVVerticalLayout column(&m_window);
  column.SetBorders(PixelSize(3), PixelSize(4));
  column.AddGap(PixelSize(10));
  EXPECT_EQ(column.FixedSize(), QSize(7, 10));
}

TEST_F(FixedSizeTest, LabelledEditNeedsLabelGapAndEdit) {
  QVVerticalLayout column(&m_window);
  column.AddControlAndLabel(1, 2, LayoutSizeEdit, 2, LayoutSizeLabel);
  EXPECT_EQ(column.FixedSize().height(), m_metrics.label + 2 + m_metrics.edit);
}

TEST_F(FixedSizeTest, LabelledControlInARowCountsAsAnEdit) {
  QVHoritzontalLayout row(&m_window);
  row.AddControlAndLabel(1, 2, 50, 2, LayoutSizeLabel);
  row.AddControl(3, 50);
  EXPECT_EQ(row.FixedSize().height(), m_metrics.label + 2 + m_metrics.edit);
}

TEST_F(FixedSizeTest, LabelledControlOfAnotherHeightNeedsThatOne) {
  QVVerticalLayout column(&m_window);
  column.AddControlAndLabel(1, 2, PixelSize(61), 3, PixelSize(5));
  EXPECT_EQ(column.FixedSize().height(), 69);
  column.AddControlAndLabel(3, 4, LayoutSizeEdit, 0, PixelSize(5));
  EXPECT_EQ(column.FixedSize().height(), 69 + 5 + m_metrics.edit);
}

TEST_F(FixedSizeTest, LabelledEditWithButtonNeedsTheSame) {
  QVVerticalLayout column(&m_window);
  column.AddControlAndLabelAndButton(1, 2, 3, LayoutSizeEdit, 10, 2);
  EXPECT_EQ(column.FixedSize().height(), m_metrics.label + 2 + m_metrics.edit);
}

TEST_F(FixedSizeTest, MarginWithoutBoxCountsOnAllSides) {
  QVVerticalLayout inside(&m_window);
  inside.SetBoxControl(-1, PixelSize(6), false);
  inside.AddControl(1, PixelSize(20));
  QVVerticalLayout column(&m_window);
  column.AddLayout(&inside, 0);
  EXPECT_EQ(column.FixedSize(), QSize(12, 32));
}

TEST_F(FixedSizeTest, NestedLayoutsCountInBothDirections) {
  QVVerticalLayout inner(&m_window);
  inner.AddControl(1, PixelSize(33));
  QVHoritzontalLayout row(&m_window);
  row.AddControl(2, PixelSize(21));
  row.AddLayout(&inner, 100);
  QVVerticalLayout column(&m_window);
  column.AddLayout(&row, PixelSize(5));
  EXPECT_EQ(column.FixedSize(), QSize(21, 33));
}

TEST_F(FixedSizeTest, ShareOfANestedLayoutMustHoldIt) {
  QVVerticalLayout inner(&m_window);
  inner.AddControl(1, PixelSize(30));
  QVVerticalLayout column(&m_window);
  column.AddLayout(&inner, 25);
  column.AddControl(2, 75);
  EXPECT_EQ(column.FixedSize().height(), 120);
}

TEST_F(FixedSizeTest, OnePixelLessCutsTheLastItem) {
  auto* last = m_window.Add(2);
  m_window.Add(1);
  QVVerticalLayout column(&m_window);
  column.AddControlAndLabel(1, 3, LayoutSizeEdit, 2, LayoutSizeLabel);
  column.AddControl(2, LayoutSizeStandard);
  const int height = column.FixedSize().height();
  column.Layout(QRect(0, 0, 200, height));
  EXPECT_EQ(last->height(), m_metrics.button);
  column.Layout(QRect(0, 0, 200, height - 1));
  EXPECT_EQ(last->height(), m_metrics.button - 1);
}

/// Builds a tree of layouts by chance and knows which heights and widths it has promised.
class RandomForm {
 public:
  explicit RandomForm(unsigned seed) : m_random(seed) { m_root = MakeLayout(3); }

  QVLayout& Root() { return *m_root; }
  const LayoutWindow& Window() const { return m_window; }

  void ExpectFixedItemsWhole() const {
    for (const auto& [control, width, height] : m_promises) {
      EXPECT_EQ(control->width(), width < 0 ? control->width() : width);
      EXPECT_EQ(control->height(), height < 0 ? control->height() : height);
    }
  }

  void ExpectNothingOverlaps(const QRect& rect) const {
    std::vector<QRect> places;
    for (const QWidget* control : m_controls) {
      if (!control->geometry().isEmpty()) {
        places.push_back(control->geometry());
      }
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
      EXPECT_TRUE(rect.contains(places[i]));
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_FALSE(places[i].intersects(places[j]));
      }
    }
  }

 private:
  struct Promise {
    QWidget* control;
    int width;
    int height;
  };

  int Below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

  QWidget* Control() {
    m_controls.push_back(m_window.Add(1000 + static_cast<int>(m_controls.size())));
    return m_controls.back();
  }

  void AddControl(QVLayout& layout, bool vertical) {
    QWidget* control = Control();
    if (Below(2) == 0) {
      layout.AddControl(control, static_cast<LayoutSize>(Below(60)));
      return;
    }
    const int pixels = 1 + Below(40);
    layout.AddControl(control, PixelSize(pixels));
    m_promises.push_back({control, vertical ? -1 : pixels, vertical ? pixels : -1});
  }

  void AddLabelled(QVLayout& layout, bool vertical) {
    QWidget* control = Control();
    QWidget* label = Control();
    const LayoutSize size = vertical ? LayoutSizeEdit : static_cast<LayoutSize>(10 + Below(40));
    layout.AddControlAndLabel(control, label, size, 2, LayoutSizeLabel);
    m_promises.push_back({label, -1, m_window.Metrics().label});
    if (vertical) {
      m_promises.push_back({control, -1, m_window.Metrics().edit});
    }
  }

  void AddBoxed(QVLayout& layout) {
    const int id = 1 + m_boxes++;
    m_window.Add<QGroupBox>(id);
    layout.AddControlWithBox(Control(), id, static_cast<LayoutSize>(20 + Below(50)),
                             LayoutSizeStandard, Below(2) == 0);
  }

  void AddItem(QVLayout& layout, bool vertical, int depth) {
    switch (Below(depth > 0 ? 6 : 4)) {
      case 0:
        layout.AddGap(LayoutSizeStandard);
        break;
      case 1:
        AddLabelled(layout, vertical);
        break;
      case 2:
        AddBoxed(layout);
        break;
      case 3:
        AddControl(layout, vertical);
        break;
      default:
        layout.AddLayout(MakeLayout(depth - 1), NestedSize(vertical));
        break;
    }
  }

  LayoutSize NestedSize(bool vertical) {
    const LayoutSize fixed[] = {PixelSize(Below(50)), LayoutSizeEdit, LayoutSizeStandard};
    const LayoutSize share = vertical ? 0 : 1;  // a row gives a share of 0 no width at all
    return Below(2) == 0 ? fixed[Below(3)] : share + static_cast<LayoutSize>(Below(50));
  }

  QVLayout* MakeLayout(int depth) {
    const bool vertical = Below(2) == 0;
    if (vertical) {
      m_layouts.push_back(std::make_unique<QVVerticalLayout>(&m_window));
    } else {
      m_layouts.push_back(std::make_unique<QVHoritzontalLayout>(nullptr));
    }
    QVLayout* layout = m_layouts.back().get();
    layout->SetParent(&m_window);
    layout->SetBorders(PixelSize(Below(9)), LayoutSizeStandard);
    for (int i = 0; i < 4; ++i) {
      AddItem(*layout, vertical, depth);
    }
    return layout;
  }

  std::mt19937 m_random;
  LayoutWindow m_window;
  int m_boxes = 0;
  std::vector<QWidget*> m_controls;
  std::vector<Promise> m_promises;
  std::vector<std::unique_ptr<QVLayout>> m_layouts;
  QVLayout* m_root = nullptr;
};

class RandomFormTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(RandomFormTest, AtItsFixedSizeAllFixedItemsHaveRoom) {
  RandomForm form(GetParam());
  const QRect rect(QPoint(3, 5), form.Root().FixedSize());
  form.Root().Layout(rect);
  form.ExpectFixedItemsWhole();
  form.ExpectNothingOverlaps(rect);
}

TEST_P(RandomFormTest, AboveItsFixedSizeTheyStillHave) {
  RandomForm form(GetParam());
  const QRect rect(QPoint(3, 5), form.Root().FixedSize() + QSize(123, 77));
  form.Root().Layout(rect);
  form.ExpectFixedItemsWhole();
  form.ExpectNothingOverlaps(rect);
}

TEST_P(RandomFormTest, BelowItsFixedSizeNothingOverlapsEither) {
  RandomForm form(GetParam());
  const QRect rect(QPoint(3, 5), form.Root().FixedSize() / 2);
  form.Root().Layout(rect);
  form.ExpectNothingOverlaps(rect);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomFormTest, ::testing::Range(1U, 41U));

}  // namespace
}  // namespace qv
