#pragma once

#include <QString>
#include <QWidget>
#include <optional>

#include "tools/Colour.h"

namespace qv {

/// Lets the user choose a colour over `parent`, `colour` at first; nothing if they cancel.
std::optional<Colour> AskColour(QWidget* parent, Colour colour, const QString& title);

}  // namespace qv
