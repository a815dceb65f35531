#pragma once

#include <QComboBox>

namespace qv {

/// A drop-down list that the wheel changes only while it has the focus, so that scrolling past it
/// changes nothing by accident. It opens below itself, as wide as itself and at most 15 rows high.
/// A text that doesn't fit is elided, in the box and in its list, and shown whole in a tooltip.
class ChoiceBox : public QComboBox {
  Q_OBJECT

 public:
  explicit ChoiceBox(QWidget* parent = nullptr);

 protected:
  bool event(QEvent* event) override;
  void initStyleOption(QStyleOptionComboBox* option) const override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  int RoomForText(const QStyleOptionComboBox& option) const;
  bool IsTextCut() const;
};

}  // namespace qv
