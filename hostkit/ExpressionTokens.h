#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "hostkit/ExpressionFlaw.h"
#include "hostkit/ExpressionVocabulary.h"

namespace qv {

enum class ExpressionTokenKind {
  Number,
  Variable,
  Operator,
  Constant,
  Function,
  OpeningBracket,
  ClosingBracket,
  Comma,
  Flaw  ///< what is none of these
};

/// A piece of an expression. Blanks belong to none.
struct ExpressionToken {
  ExpressionTokenKind kind{};
  ExpressionPlace place{};
  double number = 0;                     ///< of a number; NaN if no number is so large
  std::wstring device{};                 ///< of a variable
  std::wstring variable{};               ///< of a variable
  const ExpressionWord* word = nullptr;  ///< of an operator, constant or function
  ExpressionFlaw flaw{};                 ///< of a flaw: what is wrong with it
};

using ExpressionTokens = std::vector<ExpressionToken>;

/// The pieces of any text, in order.
ExpressionTokens TokensOf(std::wstring_view expression);

}  // namespace qv
