#pragma once

#include "checks/Finding.h"
#include "checks/SeenFile.h"

namespace qv {

/// Tells the files that were read and have an id, or a name but for case, that another of them has.
void CheckTwins(const SeenFiles& seen, Findings& findings);

}  // namespace qv
