#pragma once

/// All that the library exports. A host installs its services (host/Host.h), constructs one of
/// these classes, runs it, reads the result and destroys it.

#include "discriminator/ui/CDlgSetupDiscriminators.h"
