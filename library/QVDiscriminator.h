#pragma once

/// All that the library exports. A host installs its services (host/Host.h), constructs one of
/// these dialogs, runs it, reads the result and destroys it. The day dial, `QVDayCtrl`, is a widget
/// for a host's own windows and needs no service.

#include "calendar/ui/CDlgFastSelection.h"
#include "manager/ui/CDlgSetupDiscriminators.h"
#include "timestructure/ui/QVDayCtrl.h"
