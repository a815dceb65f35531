#pragma once

#include <QIcon>
#include <QPointer>
#include <QWidget>

#include "host/Host.h"
#include "host/Prompter.h"

class QMessageBox;

namespace qv {

/// Speaks to the user by modal boxes over a window. A box carries the number of its text in the
/// dynamic property "textNumber". What there is to add is the second text of the box. A window that
/// doesn't show yet lends its title, and the box stands over the nearest of its owners that does.
class MessageBoxes : public Prompter {
 public:
  MessageBoxes(QWidget* window, const Host& host);

  void Show(Text text, const Arguments& arguments = {}, const Addition& addition = {}) override;
  /// Anything but Yes counts as No, closing the box included.
  bool Ask(Text text, const Arguments& arguments = {}, const Addition& addition = {}) override;
  void ShowText(std::wstring_view text, const Addition& addition = {}) override;

 private:
  QString Worded(Text text, const Arguments& arguments) const;
  QWidget* VisibleWindow() const;
  void Prepare(QMessageBox& box, const QString& text, const wchar_t* picture) const;
  void Add(QMessageBox& box, const Addition& addition) const;
  void Dress(QMessageBox& box, int button, Text caption, const wchar_t* picture) const;
  QIcon Picture(const wchar_t* fileName) const;

  QPointer<QWidget> m_window;
  Host m_host;
};

}  // namespace qv
