#pragma once

#include <QString>
#include <QWidget>
#include <optional>

#include "toolkit/Types.h"

namespace qv {

/// Lets the user choose a colour over `parent`, `colour` at first; nothing if they cancel.
std::optional<COLORREF> AskColour(QWidget* parent, COLORREF colour, const QString& title);

}  // namespace qv
