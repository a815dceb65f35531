#include "tests/support/DialogDriver.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "host/QVLoadString.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

QWidget* ControlOf(QWidget* window, int id) {
  for (QWidget* child : window->findChildren<QWidget*>()) {
    const QVariant number = child->property("controlId");
    if (number.isValid() && number.toInt() == id) {
      return child;
    }
  }
  return nullptr;
}

void CloseWhatIsOpen() {
  while (QWidget* window = QApplication::activeModalWidget()) {
    ADD_FAILURE() << "still open: " << window->windowTitle().toStdString();
    window->close();
    window->hide();
    Settle();
  }
}

/// Calls `script` once a modal window is up that isn't on top now. The timer dies with that call.
QTimer* WatchForNextWindow(std::function<void()> script) {
  auto* poll = new QTimer(qApp);
  const QWidget* present = QApplication::activeModalWidget();
  QObject::connect(poll, &QTimer::timeout, poll, [poll, present, run = std::move(script)] {
    const QWidget* top = QApplication::activeModalWidget();
    if (top && top != present) {
      const auto kept = run;  // the timer, which owns this function, dies before the script starts
      delete poll;
      Settle();
      kept();
    }
  });
  poll->start(0);
  return poll;
}

}  // namespace

int Drive(const std::function<int()>& run, const std::function<void()>& script) {
  bool played = false;
  const QPointer<QTimer> poll = WatchForNextWindow([&] {
    played = true;
    script();
    Settle();
    CloseWhatIsOpen();
  });
  const int result = run();
  delete poll;  // it is gone already if it has played
  EXPECT_TRUE(played) << "no modal window came up";
  return result;
}

void WhenNextWindow(std::function<void()> script) { WatchForNextWindow(std::move(script)); }

void AnswerBox(Text text, QMessageBox::StandardButton button) {
  auto* box = qobject_cast<QMessageBox*>(TopWindow());
  ASSERT_TRUE(box) << "a message box was expected";
  EXPECT_EQ(box->property("textNumber").toUInt(), Number(text));
  auto* found = box->button(button);
  ASSERT_TRUE(found);
  found->click();
}

void AnswerNextBox(Text text, QMessageBox::StandardButton button) {
  WhenNextWindow([=] { AnswerBox(text, button); });
}

QString TitleOf(Text text) { return ToQString(QVLoadString::Get()->Load(text)); }

QWidget* TopWindow() { return QApplication::activeModalWidget(); }

QWidget* TopControl(int id) {
  QWidget* window = TopWindow();
  QWidget* control = window ? ControlOf(window, id) : nullptr;
  EXPECT_TRUE(control) << "no control " << id;
  return control;
}

void Click(int id) {
  if (QWidget* control = TopControl(id)) {
    QTest::mouseClick(control, Qt::LeftButton);
  }
}

void Settle() {
  for (int i = 0; i < 3; ++i) {
    QApplication::processEvents();
  }
}

}  // namespace qv
