#pragma once

#include <QGroupBox>
#include <QPointer>

/// The frame around a control, with a title. It shows, hides and is greyed with that control.
class CBorder : public QGroupBox {
  Q_OBJECT

 public:
  using QGroupBox::QGroupBox;

  /// The pixels that stay free between the frame and what it encloses, on each side.
  void SetMargin(int pixels);
  /// Ties the frame to `control`, which may be null for none. With `places` it also keeps the
  /// control, which then has to be its child, over its whole inside; without, whoever lays both out
  /// places it.
  void LinkControl(QWidget* control, bool places);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Place();

  QPointer<QWidget> m_control;
  bool m_places = false;
  int m_margin = 0;
};
