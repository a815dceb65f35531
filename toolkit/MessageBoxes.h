#pragma once

#include <QPointer>
#include <QWidget>

#include "host/Prompter.h"
#include "host/QVLoadString.h"

class QMessageBox;

namespace qv {

/// Speaks to the user by modal boxes over a window. A box carries the number of its text in the
/// dynamic property "textNumber".
class MessageBoxes : public Prompter {
 public:
  MessageBoxes(QWidget* window, const QVLoadString& loadString);

  void Show(Text text, const Arguments& arguments = {}) override;
  /// Anything but Yes counts as No, closing the box included.
  bool Ask(Text text, const Arguments& arguments = {}) override;
  void ShowText(std::wstring_view text) override;

 private:
  QString Worded(Text text, const Arguments& arguments) const;
  void Prepare(QMessageBox& box, const QString& text) const;
  void Rename(QMessageBox& box, int button, Text caption) const;

  QPointer<QWidget> m_window;
  const QVLoadString& m_loadString;
};

}  // namespace qv
