#pragma once

#include <span>
#include <vector>

#include "hostkit/ExpressionCodes.h"
#include "hostkit/ExpressionContext.h"
#include "hostkit/VariableFilter.h"

namespace qv {

/// An expression over the variables of devices.
class DeviceExpression : public QVEvaluator {
 public:
  /// `context` is to outlive this object.
  DeviceExpression(const QVWideString& expression, const ExpressionContext& context);

  void EnableDiscriminators(bool enabled) override { m_filter.withDiscriminators = enabled; }
  int AnalizeExpression() override;
  /// The codes are those of `ExpressionCode`; `value` and `type` are 0 where they aren't known.
  int Evaluate(double& value, int& type) override;
  const QVWideString& Expr() const override { return m_expression; }
  std::optional<ExpressionFault> Fault() const override { return m_fault; }
  ExpressionProposals ProposalsAt(int cursor) const override;

  /// Whether it is well-formed and has a variable of a module.
  bool HasModule();

 protected:
  /// They replace those that were set before; what isn't a class leaves these as they were.
  bool TakeFlags(std::initializer_list<int> flags) override;

 private:
  using Code = ExpressionCode;

  Code CheckShape();
  Code CheckNames();
  Code CheckName(const ExpressionToken& token, const Device* device, const Variable* variable);
  Code CheckValues();
  Code CheckOutcome(const ExpressionOutcome& outcome);
  std::vector<double> Values() const;
  const Variable* VariableOf(const ExpressionToken& token) const;
  Code Blame(Code code, ExpressionPlace place);
  Code Blame(Code code, const ExpressionToken& token);

  QVWideString m_expression;
  const ExpressionContext& m_context;
  VariableFilter m_filter;
  ExpressionTokens m_tokens;
  std::optional<ExpressionFault> m_fault;
};

}  // namespace qv
