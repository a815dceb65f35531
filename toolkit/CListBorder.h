#pragma once

#include "toolkit/CBorder.h"

/// The frame around a list and the buttons beneath it.
class CListBorder : public CBorder {
  Q_OBJECT

 public:
  using CBorder::CBorder;

  /// How many of the buttons stand side by side where they are laid out; 1 at first.
  void SetButtonsColumns(int columns) { m_columns = columns; }
  int ButtonsColumns() const { return m_columns; }

 private:
  int m_columns = 1;
};
