#include "conditions/ConditionTrial.h"

#include <algorithm>

#include "discriminator/Fields.h"
#include "tools/Nodes.h"

namespace qv {

ConditionEvaluation TryCondition(const XmlNode& condition, const QVDriverSupport& drivers) {
  const QVWideString expression = condition.Value(tag::Expression);
  return expression.Empty() ? ConditionEvaluation{} : EvaluateCondition(drivers, expression);
}

std::vector<TriedCondition> TryConditions(OrderedConditions conditions,
                                          const QVDriverSupport& drivers) {
  std::vector<TriedCondition> tried;
  for (const XmlNode& condition : ChildrenWithTag(conditions.Node(), tag::Condition)) {
    tried.push_back({condition.Value(tag::Name), condition.Value(tag::Expression),
                     TryCondition(condition, drivers)});
  }
  return tried;
}

std::optional<int> FirstTrue(const std::vector<TriedCondition>& tried) {
  const auto found = std::find_if(tried.begin(), tried.end(), [](const TriedCondition& one) {
    return one.result.state == ConditionState::True;
  });
  return found == tried.end() ? std::nullopt
                              : std::optional(static_cast<int>(found - tried.begin()));
}

}  // namespace qv
