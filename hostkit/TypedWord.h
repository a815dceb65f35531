#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "hostkit/ExpressionTokens.h"

namespace qv {

/// The word of an expression that somebody is typing.
struct TypedWord {
  ExpressionPlace place{};    ///< of the whole word, which may go on behind the cursor
  std::wstring text{};        ///< up to the cursor, without square brackets
  bool isInBrackets = false;  ///< square ones: it can only be a name
};

/// The word that ends at the cursor or has it inside; an empty one between words, and nothing
/// within a number. `tokens` are those of `expression`.
std::optional<TypedWord> TypedWordAt(std::wstring_view expression, const ExpressionTokens& tokens,
                                     int cursor);

}  // namespace qv
