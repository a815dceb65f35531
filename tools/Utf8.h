#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tools/Export.h"

namespace qv {

/// `text` in UTF-8; nothing if it holds a number that is no Unicode character (a lone surrogate, or
/// beyond U+10FFFF).
QVTOOLS_EXPORT std::optional<std::string> ToUtf8(std::wstring_view text);

/// How many columns a terminal gives to `text`: two for a wide character, none for one that joins
/// the one before it.
QVTOOLS_EXPORT std::size_t ColumnsOf(std::wstring_view text);

/// `bytes` read as UTF-8; what isn't UTF-8 becomes U+FFFD.
QVTOOLS_EXPORT std::wstring FromUtf8(std::string_view bytes);

}  // namespace qv
