#include "conditions/ConditionEvaluator.h"

namespace qv {
namespace {

constexpr int readableInExpressions = 4;
constexpr int endOfFlags = -1;

}  // namespace

std::unique_ptr<QVEvaluator> NewConditionEvaluator(const QVDriverSupport& drivers,
                                                   const QVWideString& expression) {
  auto evaluator = drivers.NewEvaluator(expression);
  evaluator->SetFlags(readableInExpressions, endOfFlags);
  evaluator->EnableDiscriminators(false);
  return evaluator;
}

}  // namespace qv
