#pragma once

#include <set>
#include <string>

#include "checks/Finding.h"
#include "tools/XmlNode.h"

namespace qv {

/// The ids of the parts of a container, at which slots and dates point.
using PartIds = std::set<std::wstring>;

/// The ids of the children `part` of the container with this tag, if the document has one. Tells
/// the ids and names that come twice. The findings have no file.
PartIds CheckParts(const XmlNode& root, const wchar_t* container, const wchar_t* part,
                   Findings& findings);

}  // namespace qv
