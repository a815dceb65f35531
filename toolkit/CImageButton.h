#pragma once

#include <QPushButton>

#include "tools/QVBasicString.h"

/// A push button with a picture beside its caption. A caption without enough room is elided and
/// becomes the tooltip.
class CImageButton : public QPushButton {
  Q_OBJECT

 public:
  explicit CImageButton(QWidget* parent = nullptr);

  /// Shows the picture at `path`; without one the button is plain. The other arguments are what
  /// callers hand over, and mean nothing here.
  void SetImage(const QVWideString& path, unsigned long reserved, bool disabled);

  /// Shows `caption`, in which "&" stands before the mnemonic, and makes it the accessible name.
  void SetCaption(const QString& caption);

  /// Shows `hint` in the tooltip, below an elided caption; none for an empty one. It is the
  /// accessible name of a button without caption.
  void SetHint(const QString& hint);

  /// What is to be seen of the caption.
  QString ShownCaption() const;

 protected:
  void initStyleOption(QStyleOptionButton* option) const override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int CaptionRoom() const;
  void Describe();

  QString m_caption;
  QString m_hint;
};
