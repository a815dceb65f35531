#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>
#include <QWidget>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "toolkit/LayoutArithmetic.h"
#include "toolkit/LayoutSize.h"

namespace qv {

/// A control in a layout: its number in the window, or the control itself.
using LayoutControl = std::variant<int, QWidget*>;

/// The pixels between a label and its control, wherever a dialog stacks the two.
inline constexpr int labelDistance = 2;

/// One extent as a size for either direction.
struct LayoutSizePair {
  LayoutSize width;
  LayoutSize height;
};

}  // namespace qv

/// A row or a column of controls, gaps and further layouts. It is filled, laid out and thrown away:
/// it owns neither controls nor the layouts that are added to it, which must live until the last
/// call of `Layout` or `FixedSize`.
///
/// A control that is missing or hidden keeps its place. Where there is too little room, the last
/// items are cut; nothing leaves its layout's rectangle. A layout made without a window takes that
/// of the layout it is added to, or else the one that its own content lies in.
class QVLayout {
 public:
  virtual ~QVLayout();
  QVLayout(const QVLayout&) = delete;
  QVLayout& operator=(const QVLayout&) = delete;

  /// The window in which controls are found by number.
  void SetParent(QWidget* window) { m_window = window; }

  /// The margins on the two sides along the direction: left and right of a column, above and below
  /// a row. The two ends have none; put gaps there.
  void SetBorders(LayoutSize first, LayoutSize second);

  /// Spreads the group box over this layout's rectangle, behind the controls, and keeps the content
  /// `margin` away from its frame, with `titled` below its title too. Without such a box in the
  /// window the margin alone remains.
  void SetBoxControl(qv::LayoutControl box, LayoutSize margin, bool titled);

  void AddGap(LayoutSize size);

  void AddControl(qv::LayoutControl control, LayoutSize size);

  /// Adds a layout, which is borrowed; null takes room all the same. At a fixed size it gets no
  /// less than its own fixed items need. In a column the size 0 is its natural height, and
  /// `LayoutSizeEdit` the height of an edit with a label above it, so that it lines up with one.
  void AddLayout(QVLayout* layout, LayoutSize size);

  /// Adds a control with a label above it and `gapPixels` between the two. In a column a fixed
  /// `size` is the height of the control alone; a share, and any size in a row, is that of both.
  void AddControlAndLabel(qv::LayoutControl control, qv::LayoutControl label, LayoutSize size,
                          int gapPixels, LayoutSize labelSize);

  /// The same with a button to the right of the control; the button has `buttonShare` per cent of
  /// the width, and the label the natural height of one.
  void AddControlAndLabelAndButton(qv::LayoutControl control, qv::LayoutControl label,
                                   qv::LayoutControl button, LayoutSize size, int buttonShare,
                                   int gapPixels);

  /// Adds a control inside a group box of this `size`; `margin` and `titled` as in `SetBoxControl`.
  void AddControlWithBox(qv::LayoutControl control, qv::LayoutControl box, LayoutSize size,
                         LayoutSize margin, bool titled);

  /// Places everything in `rect`, in the window's coordinates.
  void Layout(const QRect& rect);

  /// The least size in which the fixed items have room, those of nested layouts included.
  QSize FixedSize() const;

  /// The size words of exactly so many pixels.
  static qv::LayoutSizePair Pixels2Size(int pixels);

  /// The pixels of a size word in `window`'s font, or the application's: as a gap the width, as the
  /// height of a control the height.
  static QSize Size2Pixels(LayoutSize size, const QWidget* window = nullptr);

 protected:
  QVLayout(QWidget* window, Qt::Orientation direction);

  /// Adds a layout that is owned.
  void AddOwned(std::unique_ptr<QVLayout> layout, LayoutSize size);

 private:
  using Content =
      std::variant<std::monostate, qv::LayoutControl, QVLayout*>;  // gap, control, layout

  struct Item {
    Content content;
    LayoutSize size;
    LayoutSize least;  // what a share must come to for the control to have room
  };

  struct Box {
    qv::LayoutControl control;
    LayoutSize margin;
    bool titled;
  };

  struct Stack {
    qv::LayoutControl label;
    LayoutSize labelSize;
    int gapPixels;
  };

  struct Frame {
    QWidget* window;
    qv::LayoutMetrics metrics;
  };

  void AddStack(const Stack& stack, Content content, LayoutSize size);

  QWidget* NearestWindow() const;
  Frame Outermost() const;
  Frame Inner(const Frame& outer) const;
  QWidget* BoxWidget(const Frame& here) const;
  QMargins Margins(const Frame& here) const;

  int Along(QSize size) const;
  int Across(QSize size) const;
  static QVLayout* LayoutOf(const Item& item);
  bool IsNatural(const Item& item) const;
  std::vector<QSize> Needs(const Frame& here) const;
  int FixedExtent(const Item& item, QSize need, const Frame& here) const;
  std::vector<qv::LayoutShare> Shares(const std::vector<QSize>& needs, const Frame& here) const;
  int RoomAlong(const std::vector<QSize>& needs, const Frame& here) const;
  QSize NaturalSize(const Frame& outer) const;

  void Place(const QRect& rect, const Frame& outer) const;
  QRect ItemRect(const QRect& inside, qv::LayoutSpan span) const;
  static void PlaceItem(const Item& item, const QRect& rect, const Frame& here);

  QWidget* m_window;
  Qt::Orientation m_direction;
  LayoutSize m_firstBorder = 0;
  LayoutSize m_secondBorder = 0;
  std::optional<Box> m_box;
  std::vector<Item> m_items;
  std::vector<std::unique_ptr<QVLayout>> m_owned;
};

/// A column: its items stand one below the other, each over the whole width.
class QVVerticalLayout : public QVLayout {
 public:
  /// `window` may be null in a layout that is added to another.
  explicit QVVerticalLayout(QWidget* window);
};

/// A row: its items stand side by side, each over the whole height.
class QVHoritzontalLayout : public QVLayout {
 public:
  /// `window` may be null in a layout that is added to another.
  explicit QVHoritzontalLayout(QWidget* window);
};
