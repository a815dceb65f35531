#include "apps/qvdisc/ConditionWords.h"
#include "apps/qvdisc/Verbs.h"
#include "conditions/ConditionEvaluator.h"

namespace qvdisc {
namespace {

constexpr int wellFormed = 1;

EvaluatedExpression Evaluated(const std::wstring& expression, const QVDriverSupport& drivers) {
  const auto evaluator = qv::NewConditionEvaluator(drivers, QVWideString(expression));
  EvaluatedExpression evaluated{.expression = expression};
  if (evaluator->AnalizeExpression() == wellFormed) {
    double value = 0;
    int type = 0;
    const int code = evaluator->Evaluate(value, type);
    evaluated.code = code;
    if (code == QVEvaluator::CodeEvaluated) {
      evaluated.value = value;
    }
    if (code == QVEvaluator::CodeEvaluated || code == QVEvaluator::CodeNoValue) {
      evaluated.type = type;
    }
  }
  evaluated.fault = evaluator->Fault();
  return evaluated;
}

/// Why there is no value, in the words of the evaluator, which may say where.
void TellWhyNot(const EvaluatedExpression& evaluated, const QVDriverSupport& drivers,
                const QVLoadString& texts, Outcome& outcome) {
  if (evaluated.fault) {
    return Fail(outcome, ConditionWord::NotEvaluatedAt,
                {evaluated.fault->place.start + 1, evaluated.fault->words.c_str()});
  }
  QVWideString words = texts.Load(Text::ExpressionInvalid);
  if (evaluated.code) {
    drivers.ErrorMsg(*evaluated.code, words);
  }
  outcome.errors.emplace_back(words.ToView());
  outcome.status = 1;
}

}  // namespace

void Eval(const std::wstring& expression, const QVDriverSupport& drivers, const QVLoadString& texts,
          Outcome& outcome) {
  outcome.evaluated = Evaluated(expression, drivers);
  if (!outcome.evaluated->value) {
    TellWhyNot(*outcome.evaluated, drivers, texts, outcome);
  }
}

}  // namespace qvdisc
