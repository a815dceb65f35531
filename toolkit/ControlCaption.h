#pragma once

#include <QString>
#include <QWidget>

#include "tools/QVBasicString.h"

namespace qv {

/// Gives a button, a check box or a label a caption, in which "&" stands before the mnemonic; a
/// label without a buddy, which no key can reach, and a group box show it as it reads. Does nothing
/// for any other widget, or null.
void ShowCaption(QWidget* control, const QString& caption);

/// Gives a button or link the picture at `path`; does nothing for any other widget, or null.
void ShowPicture(QWidget* control, const QVWideString& path);

/// Gives a button or link a hint for its tooltip; does nothing for any other widget, or null.
void ShowHint(QWidget* control, const QString& hint);

}  // namespace qv
