#include "tools/Utf8.h"

#include <utf8proc.h>

namespace qv {
namespace {

constexpr bool isWide32 = sizeof(wchar_t) == 4;

bool IsHighSurrogate(wchar_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(wchar_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// Takes one character off the front of `text`; where wide characters have 16 bits, a pair of
/// surrogates is one character.
utf8proc_int32_t TakeCodePoint(std::wstring_view& text) {
  const wchar_t first = text.front();
  text.remove_prefix(1);
  if (!isWide32 && IsHighSurrogate(first) && !text.empty() && IsLowSurrogate(text.front())) {
    const auto low = static_cast<utf8proc_int32_t>(text.front()) - 0xDC00;
    text.remove_prefix(1);
    return 0x10000 + ((static_cast<utf8proc_int32_t>(first) - 0xD800) << 10) + low;
  }
  return static_cast<utf8proc_int32_t>(first);
}

void AppendCodePoint(std::wstring& out, utf8proc_int32_t codePoint) {
  if (!isWide32 && codePoint >= 0x10000) {
    out += static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10));
    out += static_cast<wchar_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
  } else {
    out += static_cast<wchar_t>(codePoint);
  }
}

}  // namespace

std::size_t ColumnsOf(std::wstring_view text) {
  std::size_t columns = 0;
  while (!text.empty()) {
    columns += static_cast<std::size_t>(utf8proc_charwidth(TakeCodePoint(text)));
  }
  return columns;
}

std::optional<std::string> ToUtf8(std::wstring_view text) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const utf8proc_int32_t codePoint = TakeCodePoint(text);
    if (!utf8proc_codepoint_valid(codePoint)) {
      return std::nullopt;
    }
    utf8proc_uint8_t bytes[4];
    const auto count = utf8proc_encode_char(codePoint, bytes);
    out.append(bytes, bytes + count);
  }
  return out;
}

std::wstring FromUtf8(std::string_view bytes) {
  std::wstring out;
  out.reserve(bytes.size());
  while (!bytes.empty()) {
    utf8proc_int32_t codePoint = 0;
    auto count = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(bytes.data()),
                                  static_cast<utf8proc_ssize_t>(bytes.size()), &codePoint);
    if (count <= 0) {
      codePoint = 0xFFFD;
      count = 1;
    }
    AppendCodePoint(out, codePoint);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return out;
}

}  // namespace qv
