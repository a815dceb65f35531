#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qv {

/// The number that all of `text` writes in decimal, as in "12", "-0.5", ".5" and "1e-3": the point
/// separates whatever the process's locale. What lies beyond the largest number is infinite, and
/// what is too small is 0. Nothing for any other text.
std::optional<double> DecimalNumber(std::wstring_view text);

/// How `number` is written so, with at most six digits that count.
std::wstring NumberText(double number);

}  // namespace qv
