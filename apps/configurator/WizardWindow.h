#pragma once

#include <QString>
#include <functional>

#include "apps/configurator/Workspace.h"

class QWidget;

namespace configurator {

/// Runs the wizard of expressions on the first condition among the discriminators of the open
/// installation, or on nothing if there is none, and changes nothing.
///
/// `whenMade` is given the window before it is shown. The result is how the window ended, as in
/// "IDOK TS1.VL1 > 253" or "IDCANCEL".
QString RunWizard(Workspace& workspace, const std::function<void(QWidget&)>& whenMade);

}  // namespace configurator
