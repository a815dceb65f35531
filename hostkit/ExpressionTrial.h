#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/QVDriverSupport.h"
#include "host/QVLoadString.h"
#include "hostkit/VariableFilter.h"

namespace qv {

/// What an expression is written for.
struct ExpressionDemand {
  VariableFilter variables{};  ///< those that it may have
  bool isCondition = false;    ///< its result has to be a truth value
};

/// How the evaluation of an expression ends at the moment, in the words of the user.
struct ExpressionTrial {
  std::wstring words{};                    ///< the result, or why there is none
  std::optional<ExpressionPlace> wrong{};  ///< where it is wrong, if it is

  friend bool operator==(const ExpressionTrial&, const ExpressionTrial&) = default;
};

/// An evaluator that is limited to what `demand` allows.
std::unique_ptr<QVEvaluator> EvaluatorFor(const QVDriverSupport& support,
                                          const std::wstring& expression,
                                          const ExpressionDemand& demand);

/// Tries an expression. What lacks a value at the moment, or has one elsewhere only, isn't wrong.
ExpressionTrial TryExpression(const QVDriverSupport& support, const QVLoadString& texts,
                              const std::wstring& expression, const ExpressionDemand& demand);

}  // namespace qv
