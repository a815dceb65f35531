#include "tools/Format.h"

#include <algorithm>
#include <cstdint>

namespace qv {
namespace {

constexpr std::size_t maxWidth = 64;

std::wstring Digits(unsigned long long number, unsigned base) {
  std::wstring digits;
  do {
    digits.insert(digits.begin(), L"0123456789ABCDEF"[number % base]);
    number /= base;
  } while (number != 0);
  return digits;
}

std::wstring Padded(const std::wstring& body, bool negative, std::size_t width, wchar_t fill) {
  const std::size_t length = body.size() + (negative ? 1 : 0);
  const std::wstring padding(width > length ? width - length : 0, fill);
  const std::wstring sign = negative ? L"-" : L"";
  return fill == L'0' ? sign + padding + body : padding + sign + body;
}

/// A conversion as it stands in a format, behind its per cent sign.
struct Conversion {
  wchar_t character = 0;
  std::size_t width = 0;
  wchar_t fill = L' ';
  std::size_t length = 0;  ///< characters behind the per cent sign, 0 if it is none
};

Conversion ReadConversion(std::wstring_view text) {
  Conversion found;
  std::size_t i = 0;
  if (i < text.size() && text[i] == L'0') {
    found.fill = L'0';
    ++i;
  }
  for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i) {
    found.width = std::min(maxWidth, found.width * 10 + static_cast<std::size_t>(text[i] - L'0'));
  }
  if (i < text.size() && std::wstring_view(L"sduX%").find(text[i]) != std::wstring_view::npos) {
    found.character = text[i];
    found.length = i + 1;
  }
  return found;
}

}  // namespace

FormatArgument::FormatArgument(const wchar_t* text) : m_text(text ? text : L""), m_isText(true) {}
FormatArgument::FormatArgument(const QVWideString& text) : m_text(text.ToView()), m_isText(true) {}
FormatArgument::FormatArgument(std::wstring_view text) : m_text(text), m_isText(true) {}
FormatArgument::FormatArgument(int number) : m_number(number) {}
FormatArgument::FormatArgument(unsigned number) : m_number(number) {}

std::wstring FormatArgument::Converted(wchar_t conversion, std::size_t width, wchar_t fill) const {
  if (m_isText) {
    return Padded(std::wstring(m_text), false, width, L' ');
  }
  if (conversion == L'X') {
    return Padded(Digits(static_cast<std::uint32_t>(m_number), 16), false, width, fill);
  }
  const bool negative = m_number < 0;
  const auto magnitude = static_cast<unsigned long long>(negative ? -m_number : m_number);
  return Padded(Digits(magnitude, 10), negative, width, fill);
}

std::wstring Format(std::wstring_view format, std::initializer_list<FormatArgument> arguments) {
  return Format(format, std::span<const FormatArgument>(arguments.begin(), arguments.size()));
}

std::wstring Format(std::wstring_view format, std::span<const FormatArgument> arguments) {
  std::wstring out;
  auto next = arguments.begin();
  while (!format.empty()) {
    const std::size_t percent = std::min(format.find(L'%'), format.size());
    out += format.substr(0, percent);
    format.remove_prefix(percent);
    if (format.empty()) {
      break;
    }
    const Conversion conversion = ReadConversion(format.substr(1));
    std::size_t taken = 1 + conversion.length;
    if (conversion.character == L'%') {
      out += L'%';
    } else if (conversion.length != 0 && next != arguments.end()) {
      out += (next++)->Converted(conversion.character, conversion.width, conversion.fill);
    } else {
      out += format.substr(0, taken);
    }
    format.remove_prefix(taken);
  }
  return out;
}

}  // namespace qv
