#pragma once

#include "toolkit/QVLayout.h"

namespace qv {

/// The row of a colour's swatch, in its own size, and its label, centred beside it.
class SwatchRow {
 public:
  /// `swatch` and `label` lie in `window`. `gap` is between the two.
  SwatchRow(QWidget* window, QWidget* swatch, QWidget* label, LayoutSize gap)
      : m_label(window), m_row(window), m_height(swatch->height()) {
    m_label.AddGap(50);
    m_label.AddControl(label, LayoutSizeLabel);
    m_label.AddGap(50);
    m_row.AddControl(swatch, QVLayout::Pixels2Size(swatch->width()).width);
    m_row.AddGap(gap);
    m_row.AddLayout(&m_label, 100);
  }

  /// Adds the row to `column`, which must not outlive it, at the height of the swatch.
  void AddTo(QVLayout& column) { column.AddLayout(&m_row, QVLayout::Pixels2Size(m_height).height); }

 private:
  QVVerticalLayout m_label;
  QVHoritzontalLayout m_row;
  int m_height;
};

}  // namespace qv
