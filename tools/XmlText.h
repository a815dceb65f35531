#pragma once

#include <string_view>

#include "tools/Export.h"
#include "tools/QVBasicString.h"

/// Decodes `text`, the content of an element in UTF-8 with its references, into `out` and returns
/// `out`. What isn't the text of an element (a stray `<` or `&`, a child element, bytes that aren't
/// UTF-8) gives the empty text.
QVTOOLS_EXPORT QVWideString& ParseXMLText(const char* text, QVWideString& out);

namespace qv {

/// Whether XML can carry every character of `text`.
QVTOOLS_EXPORT bool IsXmlText(std::wstring_view text);

}  // namespace qv
