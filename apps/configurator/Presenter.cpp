#include "apps/configurator/Presenter.h"

#include <QAbstractItemView>
#include <QBasicTimer>
#include <QEvent>
#include <QPixmap>
#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

#include "apps/configurator/AlignedRows.h"

namespace configurator {
namespace {

/// Takes its steps when the window that owns it has been shown: each of them after all events that
/// the one before has caused.
class WhenShown : public QObject {
 public:
  using Step = std::function<void()>;

  WhenShown(QWidget& window, std::vector<Step> steps)
      : QObject(&window), m_steps(std::move(steps)) {}

  bool eventFilter(QObject* window, QEvent* event) override {
    if (event->type() == QEvent::Show) {
      window->removeEventFilter(this);
      m_timer.start(0, this);
    }
    return false;
  }

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    if (m_next + 1 >= m_steps.size()) {
      m_timer.stop();
    }
    m_steps.at(m_next++)();
  }

 private:
  std::vector<Step> m_steps;
  std::size_t m_next = 0;
  QBasicTimer m_timer;
};

}  // namespace

Presenter::Presenter(const Arguments& arguments) : m_arguments(arguments) {}

void Presenter::Present(QWidget& window) {
  window.installEventFilter(new WhenShown(
      window, {[this, &window] { SetSize(window); }, [this, &window] { Perform(window); }}));
}

std::optional<OwnText> Presenter::Problem() const {
  if (!m_arguments.EndsByItself()) {
    return std::nullopt;
  }
  if (!m_performed) {
    return OwnText::WindowNotShown;
  }
  const bool saved = m_pictureSaved || !m_arguments.picture;
  return saved ? std::nullopt : std::optional(OwnText::PictureNotSaved);
}

void Presenter::SetSize(QWidget& window) const {
  if (m_arguments.size) {
    window.resize(m_arguments.size->width, m_arguments.size->height);
  }
}

void Presenter::Perform(QWidget& window) {
  if (!m_arguments.EndsByItself()) {
    return;
  }
  m_performed = true;
  if (m_arguments.list) {
    PrintRows(window);
  }
  if (m_arguments.picture) {
    m_pictureSaved = window.grab().save(QString::fromStdString(*m_arguments.picture), "PNG");
  }
  window.close();
}

void Presenter::PrintRows(const QWidget& window) const {
  if (const auto* rows = window.findChild<QAbstractItemView*>()) {
    std::fputs(AlignedRows(*rows->model()).toUtf8().constData(), stdout);
  }
}

}  // namespace configurator
