#pragma once

#include <optional>

#include "hostkit/ExpressionFlaw.h"
#include "hostkit/ExpressionTokens.h"

namespace qv {

/// The most characters of an expression. What muparserx is given of it is up to four times as long,
/// and it takes 10,000.
inline constexpr int longestExpression = 2000;
/// The most brackets, those of functions included, that are open at once.
inline constexpr int deepestBrackets = 256;

/// What keeps the pieces of an expression from being well-formed, the first such thing; nothing if
/// they are. Names needn't exist and types needn't fit. Brackets that are too deep have the text
/// `ExpressionTooLarge`.
std::optional<ExpressionFlaw> SyntaxFlaw(const ExpressionTokens& tokens);

}  // namespace qv
