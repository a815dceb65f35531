#pragma once

#include <optional>
#include <string>

#include "host/QVEvaluator.h"

namespace qvdisc {

/// What came of evaluating an expression.
struct EvaluatedExpression {
  std::wstring expression{};
  std::optional<int> code{};  ///< of `QVEvaluator::Evaluate`; nothing if it doesn't parse
  std::optional<int> type{};  ///< where it is known
  std::optional<double> value{};
  std::optional<qv::ExpressionFault> fault{};
};

}  // namespace qvdisc
