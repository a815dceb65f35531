#include "hostkit/TypedWord.h"

#include <algorithm>

#include "hostkit/VariableNames.h"

namespace qv {
namespace {

using Kind = ExpressionTokenKind;

int EndOf(const ExpressionPlace& place) { return place.start + place.length; }

/// A name as it stands in square brackets, from behind the opening one.
std::wstring WithoutBrackets(std::wstring_view written) {
  std::wstring name;
  for (std::size_t i = 0; i < written.size(); ++i) {
    const bool isDoubled = written.substr(i).starts_with(L"]]");
    if (written[i] == L']' && !isDoubled) {
      break;
    }
    name += written[i];
    i += isDoubled ? 1 : 0;
  }
  return name;
}

/// A name whose closing bracket is missing may have swallowed all that follows: it ends with the
/// letters at the cursor.
int EndOfOpenName(std::wstring_view expression, int cursor) {
  const auto behind = expression.substr(static_cast<std::size_t>(cursor));
  const auto end = std::find_if_not(behind.begin(), behind.end(), IsPlainNameCharacter);
  return cursor + static_cast<int>(end - behind.begin());
}

TypedWord BracketedWord(std::wstring_view expression, const ExpressionToken& token, int cursor) {
  const int start = token.place.start;
  const bool isOpen = token.kind == Kind::Flaw && token.flaw.text == Text::ClosingBracketMissing;
  const int end = isOpen ? EndOfOpenName(expression, cursor) : EndOf(token.place);
  const auto typed = expression.substr(static_cast<std::size_t>(start) + 1,
                                       static_cast<std::size_t>(cursor - start) - 1);
  return {{start, end - start}, WithoutBrackets(typed), true};
}

bool IsWord(wchar_t first) { return IsPlainNameCharacter(first) || first >= 0x80; }

bool IsNumber(const ExpressionToken& token) {
  return token.kind == Kind::Number ||
         (token.kind == Kind::Flaw && token.flaw.text == Text::NotANumber);
}

}  // namespace

std::optional<TypedWord> TypedWordAt(std::wstring_view expression, const ExpressionTokens& tokens,
                                     int cursor) {
  const auto token =
      std::find_if(tokens.begin(), tokens.end(), [cursor](const ExpressionToken& each) {
        return each.place.start < cursor && cursor <= EndOf(each.place);
      });
  if (token == tokens.end()) {
    return TypedWord{.place = {cursor, 0}};
  }
  if (IsNumber(*token)) {
    return std::nullopt;
  }
  const auto start = static_cast<std::size_t>(token->place.start);
  if (expression[start] == L'[') {
    return BracketedWord(expression, *token, cursor);
  }
  const auto typed = expression.substr(start, static_cast<std::size_t>(cursor) - start);
  return IsWord(typed.front()) ? TypedWord{token->place, std::wstring(typed), false}
                               : TypedWord{.place = {cursor, 0}};
}

}  // namespace qv
