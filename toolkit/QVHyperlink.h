#pragma once

#include <QAbstractButton>

#include "tools/QVBasicString.h"

/// A flat button that looks like a link: a picture of 32 pixels above its caption. Space and Return
/// click it. A caption without enough room is elided and becomes the tooltip.
class QVHyperlink : public QAbstractButton {
  Q_OBJECT

 public:
  explicit QVHyperlink(QWidget* parent = nullptr);

  /// Shows the picture at `path`, or none if there is no such picture.
  void SetImage(const QVWideString& path);

  /// Shows `caption`, in which "&" stands before the mnemonic, and makes it the accessible name.
  void SetCaption(const QString& caption);

  /// Shows `hint` as the tooltip, in place of an elided caption; none for an empty one.
  void SetHint(const QString& hint);

  /// What is to be seen of the caption.
  QString ShownCaption() const;

  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int CaptionRoom() const;
  int MnemonicFlag() const;
  void Describe();
  QColor CaptionColour() const;
  void PaintGround(QPainter& painter) const;
  void PaintPicture(QPainter& painter, const QRect& content) const;
  void PaintCaption(QPainter& painter, const QRect& content) const;

  QString m_caption;
  QString m_hint;
};
