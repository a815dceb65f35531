#pragma once

#include <QString>
#include <QWidget>
#include <functional>

namespace qv {

/// Runs `run`, which shows modal windows, while `script` plays the user. The script starts when the
/// first modal window is up; whatever is still open when it ends is closed, and the test fails. The
/// result is that of `run`.
int Drive(const std::function<int()>& run, const std::function<void()>& script);

/// Lets `script` run once, as soon as a modal window comes up that isn't on top now: for a window
/// that the next click opens, since that click returns only when the window is closed again.
void WhenNextWindow(std::function<void()> script);

/// Presses the button with this role in the message box that the next click opens, after checking
/// the number of its text.
void AnswerNextBox(unsigned textNumber, int standardButton);

/// The modal window that is on top, or null.
QWidget* TopWindow();

/// The control of the top window with this number; the test fails if there is none.
QWidget* TopControl(int id);

/// Clicks a control of the top window with the left button.
void Click(int id);

/// Lets pending events and paints happen.
void Settle();

}  // namespace qv
