#include "hostkit/ExpressionRules.h"

#include <algorithm>
#include <tuple>

namespace qv {
namespace {

using Meaning = ExpressionMeaning;
using Operands = std::span<const ExpressionOperand>;
using Type = ExpressionType;

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();

bool IsLogic(Meaning meaning) {
  return meaning == Meaning::And || meaning == Meaning::Or || meaning == Meaning::Not;
}

bool IsEquality(Meaning meaning) {
  return meaning == Meaning::Equal || meaning == Meaning::Unequal;
}

bool IsOrder(Meaning meaning) {
  return meaning >= Meaning::Less && meaning <= Meaning::GreaterOrEqual;
}

bool AreAll(Type type, Operands operands) {
  return std::all_of(operands.begin(), operands.end(),
                     [type](const ExpressionOperand& operand) { return operand.type == type; });
}

bool AreKnown(Operands operands) {
  return std::all_of(operands.begin(), operands.end(),
                     [](const ExpressionOperand& operand) { return operand.IsKnown(); });
}

std::optional<Text> Unless(bool fits, Text flaw) {
  return fits ? std::nullopt : std::optional(flaw);
}

ExpressionOperand Truth(double value) { return {Type::Truth, value}; }

bool Compare(Meaning meaning, double a, double b) {
  switch (meaning) {
    case Meaning::Less:
      return a < b;
    case Meaning::LessOrEqual:
      return a <= b;
    case Meaning::Greater:
      return a > b;
    case Meaning::GreaterOrEqual:
      return a >= b;
    case Meaning::Equal:
      return a == b;
    default:
      return a != b;
  }
}

/// `deciding` if an operand is it, else unknown if one is, else the other truth value.
double Decided(double deciding, Operands operands) {
  const auto isDeciding = [deciding](const ExpressionOperand& operand) {
    return operand.value == deciding;
  };
  if (std::any_of(operands.begin(), operands.end(), isDeciding)) {
    return deciding;
  }
  return AreKnown(operands) ? 1 - deciding : unknown;
}

double Logic(Meaning meaning, Operands operands) {
  switch (meaning) {
    case Meaning::And:
      return Decided(0, operands);
    case Meaning::Or:
      return Decided(1, operands);
    default:
      return 1 - operands[0].value;
  }
}

ExpressionOperand Chosen(Operands operands) {
  const auto& [condition, first, second] = std::tie(operands[0], operands[1], operands[2]);
  return condition.IsKnown() ? (condition.value != 0 ? first : second)
                             : ExpressionOperand{first.type, unknown};
}

double Extreme(Meaning meaning, Operands operands) {
  const auto less = [](const ExpressionOperand& a, const ExpressionOperand& b) {
    return a.value < b.value;
  };
  const auto [least, greatest] = std::minmax_element(operands.begin(), operands.end(), less);
  return meaning == Meaning::Min ? least->value : greatest->value;
}

double OfOne(Meaning meaning, double a) {
  switch (meaning) {
    case Meaning::Abs:
      return std::abs(a);
    case Meaning::Round:
      return std::round(a);
    case Meaning::Floor:
      return std::floor(a);
    case Meaning::Ceil:
      return std::ceil(a);
    case Meaning::Sqrt:
      return std::sqrt(a);
    default:
      return -a;
  }
}

double OfTwo(Meaning meaning, double a, double b) {
  switch (meaning) {
    case Meaning::Plus:
      return a + b;
    case Meaning::Minus:
      return a - b;
    case Meaning::Times:
      return a * b;
    case Meaning::Divided:
      return a / b;
    default:
      return std::pow(a, b);
  }
}

double Computed(Meaning meaning, Operands operands) {
  if (meaning == Meaning::Min || meaning == Meaning::Max) {
    return Extreme(meaning, operands);
  }
  return operands.size() == 1 ? OfOne(meaning, operands[0].value)
                              : OfTwo(meaning, operands[0].value, operands[1].value);
}

/// What needs all that it is given.
ExpressionOperand AppliedToAll(Meaning meaning, Operands operands) {
  const bool compares = IsOrder(meaning) || IsEquality(meaning);
  if (!AreKnown(operands)) {
    return {compares ? Type::Truth : Type::Number, unknown};
  }
  if (compares) {
    return Truth(Compare(meaning, operands[0].value, operands[1].value) ? 1 : 0);
  }
  const double value = Computed(meaning, operands);
  return {Type::Number, std::isfinite(value) ? value : unknown};
}

}  // namespace

std::optional<Text> TypeFlaw(ExpressionMeaning meaning,
                             std::span<const ExpressionOperand> operands) {
  if (IsLogic(meaning)) {
    return Unless(AreAll(Type::Truth, operands), Text::TruthValuesNeeded);
  }
  if (meaning == Meaning::If && operands[0].type != Type::Truth) {
    return Text::TruthValuesNeeded;
  }
  if (meaning == Meaning::If || IsEquality(meaning)) {
    const auto alike = operands.last(2);
    return Unless(alike[0].type == alike[1].type, Text::TypesMixed);
  }
  return Unless(AreAll(Type::Number, operands), Text::NumbersNeeded);
}

ExpressionOperand Applied(ExpressionMeaning meaning, std::span<const ExpressionOperand> operands) {
  if (meaning == Meaning::If) {
    return Chosen(operands);
  }
  return IsLogic(meaning) ? Truth(Logic(meaning, operands)) : AppliedToAll(meaning, operands);
}

}  // namespace qv
