#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "apps/configurator/Workspace.h"

class QWidget;

namespace configurator {

/// How a run of the manager ended.
struct ManagerEnd {
  int result = 0;              ///< what the dialog gave
  Workspace::Problem problem;  ///< why the configuration could not be saved, if it had to be
};

/// Runs the library's manager of discriminators on the open installation, and saves the
/// configuration if the result asks for it.
///
/// `whenMade` may be given the dialog before it is shown.
ManagerEnd RunDiscriminatorManager(Workspace& workspace, QWidget* parent,
                                   const std::function<void(QWidget&)>& whenMade = {});

/// Saves the configuration if the manager ended with IDOK, and in no other case: what the user left
/// by Escape stays unsaved, though the files of the discriminators may have changed.
Workspace::Problem SaveIfAsked(Workspace& workspace, int result);

/// The word for a result of a dialog, as in "IDOK".
QString ResultName(int result);

}  // namespace configurator
