#pragma once

#include <QSpinBox>

namespace qv {

/// A year, to be typed, stepped by the arrows, or turned by the wheel, which leaves the focus where
/// it is. What is typed counts at once; Return does nothing.
class YearField : public QSpinBox {
  Q_OBJECT

 public:
  explicit YearField(QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace qv
