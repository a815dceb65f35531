#include "toolkit/ProgressWindow.h"

#include <QCoreApplication>

#include "toolkit/ProgressDialog.h"

namespace qv {
namespace {

constexpr qint64 patienceMs = 500;
constexpr qint64 updateMs = 40;

}  // namespace

ProgressWindow::ProgressWindow(QWidget* parent, const QVLoadString& loadString, Cancel cancel)
    : m_parent(parent), m_loadString(loadString), m_cancel(cancel) {
  m_sinceStart.start();
  m_sinceUpdate.start();
}

ProgressWindow::~ProgressWindow() = default;

bool ProgressWindow::IsDue() {
  if (!m_dialog) {
    return m_sinceStart.elapsed() >= patienceMs;
  }
  return m_sinceUpdate.elapsed() >= updateMs;
}

bool ProgressWindow::Advance(std::size_t done, std::size_t total) {
  if (!IsDue()) {
    return true;
  }
  if (!m_dialog) {
    m_dialog =
        std::make_unique<ProgressDialog>(m_parent, m_loadString, m_cancel == Cancel::Offered);
    m_dialog->show();
  }
  m_sinceUpdate.restart();
  m_dialog->ShowStep(static_cast<int>(done), static_cast<int>(total));
  // The window is modal: no event that comes in here reaches a handler of another window.
  QCoreApplication::processEvents();
  return !m_dialog->Cancelled();
}

}  // namespace qv
