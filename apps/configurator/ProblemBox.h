#pragma once

#include <QString>

#include "apps/configurator/Workspace.h"

class QWidget;

namespace configurator {

/// Tells the user, in a box over `parent` (or null), what went wrong. Returns when it is closed.
void ShowProblem(const QString& problem, const Workspace& workspace, QWidget* parent);

}  // namespace configurator
