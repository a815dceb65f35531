#pragma once

#include "apps/configurator/Arguments.h"

namespace configurator {

/// Runs the program as the command line asks, and returns its exit status. There is a QApplication
/// already.
[[nodiscard]] int Run(const Arguments& arguments);

}  // namespace configurator
