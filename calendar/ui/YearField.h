#pragma once

#include <QSpinBox>

namespace qv {

/// A year, to be typed, stepped by the arrows, or turned by the wheel. What is typed counts when
/// Return is pressed, which does nothing else, or when the field is left.
class YearField : public QSpinBox {
  Q_OBJECT

 public:
  explicit YearField(QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace qv
