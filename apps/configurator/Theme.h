#pragma once

#include "apps/configurator/Arguments.h"

namespace configurator {

/// Draws all windows in light or dark colours from now on, whatever the system's are.
void UseTheme(Theme theme);

}  // namespace configurator
