#pragma once

#include <cmath>
#include <limits>
#include <optional>
#include <span>

#include "host/Text.h"
#include "hostkit/ExpressionCodes.h"
#include "hostkit/ExpressionVocabulary.h"

namespace qv {

/// A number or a truth value, which is 1 or 0. It may be unknown: because a variable has no value,
/// or because a computation has no finite result.
struct ExpressionOperand {
  ExpressionType type = ExpressionType::Number;
  double value = std::numeric_limits<double>::quiet_NaN();  ///< NaN is unknown

  bool IsKnown() const { return !std::isnan(value); }
};

/// Why an operator or function can't have operands of these types; nothing if it can. There are as
/// many of them as it takes.
std::optional<Text> TypeFlaw(ExpressionMeaning meaning,
                             std::span<const ExpressionOperand> operands);

/// What it makes of operands whose types fit. The result is known if what is known of them decides
/// it: `false and x` is false whatever x is.
ExpressionOperand Applied(ExpressionMeaning meaning, std::span<const ExpressionOperand> operands);

}  // namespace qv
