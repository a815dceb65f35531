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

wchar_t Lowered(wchar_t character) {
  return static_cast<wchar_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(character)));
}

wchar_t Uppered(wchar_t character) {
  return static_cast<wchar_t>(QVWideChar::ToUpper(static_cast<int>(character)));
}

}  // namespace

bool IsValidId(const wchar_t* text, bool asFileName) {
  const std::wstring_view name(text ? text : L"");
  return !name.empty() && name.find_first_of(L".?=/<>:|*") == std::wstring_view::npos &&
         std::none_of(name.begin(), name.end(), IsControl) && qv::IsXmlText(name) &&
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
