#pragma once

#include <string>
#include <system_error>

#include "tools/Export.h"

namespace qv {

/// The system's own words for `error`, in the language of the process's locale as far as the system
/// has them in it.
QVTOOLS_EXPORT std::wstring SystemWords(const std::error_code& error);

}  // namespace qv
