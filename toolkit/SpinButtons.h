#pragma once

#include <QWidget>

#include "toolkit/WheelSteps.h"

class QLineEdit;
class QToolButton;

namespace qv {

/// Two small arrows that step the number in the field beside them, their buddy. They repeat while
/// they are held down. The arrow keys of the buddy step as well, and so does the wheel over both of
/// them while the buddy has the focus.
class SpinButtons : public QWidget {
  Q_OBJECT

 public:
  explicit SpinButtons(QWidget* parent = nullptr);

  /// `buddy` outlives the arrows, which step while they are enabled.
  void SetBuddy(QLineEdit* buddy);

  QSize sizeHint() const override;

 signals:
  /// The user wants the number higher (1) or lower (-1).
  void Stepped(int delta);
  /// The buddy lost the focus, but not to a pop-up, from which it comes back.
  void Left();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  bool eventFilter(QObject* buddy, QEvent* event) override;

 private:
  QToolButton* NewArrow(Qt::ArrowType arrow, int delta);
  void Step(int delta);
  void Turn(const QWheelEvent& event);

  QToolButton* m_up;
  QToolButton* m_down;
  QLineEdit* m_buddy = nullptr;
  WheelSteps m_wheel;
};

}  // namespace qv
