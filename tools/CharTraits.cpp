#include "tools/CharTraits.h"

#include <utf8proc.h>

#include <cstring>
#include <cwchar>

std::size_t QVChar::Length(const char* text) { return text ? std::strlen(text) : 0; }

const char* QVChar::EmptyString() {
  static const char empty[] = "";
  return empty;
}

std::size_t QVWideChar::Length(const wchar_t* text) { return text ? std::wcslen(text) : 0; }

const wchar_t* QVWideChar::EmptyString() {
  static const wchar_t empty[] = L"";
  return empty;
}

int QVWideChar::Compare(const wchar_t* a, const wchar_t* b) { return std::wcscmp(a, b); }

int QVWideChar::Compare(const wchar_t* a, const wchar_t* b, std::size_t count) {
  return std::wcsncmp(a, b, count);
}

int QVWideChar::ToUpper(int character) {
  // The library makes U+1E9E of it, whereas Unicode's simple mapping has none.
  constexpr int sharpS = 0xDF;
  return character == sharpS ? sharpS : utf8proc_toupper(character);
}
