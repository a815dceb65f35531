#pragma once

#include <QLabel>

namespace qv {

/// A label of one line that cuts a text without enough room at the right, with an ellipsis, and
/// shows it whole in the tooltip then. Its text, with its mnemonic, stays as it was set.
class ElidingLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString Shown() const;
};

}  // namespace qv
