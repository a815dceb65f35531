#pragma once

#include "toolkit/QVLayout.h"

/// A list inside its group box, with three buttons beneath it.
class QVControlBoxButtonsLayout : public QVVerticalLayout {
 public:
  QVControlBoxButtonsLayout(QWidget* window, qv::LayoutControl list, qv::LayoutControl box);

  /// The first two buttons side by side, the third across below.
  void AddButtons(qv::LayoutControl first, qv::LayoutControl second, qv::LayoutControl third);

  /// The first and the third button side by side, the second across below.
  void AddButtons21(qv::LayoutControl first, qv::LayoutControl second, qv::LayoutControl third);

 private:
  void AddRows(qv::LayoutControl left, qv::LayoutControl right, qv::LayoutControl below);
};
