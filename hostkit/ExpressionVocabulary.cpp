#include "hostkit/ExpressionVocabulary.h"

#include <algorithm>

namespace qv {
namespace {

using Kind = ExpressionWordKind;
using Meaning = ExpressionMeaning;

/// As many arguments as one likes.
constexpr int unbounded = 1'000'000;

constexpr ExpressionWord Operator(const wchar_t* text, const wchar_t* form, Meaning meaning,
                                  Text help) {
  return {text, form, Kind::Operator, meaning, help, 0, 0};
}

constexpr ExpressionWord Function(const wchar_t* text, const wchar_t* form, Meaning meaning,
                                  Text help, int fewest = 1, int most = 1) {
  return {text, form, Kind::Function, meaning, help, fewest, most};
}

constexpr ExpressionWord words[] = {
    Operator(L"+", L"a + b", Meaning::Plus, Text::HelpPlus),
    Operator(L"-", L"a - b, -a", Meaning::Minus, Text::HelpMinus),
    Operator(L"*", L"a * b", Meaning::Times, Text::HelpTimes),
    Operator(L"/", L"a / b", Meaning::Divided, Text::HelpDivided),
    Operator(L"^", L"a ^ b", Meaning::Power, Text::HelpPower),
    Operator(L"<", L"a < b", Meaning::Less, Text::HelpComparison),
    Operator(L"<=", L"a <= b", Meaning::LessOrEqual, Text::HelpComparison),
    Operator(L">", L"a > b", Meaning::Greater, Text::HelpComparison),
    Operator(L">=", L"a >= b", Meaning::GreaterOrEqual, Text::HelpComparison),
    Operator(L"==", L"a == b", Meaning::Equal, Text::HelpComparison),
    Operator(L"!=", L"a != b", Meaning::Unequal, Text::HelpComparison),
    Operator(L"<>", L"a <> b", Meaning::Unequal, Text::HelpComparison),
    Operator(L"&&", L"a && b", Meaning::And, Text::HelpAnd),
    Operator(L"and", L"a and b", Meaning::And, Text::HelpAnd),
    Operator(L"||", L"a || b", Meaning::Or, Text::HelpOr),
    Operator(L"or", L"a or b", Meaning::Or, Text::HelpOr),
    Operator(L"!", L"!a", Meaning::Not, Text::HelpNot),
    Operator(L"not", L"not a", Meaning::Not, Text::HelpNot),
    {L"true", L"true", Kind::Constant, Meaning::True, Text::HelpTruthValue, 0, 0},
    {L"false", L"false", Kind::Constant, Meaning::False, Text::HelpTruthValue, 0, 0},
    Function(L"if", L"if(condition, a, b)", Meaning::If, Text::HelpIf, 3, 3),
    Function(L"min", L"min(a, b, …)", Meaning::Min, Text::HelpMin, 2, unbounded),
    Function(L"max", L"max(a, b, …)", Meaning::Max, Text::HelpMax, 2, unbounded),
    Function(L"abs", L"abs(a)", Meaning::Abs, Text::HelpAbs),
    Function(L"round", L"round(a)", Meaning::Round, Text::HelpRound),
    Function(L"floor", L"floor(a)", Meaning::Floor, Text::HelpFloor),
    Function(L"ceil", L"ceil(a)", Meaning::Ceil, Text::HelpCeil),
    Function(L"sqrt", L"sqrt(a)", Meaning::Sqrt, Text::HelpSqrt),
};

constexpr wchar_t Lowered(wchar_t character) {
  return character >= L'A' && character <= L'Z' ? character - L'A' + L'a' : character;
}

/// Words are ASCII, and each piece of an expression is looked for among all of them.
bool IsWrittenAs(std::wstring_view word, std::wstring_view text) {
  return std::equal(word.begin(), word.end(), text.begin(), text.end(),
                    [](wchar_t a, wchar_t b) { return a == Lowered(b); });
}

}  // namespace

std::span<const ExpressionWord> ExpressionVocabulary() { return words; }

const ExpressionWord* FindExpressionWord(std::wstring_view text) {
  const auto found = std::find_if(std::begin(words), std::end(words), [text](const auto& word) {
    return IsWrittenAs(word.text, text);
  });
  return found == std::end(words) ? nullptr : &*found;
}

}  // namespace qv
