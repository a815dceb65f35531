#pragma once

#include <QDialog>

#include "host/QVLoadString.h"

class QLabel;
class QProgressBar;

namespace qv {

/// The window that `ProgressWindow` shows: a label, a bar, a count and, if offered, Cancel. Escape
/// and the close box are Cancel, or nothing where there is none.
class ProgressDialog : public QDialog {
  Q_OBJECT

 public:
  ProgressDialog(QWidget* parent, const QVLoadString& loadString, bool cancelOffered);

  void ShowStep(int done, int total);
  bool Cancelled() const { return m_cancelled; }

  void reject() override;

 private:
  void AddCancel();

  const QVLoadString& m_loadString;
  QLabel* m_count;
  QProgressBar* m_bar;
  bool m_cancelOffered;
  bool m_cancelled = false;
};

}  // namespace qv
