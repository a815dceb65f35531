#pragma once

#include "hostkit/Device.h"
#include "tools/XmlNode.h"

namespace qv {

/// The device that a `device` of `commSystem` describes. Variables without a name are left out, and
/// so are those with the name of one before them; what doesn't make sense in a field counts as not
/// there.
Device ReadDevice(const XmlNode& device);

}  // namespace qv
