#pragma once

#include <QToolButton>

namespace qv {

/// A button beside the year that leads to another one, and has a dot when there is something to be
/// found that way.
class YearButton : public QToolButton {
  Q_OBJECT

 public:
  YearButton(QWidget* parent, Qt::ArrowType arrow);

  /// Shows or hides the dot; `meaning` is told as the tooltip while it is there.
  void SetDot(bool hasDot, const QString& meaning);
  bool HasDot() const { return m_hasDot; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool m_hasDot = false;
};

}  // namespace qv
