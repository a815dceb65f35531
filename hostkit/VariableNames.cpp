#include "hostkit/VariableNames.h"

#include <algorithm>

namespace qv {
namespace {

constexpr bool IsDigit(wchar_t character) { return character >= L'0' && character <= L'9'; }

bool IsPlainName(std::wstring_view name) {
  return !IsDigit(name.front()) && std::all_of(name.begin(), name.end(), IsPlainNameCharacter);
}

/// Whether a name that ends at the first dot can be this one.
bool IsDeviceName(std::wstring_view name) {
  return !name.empty() && name.find(L'.') == std::wstring_view::npos;
}

}  // namespace

bool IsPlainNameCharacter(wchar_t character) {
  return (character >= L'a' && character <= L'z') || (character >= L'A' && character <= L'Z') ||
         IsDigit(character) || character == L'_' || character == L'$';
}

std::wstring InSquareBrackets(std::wstring_view name) {
  std::wstring text = L"[";
  for (const wchar_t character : name) {
    text.append(character == L']' ? 2 : 1, character);
  }
  return text + L']';
}

std::optional<std::wstring> WrittenName(std::wstring_view device, std::wstring_view variable) {
  if (!IsDeviceName(device) || variable.empty()) {
    return std::nullopt;
  }
  const std::wstring name = std::wstring(device) + L'.' + std::wstring(variable);
  return IsPlainName(device) && IsPlainName(variable) ? name : InSquareBrackets(name);
}

std::optional<std::wstring> WrittenStart(std::wstring_view device) {
  if (!IsDeviceName(device)) {
    return std::nullopt;
  }
  const std::wstring start = std::wstring(device) + L'.';
  return IsPlainName(device) ? start : InSquareBrackets(start);
}

}  // namespace qv
