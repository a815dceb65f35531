#pragma once

#include <optional>
#include <vector>

#include "conditions/ConditionEvaluation.h"
#include "discriminator/Containers.h"
#include "tools/XmlNode.h"

namespace qv {

/// A condition and what it gives at present.
struct TriedCondition {
  QVWideString name;
  QVWideString expression;
  ConditionEvaluation result;

  friend bool operator==(const TriedCondition&, const TriedCondition&) = default;
};

/// What the expression of a stored condition gives at present; all of it counts, however long it
/// is.
ConditionEvaluation TryCondition(const XmlNode& condition, const QVDriverSupport& drivers);

/// Tries the conditions of a discriminator on present values, in their order.
std::vector<TriedCondition> TryConditions(OrderedConditions conditions,
                                          const QVDriverSupport& drivers);

/// The place of the first condition that is true; nothing if none is. Those before it that can't be
/// evaluated are passed over.
std::optional<int> FirstTrue(const std::vector<TriedCondition>& tried);

}  // namespace qv
