#pragma once

#include <ostream>

#include "checks/Finding.h"
#include "tools/Utf8.h"

namespace qv {

/// What a failing test prints of a finding.
inline void PrintTo(const Finding& finding, std::ostream* out) {
  *out << "kind " << static_cast<int>(finding.kind);
  for (const auto& text : {finding.file, finding.place, finding.value, finding.expected}) {
    *out << " '" << ToUtf8(text).value_or("?") << "'";
  }
  *out << " " << finding.line << ":" << finding.column;
}

}  // namespace qv
