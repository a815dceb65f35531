#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "tools/Export.h"
#include "tools/QVBasicString.h"

/// A globally unique value, its 16 bytes in the order in which their text shows them.
struct uuid {
  std::array<std::uint8_t, 16> bytes{};

  friend bool operator==(const uuid&, const uuid&) = default;
};

/// Fills in a new random value. False, and nothing filled in, for a null pointer.
QVTOOLS_EXPORT bool NewGUID(uuid* value);

/// Writes the text of `value` into `buffer` and returns `buffer`: lower-case, 8-4-4-4-12, no
/// braces, so 36 characters and a zero. A shorter `length` (in characters) cuts it; the text is
/// always terminated unless `length` is 0.
QVTOOLS_EXPORT wchar_t* guidtow(const uuid& value, wchar_t* buffer, std::size_t length);

namespace qv {

/// The text of a new GUID.
QVTOOLS_EXPORT QVWideString NewGuidText();

}  // namespace qv
