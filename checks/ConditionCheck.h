#pragma once

#include "checks/Finding.h"
#include "host/QVDriverSupport.h"
#include "tools/XmlNode.h"

namespace qv {

/// Tells the conditions of a container, which may be null, that couldn't be stored by their editor:
/// those that don't parse, give neither true nor false, or fail. Noted are those whose expression
/// another has before them, and those of which the editor would keep a part only. The findings have
/// no file.
void CheckConditions(const XmlNode* conditions, const QVDriverSupport& drivers, Findings& findings);

}  // namespace qv
