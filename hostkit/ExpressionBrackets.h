#pragma once

#include <optional>
#include <string_view>

#include "host/QVEvaluator.h"

namespace qv {

/// A bracket and its partner.
struct ExpressionBrackets {
  ExpressionPlace opening{};
  ExpressionPlace closing{};

  friend bool operator==(const ExpressionBrackets&, const ExpressionBrackets&) = default;
};

/// The bracket beside the cursor with its partner: the one before it, else the one behind it.
/// Nothing if neither is a bracket or if it has no partner, or if the expression is too long to be
/// one. Square brackets count.
std::optional<ExpressionBrackets> BracketsAt(std::wstring_view expression, int cursor);

}  // namespace qv
