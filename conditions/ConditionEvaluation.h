#pragma once

#include <optional>
#include <string>

#include "host/QVDriverSupport.h"

namespace qv {

/// What an expression is as a condition, at present.
enum class ConditionState {
  Missing,     ///< there is no expression
  Invalid,     ///< it isn't well-formed
  NotLogical,  ///< it gives neither true nor false
  False,
  True,
  NoValue,     ///< it would give true or false, but a variable has no value at the moment
  UsesModule,  ///< it refers to a module, whose values can't be had here
  Failed       ///< it can't be evaluated, for another reason
};

/// What came of evaluating an expression as a condition.
struct ConditionEvaluation {
  ConditionState state = ConditionState::Missing;
  std::wstring words{};                    ///< the host's wording if it failed
  std::optional<ExpressionFault> fault{};  ///< where and why, if the host can say

  friend bool operator==(const ConditionEvaluation&, const ConditionEvaluation&) = default;
};

/// Evaluates the expression with a new evaluator, also if it is empty: never `Missing`.
ConditionEvaluation EvaluateCondition(const QVDriverSupport& drivers,
                                      const QVWideString& expression);

/// Whether an expression that came to this may be stored as a condition.
bool IsCondition(ConditionState state);

}  // namespace qv
