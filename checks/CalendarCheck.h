#pragma once

#include "checks/Finding.h"
#include "checks/PartCheck.h"
#include "tools/XmlNode.h"

namespace qv {

/// Tells what of a calendar, which may be null, the calendar dialog reads otherwise than it stands
/// there, or not at all: years that are no number of 16 bits, months and dates that don't exist,
/// dates with a day type that isn't there, and dates that it would leave out when it writes them.
/// The findings have no file.
void CheckCalendar(const XmlNode* calendar, const PartIds& dayTypes, Findings& findings);

}  // namespace qv
