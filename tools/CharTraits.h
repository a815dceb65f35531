#pragma once

#include <cstddef>

#include "tools/Export.h"

/// What `QVBasicString` asks of narrow characters.
struct QVTOOLS_EXPORT QVChar {
  /// Characters before the terminating zero; 0 for a null pointer.
  static std::size_t Length(const char* text);
  /// The one empty text that all empty strings share.
  static const char* EmptyString();
};

/// What `QVBasicString` asks of wide characters.
struct QVTOOLS_EXPORT QVWideChar {
  /// Characters before the terminating zero; 0 for a null pointer.
  static std::size_t Length(const wchar_t* text);
  /// The one empty text that all empty strings share.
  static const wchar_t* EmptyString();
  /// Compares with regard to case: negative, 0 or positive, as `a` sorts before, with or behind
  /// `b`.
  static int Compare(const wchar_t* a, const wchar_t* b);
  /// The same over the first `count` characters; stops at a terminating zero.
  static int Compare(const wchar_t* a, const wchar_t* b, std::size_t count);
  /// Unicode's simple upper-case mapping of one character, whatever the process's locale; a number
  /// that is no character comes back as it is.
  static int ToUpper(int character);
};
