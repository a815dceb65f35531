#pragma once

#include <memory>

#include "host/QVDriverSupport.h"

namespace qv {

/// The host's evaluator of an expression, set up as conditions are evaluated: over variables that
/// can be read in expressions, and without those of discriminators, which would hang on conditions
/// themselves.
std::unique_ptr<QVEvaluator> NewConditionEvaluator(const QVDriverSupport& drivers,
                                                   const QVWideString& expression);

}  // namespace qv
