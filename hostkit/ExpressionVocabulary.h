#pragma once

#include <span>
#include <string_view>

#include "host/Text.h"

namespace qv {

/// What an operator, constant or function means, however it is written.
enum class ExpressionMeaning {
  Plus,
  Minus,
  Times,
  Divided,
  Power,
  Less,
  LessOrEqual,
  Greater,
  GreaterOrEqual,
  Equal,
  Unequal,
  And,
  Or,
  Not,
  True,
  False,
  Min,
  Max,
  Abs,
  Round,
  Floor,
  Ceil,
  Sqrt,
  If,
  Count
};

enum class ExpressionWordKind { Operator, Constant, Function };

/// Something that expressions are written with, beside names and numbers.
struct ExpressionWord {
  const wchar_t* text;  ///< as it is written; letters in either case
  const wchar_t* form;  ///< how it is used, as in "min(a, b, …)"
  ExpressionWordKind kind;
  ExpressionMeaning meaning;
  Text help;            ///< one line on what it does
  int fewestArguments;  ///< of a function
  int mostArguments;    ///< of a function
};

/// All of them: operators, then constants, then functions, each in the order in which people look
/// for them.
std::span<const ExpressionWord> ExpressionVocabulary();

/// The one that is written so, letters in either case, or null.
const ExpressionWord* FindExpressionWord(std::wstring_view text);

}  // namespace qv
