#pragma once

#include "toolkit/QVLayout.h"

namespace qv {

/// How much of its width the row of OK and Cancel takes.
enum class OkCancelWidth {
  Whole,
  Narrow,       ///< a tenth is free on both sides
  WideMargins,  ///< a wide margin is free on both sides
};

/// The buttons OK and Cancel, the controls 1 and 2 of `window`, side by side.
class OkCancelRow : public QVHoritzontalLayout {
 public:
  OkCancelRow(QWidget* window, OkCancelWidth width);
};

/// The column that the content of a dialog stands in: standard gaps around and between its parts.
class DialogColumn : public QVVerticalLayout {
 public:
  explicit DialogColumn(QWidget* window);

  // Each adds a part and the gap below it.
  void Add(LayoutControl control, LayoutSize size);
  void Add(QVLayout* layout, LayoutSize size);
  void AddLabelled(LayoutControl control, LayoutControl label);
};

/// Adds an edit or a combo box with its label above it, at the distance that both have everywhere.
/// `size` as in `QVLayout::AddControlAndLabel`.
void AddLabelled(QVLayout& layout, LayoutControl control, LayoutControl label,
                 LayoutSize size = LayoutSizeEdit);

}  // namespace qv
