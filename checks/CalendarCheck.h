#pragma once

#include "checks/Finding.h"
#include "checks/PartCheck.h"
#include "tools/XmlNode.h"

namespace qv {

/// Tells the dates of a calendar, which may be null, that have a day type that isn't there. The
/// findings have no file.
void CheckCalendar(const XmlNode* calendar, const PartIds& dayTypes, Findings& findings);

}  // namespace qv
