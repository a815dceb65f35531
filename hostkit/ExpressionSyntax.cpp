#include "hostkit/ExpressionSyntax.h"

#include <string>
#include <vector>

#include "tools/Format.h"

namespace qv {
namespace {

using Kind = ExpressionTokenKind;
using Flaw = std::optional<ExpressionFlaw>;

bool IsPrefix(const ExpressionToken& token) {
  return token.word->meaning == ExpressionMeaning::Minus ||
         token.word->meaning == ExpressionMeaning::Not;
}

/// Whether these are the operators of `not -a`.
bool IsNegativeInverted(const ExpressionToken& first, const ExpressionToken& second) {
  return first.word->meaning == ExpressionMeaning::Not &&
         second.word->meaning == ExpressionMeaning::Minus;
}

/// How people know the token.
std::wstring TextOf(const ExpressionToken& token) {
  switch (token.kind) {
    case Kind::OpeningBracket:
      return L"(";
    case Kind::Comma:
      return L",";
    case Kind::ClosingBracket:
      return L")";
    default:
      return token.word->text;
  }
}

/// Goes along the tokens, of which each is to be where the ones before it let it.
class SyntaxCheck {
 public:
  Flaw Of(const ExpressionTokens& tokens) {
    for (const ExpressionToken& token : tokens) {
      if (Flaw flaw = Take(token)) {
        return flaw;
      }
      m_before = &token;
    }
    return AtEnd();
  }

 private:
  struct OpenBracket {
    ExpressionPlace place;
    const ExpressionToken* function;  ///< whose arguments they are; null for none
    int arguments;
  };

  Flaw Take(const ExpressionToken& token) {
    if (token.kind == Kind::Flaw) {
      return token.flaw;
    }
    if (m_before && m_before->kind == Kind::Function && token.kind != Kind::OpeningBracket) {
      return HowToWrite(*m_before);
    }
    return m_needsValue ? TakeWhereAValueIsDue(token) : TakeBehindAValue(token);
  }

  Flaw TakeWhereAValueIsDue(const ExpressionToken& token) {
    switch (token.kind) {
      case Kind::OpeningBracket:
        return Open(token);
      case Kind::Operator:
        return IsPrefix(token) ? Prefix(token) : NothingHere(token);
      case Kind::Comma:
      case Kind::ClosingBracket:
        return NothingHere(token);
      default:
        m_needsValue = token.kind == Kind::Function;
        return std::nullopt;
    }
  }

  Flaw TakeBehindAValue(const ExpressionToken& token) {
    switch (token.kind) {
      case Kind::ClosingBracket:
        return Close(token);
      case Kind::Comma:
        return Separate(token);
      case Kind::Operator:
        m_needsValue = true;
        return token.word->meaning == ExpressionMeaning::Not ? OperatorDue(token) : std::nullopt;
      default:
        return OperatorDue(token);
    }
  }

  /// `not -a < b` makes sense; any other two of them want a bracket between.
  Flaw Prefix(const ExpressionToken& token) {
    const bool isBehindAnother = m_before && m_before == m_prefix;
    m_prefix = &token;
    if (!isBehindAnother || IsNegativeInverted(*m_before, token)) {
      return std::nullopt;
    }
    const std::wstring form = Format(L"%s(%s…)", {m_before->word->text, token.word->text});
    return ExpressionFlaw{m_before->place, Text::WriteInstead, form};
  }

  Flaw Open(const ExpressionToken& token) {
    const bool ofFunction = m_before && m_before->kind == Kind::Function;
    m_open.push_back({token.place, ofFunction ? m_before : nullptr, 1});
    if (m_open.size() > static_cast<std::size_t>(deepestBrackets)) {
      return ExpressionFlaw{token.place, Text::ExpressionTooLarge, {}};
    }
    return std::nullopt;
  }

  Flaw Close(const ExpressionToken& token) {
    if (m_open.empty()) {
      return ExpressionFlaw{token.place, Text::OpeningBracketMissing, {}};
    }
    const OpenBracket closed = m_open.back();
    m_open.pop_back();
    if (closed.function && (closed.arguments < closed.function->word->fewestArguments ||
                            closed.arguments > closed.function->word->mostArguments)) {
      return HowToWrite(*closed.function);
    }
    return std::nullopt;
  }

  Flaw Separate(const ExpressionToken& token) {
    if (m_open.empty() || !m_open.back().function) {
      return ExpressionFlaw{token.place, Text::CommaOutsideFunction, {}};
    }
    ++m_open.back().arguments;
    m_needsValue = true;
    return std::nullopt;
  }

  /// `token` stands where a value is due.
  Flaw NothingHere(const ExpressionToken& token) const {
    if (token.kind == Kind::ClosingBracket && m_open.empty()) {
      return ExpressionFlaw{token.place, Text::OpeningBracketMissing, {}};
    }
    return m_before ? NothingBehind(*m_before)
                    : ExpressionFlaw{{token.place.start, 0}, Text::NothingBefore, TextOf(token)};
  }

  Flaw NothingBehind(const ExpressionToken& token) const {
    if (token.kind == Kind::OpeningBracket && m_open.back().function) {
      return HowToWrite(*m_open.back().function);
    }
    return ExpressionFlaw{
        {token.place.start + token.place.length, 0}, Text::NothingBehind, TextOf(token)};
  }

  static Flaw OperatorDue(const ExpressionToken& token) {
    return ExpressionFlaw{{token.place.start, 0}, Text::OperatorExpected, {}};
  }

  static Flaw HowToWrite(const ExpressionToken& function) {
    return ExpressionFlaw{function.place, Text::WriteInstead, function.word->form};
  }

  Flaw AtEnd() const {
    if (!m_before) {
      return ExpressionFlaw{{}, Text::ExpressionMissing, {}};
    }
    if (m_before->kind == Kind::Function) {
      return HowToWrite(*m_before);
    }
    if (m_needsValue) {
      return NothingBehind(*m_before);
    }
    return m_open.empty() ? std::nullopt
                          : Flaw({m_open.back().place, Text::ClosingBracketMissing, {}});
  }

  std::vector<OpenBracket> m_open;
  const ExpressionToken* m_before = nullptr;
  const ExpressionToken* m_prefix = nullptr;  ///< the last operator before its only operand
  bool m_needsValue = true;
};

}  // namespace

std::optional<ExpressionFlaw> SyntaxFlaw(const ExpressionTokens& tokens) {
  return SyntaxCheck().Of(tokens);
}

}  // namespace qv
