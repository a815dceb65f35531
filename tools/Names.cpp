#include "tools/Names.h"

#include <utf8proc.h>

#include <algorithm>

#include "tools/CharTraits.h"
#include "tools/Utf8.h"
#include "tools/XmlText.h"

namespace {

#ifdef _WIN32
constexpr std::wstring_view refusedInFileNames = L"\"\\";
#else
constexpr std::wstring_view refusedInFileNames;
#endif

/// The GUID, the two dots and the extension "xdctI" of the file that a name stands in, in bytes.
constexpr std::size_t besideName = 36 + 1 + 6;

bool CanStandInFileName(std::wstring_view name) {
  return qv::FitsInFileName(name, besideName) &&
         name.find_first_of(refusedInFileNames) == std::wstring_view::npos;
}

bool IsControl(wchar_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

bool IsSpace(wchar_t character) {
  const auto category = utf8proc_category(static_cast<utf8proc_int32_t>(character));
  return category == UTF8PROC_CATEGORY_ZS || category == UTF8PROC_CATEGORY_ZL ||
         category == UTF8PROC_CATEGORY_ZP;
}

/// Whether nothing is to be seen of a character that is no space: zero-width ones, marks of
/// direction, soft hyphens, fillers, selectors of variants.
bool IsUnseen(wchar_t character) {
  // Separators of lines, the blank of Braille and the marks of annotations aren't in the property.
  constexpr std::wstring_view others = L"\u2028\u2029\u2800\uFFF9\uFFFA\uFFFB";
  return utf8proc_get_property(static_cast<utf8proc_int32_t>(character))->ignorable != 0 ||
         others.find(character) != std::wstring_view::npos;
}

wchar_t Lowered(wchar_t character) {
  return static_cast<wchar_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(character)));
}

wchar_t Uppered(wchar_t character) {
  return static_cast<wchar_t>(QVWideChar::ToUpper(static_cast<int>(character)));
}

}  // namespace

bool IsValidId(const wchar_t* text, bool asFileName) {
  const std::wstring_view name(text ? text : L"");
  return !name.empty() && !IsSpace(name.front()) && !IsSpace(name.back()) &&
         name.find_first_of(L".?=/<>:|*") == std::wstring_view::npos &&
         std::none_of(name.begin(), name.end(), IsControl) && qv::IsXmlText(name) &&
         std::none_of(name.begin(), name.end(), IsUnseen) &&
         (!asFileName || CanStandInFileName(name));
}

namespace qv {

bool FitsInFileName(std::wstring_view text, std::size_t otherBytes) {
  constexpr std::size_t longestFileName = 255;  // bytes
  const auto bytes = ToUtf8(text);
  return bytes && otherBytes <= longestFileName && bytes->size() <= longestFileName - otherBytes;
}

int CompareLowered(std::wstring_view a, std::wstring_view b) {
  const auto before = [](wchar_t x, wchar_t y) { return Lowered(x) < Lowered(y); };
  if (std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), before)) {
    return -1;
  }
  return std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(), before) ? 1 : 0;
}

bool EqualUppered(std::wstring_view a, std::wstring_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](wchar_t x, wchar_t y) { return Uppered(x) == Uppered(y); });
}

}  // namespace qv
