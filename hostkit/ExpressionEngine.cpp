#include "hostkit/ExpressionEngine.h"

#include <mpParser.h>

#include <algorithm>
#include <deque>
#include <string>
#include <utility>

namespace qv {
namespace {

using Meaning = ExpressionMeaning;

/// How an operator or function is called in the texts that are computed. There, blanks separate
/// all.
struct Callee {
  Meaning meaning;
  const char* name;
  int precedence = 0;  ///< of a binary operator
  mup::EOprtAsct associativity = mup::oaLEFT;
};

constexpr Callee binaryOperators[] = {
    {Meaning::Or, "|", mup::prLOGIC_OR},
    {Meaning::And, "&", mup::prLOGIC_AND},
    {Meaning::Equal, "==", mup::prRELATIONAL1},
    {Meaning::Unequal, "!=", mup::prRELATIONAL1},
    {Meaning::Less, "<", mup::prRELATIONAL2},
    {Meaning::LessOrEqual, "<=", mup::prRELATIONAL2},
    {Meaning::Greater, ">", mup::prRELATIONAL2},
    {Meaning::GreaterOrEqual, ">=", mup::prRELATIONAL2},
    {Meaning::Plus, "+", mup::prADD_SUB},
    {Meaning::Minus, "-", mup::prADD_SUB},
    {Meaning::Times, "*", mup::prMUL_DIV},
    {Meaning::Divided, "/", mup::prMUL_DIV},
    {Meaning::Power, "^", mup::prPOW, mup::oaRIGHT},
};

constexpr Callee prefixOperators[] = {
    // Behind comparisons, so that `not a < b` is what it says.
    {Meaning::Not, "!", mup::prLOGIC_AND + 1},
    {Meaning::Minus, "-", mup::prINFIX},
};

constexpr Callee functions[] = {
    {Meaning::Min, "min"},     {Meaning::Max, "max"},     {Meaning::Abs, "abs"},
    {Meaning::Round, "round"}, {Meaning::Floor, "floor"}, {Meaning::Ceil, "ceil"},
    {Meaning::Sqrt, "sqrt"},   {Meaning::If, "choose"},
};

const char* NameOf(Meaning meaning) {
  const char* name = nullptr;
  const auto look = [&name, meaning](std::span<const Callee> callees) {
    for (const Callee& callee : callees) {
      name = callee.meaning == meaning ? callee.name : name;
    }
  };
  look(binaryOperators);
  look(prefixOperators);
  look(functions);
  return name;
}

/// A text that stands for a truth value that isn't known.
constexpr char unknownTruth[] = "?";

ExpressionOperand OperandOf(const mup::IValue& value) {
  switch (value.GetType()) {
    case 'b':
      return {ExpressionType::Truth, value.GetBool() ? 1.0 : 0.0};
    case 's':
      return {ExpressionType::Truth};
    default:
      return {ExpressionType::Number, value.GetFloat()};
  }
}

void Set(mup::IValue& value, const ExpressionOperand& operand) {
  if (operand.type == ExpressionType::Number) {
    value = operand.value;
  } else if (operand.IsKnown()) {
    value = operand.value != 0;
  } else {
    value = mup::string_type(unknownTruth);
  }
}

/// Thrown through the library where types don't fit.
struct Misfit {
  int position;
  Text text;
};

/// Where results became unknown.
using Positions = std::vector<int>;

/// Does `meaning` to the arguments of a callback.
void Call(Meaning meaning, int position, Positions& notFinite, mup::ptr_val_type& result,
          const mup::ptr_val_type* arguments, int count) {
  std::vector<ExpressionOperand> operands;
  std::transform(arguments, arguments + count, std::back_inserter(operands),
                 [](const mup::ptr_val_type& argument) { return OperandOf(*argument); });
  if (const auto flaw = TypeFlaw(meaning, operands)) {
    throw Misfit{position, *flaw};
  }
  const ExpressionOperand operand = Applied(meaning, operands);
  const bool allKnown = std::all_of(operands.begin(), operands.end(),
                                    [](const auto& each) { return each.IsKnown(); });
  if (allKnown && !operand.IsKnown()) {
    notFinite.push_back(position);
  }
  Set(*result, operand);
}

/// An operator or function as the library wants it, on the base class that it has for its kind.
template <class Base>
class Callback : public Base {
 public:
  template <class... BaseArguments>
  Callback(Meaning meaning, Positions& notFinite, BaseArguments... baseArguments)
      : Base(baseArguments...), m_meaning(meaning), m_notFinite(&notFinite) {}

  void Eval(mup::ptr_val_type& result, const mup::ptr_val_type* arguments, int count) override {
    Call(m_meaning, this->GetExprPos(), *m_notFinite, result, arguments, count);
  }
  const mup::char_type* GetDesc() const override { return ""; }
  mup::IToken* Clone() const override { return new Callback(*this); }

 private:
  Meaning m_meaning;
  Positions* m_notFinite;
};

/// A text for the library, with the token that stands at each of its places.
struct Composition {
  std::string text{};
  std::vector<std::size_t> tokens{};

  void Add(std::string_view piece, std::size_t token) {
    text.append(piece).append(" ");
    tokens.resize(text.size(), token);
  }
};

bool IsOperand(const ExpressionToken& token) {
  return token.kind == ExpressionTokenKind::Number || token.kind == ExpressionTokenKind::Variable;
}

bool Means(const ExpressionToken& token, Meaning meaning) {
  return token.word && token.word->meaning == meaning;
}

std::string OperandName(std::size_t number) { return "v" + std::to_string(number); }

std::string PieceOf(const ExpressionToken& token) {
  switch (token.kind) {
    case ExpressionTokenKind::OpeningBracket:
      return "(";
    case ExpressionTokenKind::ClosingBracket:
      return ")";
    case ExpressionTokenKind::Comma:
      return ",";
    case ExpressionTokenKind::Constant:
      return token.word->meaning == Meaning::True ? "true" : "false";
    default:
      return NameOf(token.word->meaning);
  }
}

Composition Composed(const ExpressionTokens& tokens) {
  Composition composition;
  std::size_t operands = 0;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (i > 0 && Means(tokens[i - 1], Meaning::Not) && Means(tokens[i], Meaning::Minus)) {
      // The library has no two prefix operators in a row.
      composition.Add("zero", i);
    }
    composition.Add(IsOperand(tokens[i]) ? OperandName(operands++) : PieceOf(tokens[i]), i);
  }
  return composition;
}

}  // namespace

/// The library's parser with all that it is to know, and the numbers that its texts name.
class ExpressionEngine::Parser {
 public:
  Parser() {
    m_parser.DefineNameChars("abcdefghijklmnopqrstuvwxyz0123456789");
    m_parser.DefineOprtChars("+-*/^<>=!&|");
    m_parser.DefineInfixOprtChars("-!");
    m_parser.DefineConst("zero", mup::Value(0.0));
    m_parser.DefineConst("true", mup::Value(true));
    m_parser.DefineConst("false", mup::Value(false));
    DefineOperators();
  }

  void SetNumbers(const ExpressionTokens& tokens, std::span<const double> values) {
    std::size_t number = 0;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
      if (IsOperand(tokens[i])) {
        NumberAt(number++) = values[i];
      }
    }
  }

  ExpressionOperand Compute(const std::string& text) {
    m_notFinite.clear();
    if (text != m_text) {
      m_text.clear();
      m_parser.SetExpr(text);
    }
    const ExpressionOperand result = OperandOf(m_parser.Eval());
    m_text = text;
    return result;
  }

  const Positions& NotFinite() const { return m_notFinite; }

 private:
  void DefineOperators() {
    for (const auto& [meaning, name, precedence, associativity] : binaryOperators) {
      m_parser.DefineOprt(mup::TokenPtr<mup::IOprtBin>(
          new Callback<mup::IOprtBin>(meaning, m_notFinite, name, precedence, associativity)));
    }
    for (const Callee& callee : prefixOperators) {
      m_parser.DefineInfixOprt(mup::TokenPtr<mup::IOprtInfix>(new Callback<mup::IOprtInfix>(
          callee.meaning, m_notFinite, callee.name, callee.precedence)));
    }
    for (const Callee& callee : functions) {
      constexpr int anyNumber = -1;
      m_parser.DefineFun(mup::ptr_cal_type(new Callback<mup::ICallback>(
          callee.meaning, m_notFinite, mup::cmFUNC, callee.name, anyNumber)));
    }
  }

  mup::Value& NumberAt(std::size_t number) {
    if (number == m_numbers.size()) {
      m_numbers.emplace_back(0.0);
      m_parser.DefineVar(OperandName(number), mup::Variable(&m_numbers.back()));
    }
    return m_numbers[number];
  }

  std::deque<mup::Value> m_numbers;  ///< which the parser refers to
  Positions m_notFinite;
  mup::ParserXBase m_parser;
  std::string m_text;  ///< what the parser is prepared for
};

ExpressionEngine::ExpressionEngine() : m_parser(std::make_unique<Parser>()) {}
ExpressionEngine::~ExpressionEngine() = default;

ExpressionOutcome ExpressionEngine::Compute(const ExpressionTokens& tokens,
                                            std::span<const double> values) {
  const Composition composition = Composed(tokens);
  const auto tokenAt = [&composition](int position) {
    return composition.tokens.at(static_cast<std::size_t>(position));
  };
  ExpressionOutcome outcome;
  try {
    m_parser->SetNumbers(tokens, values);
    outcome.result = m_parser->Compute(composition.text);
    const Positions& positions = m_parser->NotFinite();
    std::transform(positions.begin(), positions.end(), std::back_inserter(outcome.notFinite),
                   tokenAt);
  } catch (const Misfit& misfit) {
    outcome.typeFlaw = {tokenAt(misfit.position), misfit.text};
  } catch (const mup::ParserError&) {
    return {};
  }
  return outcome;
}

}  // namespace qv
