#include "checks/ConditionCheck.h"

#include <map>
#include <optional>

#include "conditions/ConditionForm.h"
#include "conditions/ConditionTrial.h"
#include "discriminator/Fields.h"
#include "tools/Nodes.h"

namespace qv {
namespace {

/// What is wrong with a condition that came to this, if it can't be stored.
std::optional<FindingKind> FaultOf(ConditionState state) {
  switch (state) {
    case ConditionState::Missing:
      return FindingKind::ConditionMissing;
    case ConditionState::Invalid:
      return FindingKind::ConditionMalformed;
    case ConditionState::NotLogical:
      return FindingKind::ConditionNotLogical;
    case ConditionState::Failed:
      return FindingKind::ConditionFails;
    default:
      return std::nullopt;
  }
}

}  // namespace

void CheckConditions(const XmlNode* conditions, const QVDriverSupport& drivers,
                     Findings& findings) {
  std::map<std::wstring, std::wstring> names;  // by expression
  for (const XmlNode& condition : ChildrenWithTag(conditions, tag::Condition)) {
    const std::wstring name = FieldOf(condition, tag::Name);
    const std::wstring expression = FieldOf(condition, tag::Expression);
    const std::wstring place = std::wstring(tag::Conditions) + L"/" + name;
    const ConditionEvaluation result = TryCondition(condition, drivers);
    if (const auto kind = FaultOf(result.state)) {
      findings.push_back({.kind = *kind,
                          .place = place,
                          .value = result.fault ? result.fault->words : result.words});
    }
    const auto [known, isNew] = names.try_emplace(expression, name);
    if (!isNew && !expression.empty()) {
      findings.push_back(
          {.kind = FindingKind::ConditionsAlike, .place = place, .value = known->second});
    }
    if (expression.size() > ConditionForm::longestKept) {
      findings.push_back({.kind = FindingKind::ConditionTooLong,
                          .place = place,
                          .value = std::to_wstring(expression.size())});
    }
  }
}

}  // namespace qv
