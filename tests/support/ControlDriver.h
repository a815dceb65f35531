#pragma once

#include <QColor>
#include <QComboBox>
#include <QLineEdit>
#include <QString>
#include <QStringList>
#include <QTreeWidget>
#include <initializer_list>
#include <vector>

#include "tests/support/DialogDriver.h"

// What a user does to the controls of the window on top, and sees of them. A control goes by its
// number; the test fails if the window has none of that number and kind.
namespace qv {

QLineEdit* Edit(int id);
QComboBox* Combo(int id);
QTreeWidget* List(int id);

/// The caption of a button or a label, or the title of a box.
QString Caption(int id);

/// Types into an edit, in place of all that it holds.
void Type(int id, const QString& text);

/// The texts of a list, a row each, with blanks between the columns.
QStringList Rows(int list);

/// The texts of a list's first column.
QStringList Names(int list);

/// The numbers of the rows that are selected, from the top.
std::vector<int> SelectedRows(int list);

void ClickRow(int list, int row, Qt::KeyboardModifiers modifiers = {});

void DoubleClickRow(int list, int row);

/// Double-clicks where a list has no rows any more.
void DoubleClickBelowRows(int list);

/// Presses a key in a control, whether it has the focus or not.
void Press(int id, Qt::Key key, Qt::KeyboardModifiers modifiers = {});

/// Turns the wheel over a control, by eighths of a degree: up for a number above zero.
void TurnWheel(int id, int eighths);

/// Takes this colour in the colour dialog that comes up next, and leaves that by a key.
void ChooseNextColour(const QColor& colour, Qt::Key leaveBy = Qt::Key_Return);

/// Fails the test unless the first controls are enabled and the others aren't.
void ExpectEnabled(std::initializer_list<int> enabled, std::initializer_list<int> disabled);

// What the buttons of a list offer while no row is selected, one is, or several are.
void ExpectNoneSelected();
void ExpectOneSelected();
void ExpectSeveralSelected();

/// Fails the test unless the first controls are visible and the others aren't.
void ExpectVisible(std::initializer_list<int> visible, std::initializer_list<int> hidden);

}  // namespace qv
