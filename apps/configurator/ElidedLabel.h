#pragma once

#include <QLabel>

namespace configurator {

/// A line of plain text that never asks for room: what doesn't fit is cut, and then the whole text
/// is its tooltip.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(Qt::TextElideMode mode, QWidget* parent = nullptr);

  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString ShownText() const;

  Qt::TextElideMode m_mode;
};

}  // namespace configurator
