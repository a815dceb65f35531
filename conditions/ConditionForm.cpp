#include "conditions/ConditionForm.h"

#include <algorithm>
#include <utility>

#include "discriminator/Fields.h"
#include "tools/Nodes.h"

namespace qv {
namespace {

QVWideString FirstCharacters(const QVWideString& text, std::size_t count) {
  return QVWideString(text.ToView().substr(0, count));
}

Refusal OfExpression(Addition addition) {
  Refusal refusal = Refused(Text::ExpressionInvalid, std::move(addition));
  refusal.field = Field::Expression;
  refusal.selectsAll = true;
  return refusal;
}

Addition WhyInvalid(const ConditionEvaluation& evaluation) {
  if (evaluation.state == ConditionState::NotLogical) {
    return {{Text::ResultNotLogicalTold}};
  }
  return evaluation.fault ? Addition{{Text::ExpressionFaultTold, {evaluation.fault->words}}}
                          : Addition{};
}

/// A text that was cut before it was checked may look right.
void TellCut(Refusal& refusal, const QVWideString& typed, const QVWideString& kept) {
  const bool isCut = refusal.field == Field::Expression && typed != kept;
  if (isCut) {
    refusal.addition.push_back(
        {Text::ExpressionKept,
         {std::to_wstring(ConditionForm::longestKept), std::wstring(kept.ToView())}});
  }
}

}  // namespace

ConditionForm::ConditionForm(XmlNode& condition, const XmlNode* conditions,
                             const QVDriverSupport& drivers)
    : m_condition(condition), m_conditions(conditions), m_drivers(drivers) {}

QVWideString ConditionForm::Name() const { return m_condition.Value(tag::Name); }

QVWideString ConditionForm::Expression() const { return m_condition.Value(tag::Expression); }

ConditionEvaluation ConditionForm::Status(const QVWideString& expression) const {
  const QVWideString seen = FirstCharacters(expression, longestSeenExpression);
  return seen.Empty() ? ConditionEvaluation{} : EvaluateCondition(m_drivers, seen);
}

QVWideString ConditionForm::Kept(const QVWideString& text) {
  return FirstCharacters(text, longestKept);
}

std::optional<Refusal> ConditionForm::CheckCondition(const QVWideString& name,
                                                     const QVWideString& expression) const {
  if (name.Empty()) {
    return Refusal{.text = Text::ConditionNameMissing, .field = Field::Name};
  }
  if (auto fault = Fault(expression)) {
    return fault;
  }
  if (IsTaken(name)) {
    return Refusal{.text = Text::ConditionNameTaken, .field = Field::Name, .selectsAll = true};
  }
  return std::nullopt;
}

std::optional<Refusal> ConditionForm::Fault(const QVWideString& expression) const {
  const ConditionEvaluation evaluation = EvaluateCondition(m_drivers, expression);
  if (IsCondition(evaluation.state)) {
    return std::nullopt;
  }
  if (evaluation.state == ConditionState::Failed) {
    return Refusal{.words = evaluation.words,
                   .field = Field::Expression,
                   .selectsAll = true,
                   .addition = WhyInvalid(evaluation)};
  }
  return OfExpression(WhyInvalid(evaluation));
}

bool ConditionForm::IsTaken(const QVWideString& name) const {
  const auto others = ChildrenWithTag(m_conditions, tag::Condition);
  return std::any_of(others.begin(), others.end(), [&](const XmlNode& other) {
    return &other != &m_condition && other.Value(tag::Name) == name;
  });
}

bool ConditionForm::HasChanged(const QVWideString& name, const QVWideString& expression) const {
  return name != Name() || expression != Expression();
}

SaveEnd ConditionForm::Save(const QVWideString& name, const QVWideString& expression) {
  const QVWideString keptName = Kept(name);
  const QVWideString keptExpression = Kept(expression);
  if (auto refusal = CheckCondition(keptName, keptExpression)) {
    TellCut(*refusal, expression, keptExpression);
    return {SaveOutcome::Refused, std::move(refusal)};
  }
  if (!HasChanged(keptName, keptExpression)) {
    return {SaveOutcome::Unchanged, {}};
  }
  m_condition.SetValue(tag::Name, keptName);
  m_condition.SetValue(tag::Expression, keptExpression);
  m_modified = true;
  return {SaveOutcome::Saved, {}};
}

}  // namespace qv
