#pragma once

#include "checks/Finding.h"
#include "checks/SeenFile.h"

namespace qv {

/// Whether the name of a file that was read is `<id>.<name>.xdct` of its own fields to the letter.
/// Tells which part of it isn't.
[[nodiscard]] bool CheckFileName(const SeenFile& seen, Findings& findings);

/// The id that the name of a discriminator file says.
std::wstring IdInFileName(const std::wstring& file);

}  // namespace qv
