#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qv {

/// Whether this is a letter, digit, `_` or `$` of which names outside square brackets are made.
bool IsPlainNameCharacter(wchar_t character);

/// `name` in square brackets, with each `]` in it doubled.
std::wstring InSquareBrackets(std::wstring_view name);

/// The shortest way to write a variable in an expression: `DEVICE.VARIABLE`, or
/// `[DEVICE.VARIABLE]` if a name begins with a digit or has a character that isn't plain, with `]`
/// doubled. Nothing if it can't be written, because the device's name is empty or has a dot, or the
/// variable's is empty.
std::optional<std::wstring> WrittenName(std::wstring_view device, std::wstring_view variable);

/// The same of a device and its dot, which is where its variables are to follow: behind the dot, or
/// before the closing bracket.
std::optional<std::wstring> WrittenStart(std::wstring_view device);

}  // namespace qv
