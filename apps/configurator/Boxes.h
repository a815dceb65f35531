#pragma once

#include <QMessageBox>
#include <QString>

#include "apps/configurator/Workspace.h"

class QWidget;

namespace configurator {

/// Tells the user, in a box over `parent` (or null), what went wrong. Returns when it is closed.
void ShowProblem(const QString& problem, const Workspace& workspace, QWidget* parent);

/// Asks the user, in a box over `parent`, what is to become of unsaved changes: to save or to
/// discard them, or to go back, which is `QMessageBox::Cancel`.
[[nodiscard]] QMessageBox::StandardButton AskAboutChanges(const QString& question,
                                                          const Workspace& workspace,
                                                          QWidget* parent);

}  // namespace configurator
