#pragma once

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QString>
#include <QWidget>
#include <functional>

#include "host/Text.h"

namespace qv {

/// Runs `run`, which shows modal windows, while `script` plays the user. The script starts when the
/// first modal window is up; whatever is still open when it ends is closed, and the test fails. The
/// result is that of `run`.
int Drive(const std::function<int()>& run, const std::function<void()>& script);

/// Lets `script` run once, as soon as a modal window comes up that isn't on top now: for a window
/// that the next click opens, since that click returns only when the window is closed again.
void WhenNextWindow(std::function<void()> script);

/// Presses a button of the message box on top, after checking that it says this text.
void AnswerBox(Text text, QMessageBox::StandardButton button);

/// Does that as soon as a box comes up that isn't on top now: for one that the next click opens.
void AnswerNextBox(Text text, QMessageBox::StandardButton button);

/// How the installed host words a text, in a title or wherever else it is shown.
QString TitleOf(Text text);

/// The modal window that is on top, or null.
QWidget* TopWindow();

/// The control of the top window with this number; the test fails if there is none.
QWidget* TopControl(int id);

/// The same as a widget of some kind; the test also fails if it is of another.
template <class Widget>
Widget* TopControl(int id) {
  auto* control = qobject_cast<Widget*>(TopControl(id));
  EXPECT_TRUE(control) << "control " << id << " is of another kind";
  return control;
}

/// Clicks a control of the top window with the left button.
void Click(int id);

/// Lets pending events and paints happen.
void Settle();

}  // namespace qv
