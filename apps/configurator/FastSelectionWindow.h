#pragma once

#include <QString>
#include <functional>

#include "apps/configurator/Workspace.h"

class QWidget;

namespace configurator {

/// How a run of the fast selection ended.
struct FastSelectionEnd {
  QString result;  ///< as in "IDOK weekdays=0x1f months=0x024 day-type=0", or "IDCANCEL"
  Workspace::Problem problem;  ///< why the dialog could not be shown
};

/// Runs the library's fast selection over the day types of a discriminator of the open
/// installation, for the months March to June of the present year.
///
/// `stem` says which discriminator, as in "<id>.<name>"; empty, it is the first by name that is of
/// time slots. `whenMade` is given the dialog before it is shown.
FastSelectionEnd RunFastSelection(Workspace& workspace, const QString& stem,
                                  const std::function<void(QWidget&)>& whenMade);

}  // namespace configurator
