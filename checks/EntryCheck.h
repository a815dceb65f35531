#pragma once

#include "checks/Finding.h"
#include "checks/SeenFile.h"
#include "tools/XmlNode.h"

namespace qv {

/// Compares the entries of discriminators in the device groups, which may be null, with the files.
/// Entries are told of the file `configuration`.
void CheckEntries(const XmlNode* deviceGroups, const SeenFiles& seen,
                  const std::wstring& configuration, Findings& findings);

}  // namespace qv
