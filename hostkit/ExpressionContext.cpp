#include "hostkit/ExpressionContext.h"

#include "hostkit/DecimalNumber.h"

namespace qv {

std::optional<double> ExpressionContext::ValueOf(const Variable& variable) const {
  return variable.isOfModule ? std::nullopt : variable.values.At(clock());
}

std::wstring ExpressionContext::ValueText(const Variable& variable) const {
  const auto value = ValueOf(variable);
  if (!value) {
    const Text why = variable.isOfModule ? Text::VariableUnreadable : Text::VariableWithoutValue;
    return std::wstring(texts.Load(why).ToView());
  }
  return NumberText(*value) + (variable.unit.empty() ? L"" : L" ") + variable.unit;
}

}  // namespace qv
