#pragma once

#include <QString>
#include <QWidget>

#include "tools/QVBasicString.h"

namespace qv {

/// Gives a button, label, check box or group box a caption as it stands, without mnemonics or rich
/// text. Does nothing for any other widget, or null.
void ShowCaption(QWidget* control, const QString& caption);

/// Gives a button or link the picture at `path`; does nothing for any other widget, or null.
void ShowPicture(QWidget* control, const QVWideString& path);

}  // namespace qv
