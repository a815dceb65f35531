#pragma once

#include <QWidget>

class QToolButton;

namespace qv {

/// Two small arrows that step the number in the field beside them. They repeat while they are held
/// down; the wheel steps as well. Keys are those of the field.
class SpinButtons : public QWidget {
  Q_OBJECT

 public:
  explicit SpinButtons(QWidget* parent = nullptr);

  QSize sizeHint() const override;

 signals:
  /// The user wants the number higher (1) or lower (-1).
  void Stepped(int delta);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QToolButton* NewArrow(Qt::ArrowType arrow, int delta);

  QToolButton* m_up;
  QToolButton* m_down;
};

}  // namespace qv
