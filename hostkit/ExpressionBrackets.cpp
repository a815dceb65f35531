#include "hostkit/ExpressionBrackets.h"

#include <vector>

#include "hostkit/ExpressionSyntax.h"
#include "hostkit/ExpressionTokens.h"

namespace qv {
namespace {

using Kind = ExpressionTokenKind;

/// All brackets that have a partner.
std::vector<ExpressionBrackets> PairsOf(std::wstring_view expression) {
  std::vector<ExpressionBrackets> pairs;
  std::vector<ExpressionPlace> open;
  for (const ExpressionToken& token : TokensOf(expression)) {
    const auto [start, length] = token.place;
    if (token.kind == Kind::OpeningBracket) {
      open.push_back(token.place);
    } else if (token.kind == Kind::ClosingBracket && !open.empty()) {
      pairs.push_back({open.back(), token.place});
      open.pop_back();
    } else if (token.kind == Kind::Variable &&
               expression[static_cast<std::size_t>(start)] == L'[') {
      pairs.push_back({{start, 1}, {start + length - 1, 1}});
    }
  }
  return pairs;
}

}  // namespace

std::optional<ExpressionBrackets> BracketsAt(std::wstring_view expression, int cursor) {
  if (expression.size() > static_cast<std::size_t>(longestExpression)) {
    return std::nullopt;
  }
  const auto pairs = PairsOf(expression);
  for (const int at : {cursor - 1, cursor}) {
    for (const ExpressionBrackets& pair : pairs) {
      if (pair.opening.start == at || pair.closing.start == at) {
        return pair;
      }
    }
  }
  return std::nullopt;
}

}  // namespace qv
