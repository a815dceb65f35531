#pragma once

#include <QComboBox>

namespace qv {

/// A drop-down list that the wheel changes only while it has the focus, so that scrolling past it
/// changes nothing by accident.
class ChoiceBox : public QComboBox {
  Q_OBJECT

 public:
  explicit ChoiceBox(QWidget* parent = nullptr);

 protected:
  void wheelEvent(QWheelEvent* event) override;
};

}  // namespace qv
