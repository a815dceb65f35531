#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <memory>

#include "host/Progress.h"
#include "host/QVLoadString.h"

class QWidget;

namespace qv {

class ProgressDialog;

/// A modal window that shows how far long work has come. It comes up only when the work has taken
/// half a second, so that short work stays without.
class ProgressWindow : public Progress {
 public:
  /// Whether the user may stop the work. Without Cancel the window can't be closed either.
  enum class Cancel { NotOffered, Offered };

  ProgressWindow(QWidget* parent, const QVLoadString& loadString, Cancel cancel);
  ~ProgressWindow() override;

  /// False once the user has pressed Cancel.
  bool Advance(std::size_t done, std::size_t total) override;

 private:
  bool IsDue();

  QPointer<QWidget> m_parent;
  const QVLoadString& m_loadString;
  Cancel m_cancel;
  QElapsedTimer m_sinceStart;
  QElapsedTimer m_sinceUpdate;
  std::unique_ptr<ProgressDialog> m_dialog;
};

}  // namespace qv
