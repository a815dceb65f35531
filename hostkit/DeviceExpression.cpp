#include "hostkit/DeviceExpression.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

#include "hostkit/ExpressionProposer.h"
#include "hostkit/ExpressionSyntax.h"
#include "tools/Format.h"

namespace qv {
namespace {

using Code = ExpressionCode;

bool IsVariable(const ExpressionToken& token) {
  return token.kind == ExpressionTokenKind::Variable;
}

bool IsTooLong(std::wstring_view expression) {
  return expression.size() > static_cast<std::size_t>(longestExpression);
}

/// The place of the token that gave no finite result, if there is one such.
ExpressionPlace PlaceOfNotFinite(const ExpressionOutcome& outcome, const ExpressionTokens& tokens) {
  const auto huge = std::find_if(tokens.begin(), tokens.end(), [](const ExpressionToken& token) {
    return token.kind == ExpressionTokenKind::Number && !std::isfinite(token.number);
  });
  if (huge != tokens.end()) {
    return huge->place;
  }
  if (outcome.notFinite.size() == 1) {
    return tokens[outcome.notFinite.front()].place;
  }
  const ExpressionPlace& last = tokens.back().place;
  const int start = tokens.front().place.start;
  return {start, last.start + last.length - start};
}

}  // namespace

DeviceExpression::DeviceExpression(const QVWideString& expression, const ExpressionContext& context)
    : m_expression(expression), m_context(context) {
  if (!IsTooLong(m_expression.ToView())) {
    m_tokens = TokensOf(m_expression.ToView());
  }
}

int DeviceExpression::AnalizeExpression() { return CheckShape() == Code::Evaluated ? 1 : 0; }

int DeviceExpression::Evaluate(double& value, int& type) {
  value = 0;
  type = 0;
  Code code = CheckShape();
  code = code == Code::Evaluated ? CheckNames() : code;
  if (code != Code::Evaluated) {
    return static_cast<int>(code);
  }
  const ExpressionOutcome outcome = m_context.engine.Compute(m_tokens, Values());
  if (!outcome.result) {
    return static_cast<int>(CheckOutcome(outcome));
  }
  type = static_cast<int>(outcome.result->type);
  code = CheckValues();
  code = code == Code::Evaluated ? CheckOutcome(outcome) : code;
  value = code == Code::Evaluated ? outcome.result->value : 0;
  return static_cast<int>(code);
}

ExpressionProposals DeviceExpression::ProposalsAt(int cursor) const {
  return ExpressionProposer(m_context, m_filter).At(m_expression.ToView(), m_tokens, cursor);
}

bool DeviceExpression::HasModule() {
  return CheckShape() == Code::Evaluated &&
         std::any_of(m_tokens.begin(), m_tokens.end(), [this](const ExpressionToken& token) {
           const Variable* variable = VariableOf(token);
           return variable && variable->isOfModule;
         });
}

bool DeviceExpression::TakeFlags(std::initializer_list<int> flags) {
  VariableClasses classes;
  for (const int flag : flags) {
    if (flag == -1) {
      break;
    }
    if (flag < 0 || flag >= static_cast<int>(classes.size())) {
      return false;
    }
    classes.set(static_cast<std::size_t>(flag));
  }
  m_filter.classes = classes;
  return true;
}

ExpressionCode DeviceExpression::CheckShape() {
  m_fault.reset();
  if (IsTooLong(m_expression.ToView())) {
    const int length = static_cast<int>(m_expression.Length());
    return Blame(Code::TooLarge, {longestExpression, length - longestExpression});
  }
  const auto flaw = SyntaxFlaw(m_tokens);
  if (!flaw) {
    return Code::Evaluated;
  }
  m_fault = flaw->In(m_context.texts);
  return flaw->text == Text::ExpressionTooLarge ? Code::TooLarge : Code::NotWellFormed;
}

ExpressionCode DeviceExpression::CheckNames() {
  for (const ExpressionToken& token : m_tokens) {
    if (IsVariable(token)) {
      const Device* device = m_context.devices.Find(token.device);
      const Code code = CheckName(token, device, device ? device->Find(token.variable) : nullptr);
      if (code != Code::Evaluated) {
        return code;
      }
    }
  }
  return Code::Evaluated;
}

ExpressionCode DeviceExpression::CheckName(const ExpressionToken& token, const Device* device,
                                           const Variable* variable) {
  if (!m_filter.withDiscriminators && IsDiscriminatorName(token.device)) {
    return Blame(Code::DiscriminatorOff, token);
  }
  if (!device) {
    return Blame(Code::UnknownDevice, token);
  }
  if (!variable) {
    return Blame(Code::UnknownVariable, token);
  }
  return m_filter.Allows(*variable) ? Code::Evaluated : Blame(Code::ClassMissing, token);
}

ExpressionCode DeviceExpression::CheckValues() {
  const auto first = [this](auto isSo) {
    return std::find_if(m_tokens.begin(), m_tokens.end(), [&](const ExpressionToken& token) {
      const Variable* variable = VariableOf(token);
      return variable && isSo(*variable);
    });
  };
  const auto module = first([](const Variable& variable) { return variable.isOfModule; });
  if (module != m_tokens.end()) {
    return Blame(Code::Unreadable, *module);
  }
  const auto without =
      first([this](const Variable& variable) { return !m_context.ValueOf(variable); });
  return without == m_tokens.end() ? Code::Evaluated : Blame(Code::NoValue, *without);
}

ExpressionCode DeviceExpression::CheckOutcome(const ExpressionOutcome& outcome) {
  if (const auto& misfit = outcome.typeFlaw) {
    const ExpressionToken& token = m_tokens[misfit->token];
    m_fault = ExpressionFlaw{token.place, misfit->text, token.word->text}.In(m_context.texts);
    return Code::TypesMixed;
  }
  if (!outcome.result) {
    return Blame(Code::NotWellFormed, {0, static_cast<int>(m_expression.Length())});
  }
  if (outcome.result->IsKnown()) {
    return Code::Evaluated;
  }
  Blame(Code::NotFinite, PlaceOfNotFinite(outcome, m_tokens));
  // With variables it may be finite at another moment.
  return std::any_of(m_tokens.begin(), m_tokens.end(), IsVariable) ? Code::NoValue
                                                                   : Code::NotFinite;
}

/// What numbers and variables are worth, in the place of their token.
std::vector<double> DeviceExpression::Values() const {
  static constexpr double unknown = std::numeric_limits<double>::quiet_NaN();
  std::vector<double> values;
  std::transform(m_tokens.begin(), m_tokens.end(), std::back_inserter(values),
                 [this](const ExpressionToken& token) {
                   const Variable* variable = VariableOf(token);
                   return variable ? m_context.ValueOf(*variable).value_or(unknown) : token.number;
                 });
  return values;
}

const Variable* DeviceExpression::VariableOf(const ExpressionToken& token) const {
  const Device* device = IsVariable(token) ? m_context.devices.Find(token.device) : nullptr;
  return device ? device->Find(token.variable) : nullptr;
}

ExpressionCode DeviceExpression::Blame(Code code, ExpressionPlace place) {
  const auto words = WordingOf(static_cast<int>(code));
  m_fault = ExpressionFlaw{place, words.value_or(Text::ExpressionInvalid), {}}.In(m_context.texts);
  return code;
}

ExpressionCode DeviceExpression::Blame(Code code, const ExpressionToken& token) {
  const bool isDevice = code == Code::UnknownDevice || code == Code::DiscriminatorOff;
  const std::wstring name = isDevice ? token.device : token.device + L'.' + token.variable;
  Blame(code, token.place);
  m_fault->words = Format(m_context.texts.Load(Text::FaultOf).ToView(),
                          {std::wstring_view(m_fault->words), std::wstring_view(Quoted(name))});
  return code;
}

}  // namespace qv
