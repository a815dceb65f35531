#pragma once

#include <cstddef>
#include <string_view>

#include "tools/Export.h"

/// Whether `text` may be used as a name. Refused are a null or empty text, white space at either
/// end, characters that can't be seen (zero-width, marks of direction), control characters and
/// whatever else XML can't carry, and `.` `?` `=` `/` `<` `>` `:` `|` `*`, which separate names in
/// file names and paths. With `asFileName` also a name too long for the file `<id>.<name>.xdctI`,
/// and the characters that this platform's file names can't hold (`"` and `\` on Windows).
QVTOOLS_EXPORT bool IsValidId(const wchar_t* text, bool asFileName);

namespace qv {

/// Whether `text`, with `otherBytes` bytes beside it, is short enough for the name of one file, as
/// the usual file systems take them. Not so for a text that has no UTF-8 form.
QVTOOLS_EXPORT bool FitsInFileName(std::wstring_view text, std::size_t otherBytes = 0);

/// Orders texts without regard to case, by their lower-cased characters (so that `_` stands before
/// letters): negative, 0 or positive. Independent of the process's locale.
QVTOOLS_EXPORT int CompareLowered(std::wstring_view a, std::wstring_view b);

/// Whether the texts are equal without regard to case, by their upper-cased characters.
QVTOOLS_EXPORT bool EqualUppered(std::wstring_view a, std::wstring_view b);

}  // namespace qv
