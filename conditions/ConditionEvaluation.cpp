#include "conditions/ConditionEvaluation.h"

#include "conditions/ConditionEvaluator.h"

namespace qv {
namespace {

constexpr int wellFormed = 1;

ConditionState StateOfResult(int code, double value, int type) {
  if (type != QVEvaluator::TypeLogical) {
    return ConditionState::NotLogical;
  }
  if (code == QVEvaluator::CodeNoValue) {
    return ConditionState::NoValue;
  }
  return value != 0 ? ConditionState::True : ConditionState::False;
}

bool StopsAtModule(const QVDriverSupport& drivers, const QVEvaluator& evaluator, int code) {
  return code == QVEvaluator::CodeUnreadable &&
         drivers.isThereAModuleInExpression(std::wstring(evaluator.Expr().ToView()));
}

ConditionEvaluation Evaluate(const QVDriverSupport& drivers, QVEvaluator& evaluator) {
  double value = 0;
  int type = 0;
  const int code = evaluator.Evaluate(value, type);
  if (code == QVEvaluator::CodeEvaluated || code == QVEvaluator::CodeNoValue) {
    return {StateOfResult(code, value, type)};
  }
  if (StopsAtModule(drivers, evaluator, code)) {
    return {ConditionState::UsesModule};
  }
  QVWideString words;
  drivers.ErrorMsg(code, words);
  return {ConditionState::Failed, std::wstring(words.ToView())};
}

}  // namespace

ConditionEvaluation EvaluateCondition(const QVDriverSupport& drivers,
                                      const QVWideString& expression) {
  const auto evaluator = NewConditionEvaluator(drivers, expression);
  ConditionEvaluation evaluation{ConditionState::Invalid};
  if (evaluator->AnalizeExpression() == wellFormed) {
    evaluation = Evaluate(drivers, *evaluator);
  }
  // What a host says of a missing value doesn't make a number true or false.
  if (evaluation.state != ConditionState::NotLogical) {
    evaluation.fault = evaluator->Fault();
  }
  return evaluation;
}

bool IsCondition(ConditionState state) {
  switch (state) {
    case ConditionState::False:
    case ConditionState::True:
    case ConditionState::NoValue:
    case ConditionState::UsesModule:
      return true;
    default:
      return false;
  }
}

}  // namespace qv
