#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "tools/Export.h"
#include "tools/QVBasicString.h"

namespace qv {

/// One argument of `Format`: a text or a whole number.
class QVTOOLS_EXPORT FormatArgument {
 public:
  // Callers list texts and numbers as they are, as in Format(L"%s %d", {name, 3}).
  // NOLINTBEGIN(google-explicit-constructor)
  FormatArgument(const wchar_t* text);
  FormatArgument(const QVWideString& text);
  FormatArgument(std::wstring_view text);
  FormatArgument(int number);
  FormatArgument(unsigned number);
  // NOLINTEND(google-explicit-constructor)

  /// The argument under a conversion character `s`, `d`, `u` or `X`, with at least `width`
  /// characters, filled with `fill` on the left.
  std::wstring Converted(wchar_t conversion, std::size_t width, wchar_t fill) const;

 private:
  std::wstring_view m_text;
  long long m_number = 0;
  bool m_isText = false;
};

/// The text that `format` makes of `arguments`. Conversions: `%s` a wide text, `%d` and `%u` a
/// decimal number, `%X` an upper-case hexadecimal one (of 32 bits), each with an optional width and
/// leading zeros as in `%02d` and `%06X`, and `%%`. An argument of the other kind is shown in its
/// own form. A conversion without an argument, or one that isn't listed, stands as it is. No text
/// from a file is ever used as a format by the C library.
QVTOOLS_EXPORT std::wstring Format(std::wstring_view format,
                                   std::initializer_list<FormatArgument> arguments);
/// The same with arguments that were gathered before.
QVTOOLS_EXPORT std::wstring Format(std::wstring_view format,
                                   std::span<const FormatArgument> arguments);

}  // namespace qv
