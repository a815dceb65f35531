#pragma once

#include <QDialog>
#include <QDir>
#include <string>
#include <vector>

namespace qv {

/// What is to be seen of a window, in lines of text: the window itself, then each control that has
/// a number, by number, then the places of all at the least and at an enlarged size if the window
/// can be sized. It reads the window alone. Pictures go by their files in a directory.
///
/// It types into the window's edits, and resizes it, so that the window is of no use afterwards.
std::vector<std::string> WindowText(QDialog& window, const QDir& pictures);

}  // namespace qv
