#pragma once

#include <QWidget>

namespace qv {

/// The wait cursor over a window for as long as this object lives; then the arrow is back.
class WaitCursor {
 public:
  explicit WaitCursor(QWidget* window) : m_window(window) { m_window->setCursor(Qt::WaitCursor); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  ~WaitCursor() { m_window->unsetCursor(); }

 private:
  QWidget* m_window;
};

}  // namespace qv
