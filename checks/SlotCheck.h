#pragma once

#include "checks/Finding.h"
#include "checks/PartCheck.h"
#include "tools/XmlNode.h"

namespace qv {

/// What is wrong with the slots of a day type: hour types that aren't there, the times of one, two
/// that overlap, and, where none is wrong, the minutes that none covers. The findings have no file.
void CheckSlots(const XmlNode& day, const PartIds& hourTypes, Findings& findings);

}  // namespace qv
