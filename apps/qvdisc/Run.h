#pragma once

#include "apps/qvdisc/Arguments.h"
#include "apps/qvdisc/System.h"
#include "apps/qvdisc/Terminal.h"

namespace qvdisc {

/// Does what the call asks for and returns the exit status: 0 done, 1 refused or something found.
/// What was done goes to the output as text or JSON, the reasons of a refusal to the error stream.
[[nodiscard]] int Run(const Arguments& arguments, const Terminal& terminal, const System& system);

}  // namespace qvdisc
