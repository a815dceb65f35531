#pragma once

#include "toolkit/QVLayout.h"

/// A list inside its group box, with three buttons beneath it.
class QVControlBoxButtonsLayout : public QVVerticalLayout {
 public:
  QVControlBoxButtonsLayout(QWidget* window, int listId, int boxId);

  /// The first two buttons side by side, the third across below.
  void AddButtons(int first, int second, int third);

  /// The first and the third button side by side, the second across below.
  void AddButtons21(int first, int second, int third);

 private:
  void AddRows(int left, int right, int below);
};
