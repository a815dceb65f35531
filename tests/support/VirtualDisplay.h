#pragma once

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QPoint>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QThread>

namespace qv {

/// How long a process may take to do anything, in milliseconds: the machine may be busy.
inline constexpr int patience = 120000;

/// A screen of X that nobody sees, with real windows, keys and a clipboard.
class VirtualDisplay {
 public:
  VirtualDisplay() {
    m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
    EXPECT_TRUE(m_server.waitForReadyRead(patience)) << qPrintable(m_server.errorString());
    m_environment.insert("DISPLAY", ':' + m_server.readLine().trimmed());
    m_environment.insert("QT_QPA_PLATFORM", "xcb");
  }

  ~VirtualDisplay() { End(m_server); }

  /// Starts a program on this screen, to be given to `End`.
  void Start(QProcess& process, const QString& program, const QStringList& arguments) const {
    process.setProcessEnvironment(m_environment);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForStarted(patience)) << qPrintable(process.errorString());
  }

  static void End(QProcess& process) {
    process.terminate();
    if (!process.waitForFinished(patience)) {
      process.kill();
    }
  }

  /// Waits until `process` has a window, and gives it the keys from now on.
  void Focus(const QProcess& process) const { Do({"windowfocus", "--sync", WindowOf(process)}); }

  /// Drags with the left button from one place of the window of `process` to another.
  void Drag(const QProcess& process, QPoint from, QPoint to) const {
    const QString window = WindowOf(process);
    const auto moveTo = [&](QPoint place) {
      Do({"mousemove", "--window", window, QString::number(place.x()), QString::number(place.y())});
      QThread::msleep(handSpeed);
    };
    moveTo(from);
    Do({"mousedown", "1"});
    constexpr int steps = 8;
    for (int step = 1; step <= steps; ++step) {
      moveTo(from + (to - from) * step / steps);
    }
    Do({"mouseup", "1"});
  }

  /// Presses keys as the keyboard does, as in "shift+End".
  void Press(const QString& keys) const { Do({"key", keys}); }

 private:
  /// Milliseconds between two moves of the mouse.
  static constexpr unsigned long handSpeed = 50;

  /// The window of a process, as soon as it is to be seen. A search also fails if any window at all
  /// goes while it looks, so that it is made again.
  QString WindowOf(const QProcess& process) const {
    QProcess search;
    for (const QDeadlineTimer late(patience); !late.hasExpired();) {
      Run(search, {"search", "--all", "--onlyvisible", "--pid",
                   QString::number(process.processId()), "--name", ".*"});
      if (search.exitCode() == 0) {
        return QString::fromLatin1(search.readAllStandardOutput()).section('\n', 0, 0);
      }
      QThread::msleep(handSpeed);
    }
    ADD_FAILURE() << "no window: " << search.readAllStandardError().toStdString();
    return {};
  }

  void Run(QProcess& tool, const QStringList& command) const {
    tool.setProcessEnvironment(m_environment);
    tool.start("xdotool", command);
    EXPECT_TRUE(tool.waitForFinished(patience)) << qPrintable(tool.errorString());
  }

  void Do(const QStringList& command) const {
    QProcess tool;
    Run(tool, command);
    EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
  }

  QProcess m_server;
  QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

}  // namespace qv
