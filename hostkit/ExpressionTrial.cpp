#include "hostkit/ExpressionTrial.h"

#include <array>
#include <tuple>

#include "hostkit/DecimalNumber.h"
#include "hostkit/ExpressionCodes.h"
#include "tools/Format.h"

namespace qv {
namespace {

constexpr std::size_t classCount = VariableClasses().size();

/// The numbers of the classes, as many times as it takes to fill the row.
std::array<int, classCount> NumbersOf(const VariableClasses& classes) {
  std::array<int, classCount> numbers{};
  int last = 0;
  while (!classes.test(static_cast<std::size_t>(last))) {
    ++last;
  }
  for (std::size_t i = 0; i < classCount; ++i) {
    last = classes.test(i) ? static_cast<int>(i) : last;
    numbers.at(i) = last;
  }
  return numbers;
}

bool IsWrong(int code) {
  return code != QVEvaluator::CodeUnreadable && code != QVEvaluator::CodeNoValue;
}

ExpressionTrial Failure(const QVDriverSupport& support, const QVEvaluator& evaluator, int code) {
  const auto fault = evaluator.Fault();
  QVWideString words;
  support.ErrorMsg(code, words);
  ExpressionTrial trial{fault ? fault->words : std::wstring(words.ToView()), std::nullopt};
  if (IsWrong(code)) {
    trial.wrong = fault ? fault->place : ExpressionPlace();
  }
  return trial;
}

ExpressionTrial Result(const QVLoadString& texts, double value, int type, bool isCondition) {
  if (type == QVEvaluator::TypeLogical) {
    return {std::wstring(texts.Load(value != 0 ? Text::ResultTrue : Text::ResultFalse).ToView()),
            std::nullopt};
  }
  const std::wstring number = NumberText(value);
  const QVWideString complaint = texts.Load(Text::WizardNotCondition);
  return {isCondition ? Format(complaint.ToView(), {std::wstring_view(number)}) : number,
          std::nullopt};
}

}  // namespace

std::unique_ptr<QVEvaluator> EvaluatorFor(const QVDriverSupport& support,
                                          const std::wstring& expression,
                                          const ExpressionDemand& demand) {
  auto evaluator = support.NewEvaluator(QVWideString{std::wstring_view{expression}});
  if (demand.variables.classes.any()) {
    std::apply([&](auto... flags) { evaluator->SetFlags(flags..., -1); },
               NumbersOf(demand.variables.classes));
  }
  evaluator->EnableDiscriminators(demand.variables.withDiscriminators);
  return evaluator;
}

ExpressionTrial TryExpression(const QVDriverSupport& support, const QVLoadString& texts,
                              const std::wstring& expression, const ExpressionDemand& demand) {
  const auto evaluator = EvaluatorFor(support, expression, demand);
  double value = 0;
  int type = 0;
  const int code = evaluator->AnalizeExpression() == 1
                       ? evaluator->Evaluate(value, type)
                       : static_cast<int>(ExpressionCode::NotWellFormed);
  return code == QVEvaluator::CodeEvaluated ? Result(texts, value, type, demand.isCondition)
                                            : Failure(support, *evaluator, code);
}

}  // namespace qv
