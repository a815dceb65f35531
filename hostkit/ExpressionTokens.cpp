#include "hostkit/ExpressionTokens.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "hostkit/DecimalNumber.h"
#include "hostkit/VariableNames.h"
#include "tools/Format.h"
#include "tools/Names.h"

namespace qv {
namespace {

using Kind = ExpressionTokenKind;

/// What people write who are used to other languages, and what it is here.
constexpr std::array<std::pair<wchar_t, const wchar_t*>, 3> foreignSigns = {
    {{L'=', L"=="}, {L'&', L"&&"}, {L'|', L"||"}}};

constexpr bool IsDigit(wchar_t character) { return character >= L'0' && character <= L'9'; }

constexpr bool IsBlank(wchar_t character) {
  return character == L' ' || character == L'\t' || character == L'\r' || character == L'\n';
}

/// A letter that belongs to a name for whoever types it, though the name then needs brackets.
constexpr bool IsForeignLetter(wchar_t character) {
  constexpr wchar_t timesSign = 0xD7;
  constexpr wchar_t divisionSign = 0xF7;
  return character >= 0xC0 && character <= 0x24F && character != timesSign &&
         character != divisionSign;
}

bool IsWordCharacter(wchar_t character) {
  return IsPlainNameCharacter(character) || IsForeignLetter(character) || character == L'.';
}

std::wstring Shown(wchar_t character) {
  const std::wstring text(1, character);
  const bool visible = (character > L' ' && character < 0x7F) || IsValidId(text.c_str(), false);
  return visible ? text : Format(L"U+%04X", {static_cast<unsigned>(character)});
}

/// Cuts an expression into its pieces.
class Lexer {
 public:
  explicit Lexer(std::wstring_view text) : m_text(text) {}

  ExpressionTokens All() {
    ExpressionTokens tokens;
    for (SkipBlanks(); m_at < m_text.size(); SkipBlanks()) {
      m_start = m_at;
      tokens.push_back(Next());
    }
    return tokens;
  }

 private:
  wchar_t Ahead(std::size_t distance) const {
    return m_at + distance < m_text.size() ? m_text[m_at + distance] : L'\0';
  }

  void SkipBlanks() {
    while (m_at < m_text.size() && IsBlank(m_text[m_at])) {
      ++m_at;
    }
  }

  void SkipWord() {
    while (m_at < m_text.size() && IsWordCharacter(m_text[m_at])) {
      ++m_at;
    }
  }

  std::wstring_view Passed() const { return m_text.substr(m_start, m_at - m_start); }

  ExpressionPlace Place() const {
    return {static_cast<int>(m_start), static_cast<int>(m_at - m_start)};
  }

  ExpressionToken Token(Kind kind) const { return {.kind = kind, .place = Place()}; }

  ExpressionToken Flaw(Text text, std::wstring argument = {}) const {
    return {.kind = Kind::Flaw, .place = Place(), .flaw = {Place(), text, std::move(argument)}};
  }

  ExpressionToken Next() {
    const wchar_t first = m_text[m_at];
    if (IsDigit(first) || (first == L'.' && IsDigit(Ahead(1)))) {
      return Number();
    }
    if (first != L'.' && IsWordCharacter(first)) {
      return Word();
    }
    return first == L'[' ? BracketedName() : Sign();
  }

  ExpressionToken Number() {
    SkipWord();
    const bool endsInExponent = Passed().find_first_not_of(L"0123456789.") == Passed().size() - 1 &&
                                (Passed().back() == L'e' || Passed().back() == L'E');
    if (endsInExponent && (Ahead(0) == L'+' || Ahead(0) == L'-') && IsDigit(Ahead(1))) {
      ++m_at;
      SkipWord();
    }
    const auto number = DecimalNumber(Passed());
    if (!number) {
      return Flaw(Text::NotANumber, std::wstring(Passed()));
    }
    ExpressionToken token = Token(Kind::Number);
    token.number = *number <= std::numeric_limits<double>::max()
                       ? *number
                       : std::numeric_limits<double>::quiet_NaN();
    return token;
  }

  ExpressionToken Word() {
    SkipWord();
    const std::wstring_view word = Passed();
    const auto dot = word.find(L'.');
    if (dot != std::wstring_view::npos) {
      return PlainName(word.substr(0, dot), word.substr(dot + 1));
    }
    const ExpressionWord* known = FindExpressionWord(word);
    return known ? Known(*known) : Flaw(Text::WordUnknown, std::wstring(word));
  }

  ExpressionToken PlainName(std::wstring_view device, std::wstring_view variable) const {
    if (variable.empty()) {
      ExpressionToken token = Flaw(Text::NothingBehind, std::wstring(Passed()));
      token.flaw.place = {static_cast<int>(m_at), 0};
      return token;
    }
    const auto written = WrittenName(device, variable);
    return written == Passed() ? Name(device, variable) : Flaw(Text::WriteInstead, *written);
  }

  ExpressionToken Name(std::wstring_view device, std::wstring_view variable) const {
    ExpressionToken token = Token(Kind::Variable);
    token.device = device;
    token.variable = variable;
    return token;
  }

  ExpressionToken Known(const ExpressionWord& word) const {
    static constexpr std::array kinds = {Kind::Operator, Kind::Constant, Kind::Function};
    ExpressionToken token = Token(kinds.at(static_cast<std::size_t>(word.kind)));
    token.word = &word;
    return token;
  }

  ExpressionToken BracketedName() {
    std::wstring name;
    for (++m_at; m_at < m_text.size(); ++m_at) {
      if (m_text[m_at] == L']' && Ahead(1) != L']') {
        ++m_at;
        return NameInBrackets(name);
      }
      name += m_text[m_at];
      m_at += m_text[m_at] == L']';
    }
    ExpressionToken token = Flaw(Text::ClosingBracketMissing);
    token.flaw.place.length = 1;
    return token;
  }

  ExpressionToken NameInBrackets(std::wstring_view name) const {
    const auto dot = name.find(L'.');
    if (dot == std::wstring_view::npos || dot == 0 || dot + 1 == name.size()) {
      return Flaw(Text::WordUnknown, std::wstring(Passed()));
    }
    return Name(name.substr(0, dot), name.substr(dot + 1));
  }

  ExpressionToken Sign() {
    for (const std::size_t length : {2U, 1U}) {
      const std::wstring_view sign = m_text.substr(m_at, length);
      const ExpressionWord* known = FindExpressionWord(sign);
      if (known) {
        m_at += sign.size();
        return Known(*known);
      }
    }
    return Separator(m_text[m_at++]);
  }

  ExpressionToken Separator(wchar_t character) const {
    switch (character) {
      case L'(':
        return Token(Kind::OpeningBracket);
      case L')':
        return Token(Kind::ClosingBracket);
      case L',':
        return Token(Kind::Comma);
      default:
        return ForeignSign(character);
    }
  }

  ExpressionToken ForeignSign(wchar_t character) const {
    for (const auto& [sign, here] : foreignSigns) {
      if (sign == character) {
        return Flaw(Text::WriteInstead, here);
      }
    }
    return Flaw(Text::CharacterUnexpected, Shown(character));
  }

  std::wstring_view m_text;
  std::size_t m_start = 0;
  std::size_t m_at = 0;
};

}  // namespace

ExpressionTokens TokensOf(std::wstring_view expression) { return Lexer(expression).All(); }

}  // namespace qv
