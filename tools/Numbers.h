#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "tools/Export.h"

/// The number that the first `length` characters of `text` write in hexadecimal, in either case. It
/// stops at the first other character; an empty text gives 0. More than eight digits keep the
/// lowest 32 bits. A null text gives 0.
QVTOOLS_EXPORT std::int32_t HtoL(const wchar_t* text, std::size_t length);

/// The integer nearest to `value`, halves away from zero. What an `int` can't hold gives its
/// nearest limit, and a value that is no number gives 0.
QVTOOLS_EXPORT int roundi(double value);

namespace qv {

/// The whole number that stands at the start of `text` in decimal: blanks, a sign, digits. It stops
/// at the first other character and stays at the limits of `int`. No digits give 0.
QVTOOLS_EXPORT int Wtoi(std::wstring_view text);

}  // namespace qv
