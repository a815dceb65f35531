#include "tests/support/ScriptedExpressions.h"

#include <utility>

namespace qv {
namespace {

class ScriptedEvaluator : public QVEvaluator {
 public:
  ScriptedEvaluator(const QVWideString& expression, ScriptedExpression says,
                    std::vector<std::wstring>& calls)
      : m_expression(expression), m_says(std::move(says)), m_calls(calls) {
    m_calls.push_back(L"new " + std::wstring(expression.ToView()));
  }

  void EnableDiscriminators(bool enabled) override {
    m_calls.push_back(enabled ? L"EnableDiscriminators true" : L"EnableDiscriminators false");
  }

  int AnalizeExpression() override {
    m_calls.emplace_back(L"AnalizeExpression");
    return m_says.analysis;
  }

  int Evaluate(double& value, int& type) override {
    m_calls.emplace_back(L"Evaluate");
    value = m_says.value;
    type = m_says.type;
    return m_says.code;
  }

  const QVWideString& Expr() const override { return m_expression; }
  std::optional<ExpressionFault> Fault() const override { return m_says.fault; }
  ExpressionProposals ProposalsAt(int /*cursor*/) const override { return m_says.proposals; }

 protected:
  bool TakeFlags(std::initializer_list<int> flags) override {
    std::wstring call = L"SetFlags";
    for (const int flag : flags) {
      call += L" " + std::to_wstring(flag);
    }
    m_calls.push_back(call);
    return true;
  }

 private:
  QVWideString m_expression;
  ScriptedExpression m_says;
  std::vector<std::wstring>& m_calls;
};

class ScriptedWizzard : public CDlgWizzard {
 public:
  ScriptedWizzard(const std::optional<std::wstring>& composed, ScriptedInformes::Run& run)
      : m_composed(composed), m_run(run) {}

  void SetExpression(const QVWideString& text, int selectionStart, int selectionEnd) override {
    m_run.text = text.ToView();
    m_run.selectionStart = selectionStart;
    m_run.selectionEnd = selectionEnd;
  }

  int DoModal() override {
    m_expression = m_composed.value_or(L"left").c_str();
    return m_composed ? 1 : 2;
  }

 private:
  std::optional<std::wstring> m_composed;
  ScriptedInformes::Run& m_run;
};

}  // namespace

std::unique_ptr<QVEvaluator> ScriptedDriverSupport::NewEvaluator(
    const QVWideString& expression) const {
  const auto found = script.find(std::wstring(expression.ToView()));
  const auto says = found == script.end() ? ScriptedExpression{.analysis = 0} : found->second;
  return std::make_unique<ScriptedEvaluator>(expression, says, calls);
}

bool ScriptedDriverSupport::ErrorMsg(int code, QVWideString& text) const {
  const auto found = words.find(code);
  text = found == words.end() ? L"" : found->second.c_str();
  return found != words.end();
}

bool ScriptedDriverSupport::isThereAModuleInExpression(const std::wstring& expression) const {
  const auto found = script.find(expression);
  return found != script.end() && found->second.hasModule;
}

std::unique_ptr<CDlgWizzard> ScriptedInformes::NewWizzard(QWidget* parent,
                                                          const VariableClasses& classes,
                                                          bool withDiscriminators,
                                                          int purpose) const {
  runs.push_back({parent, classes, withDiscriminators, purpose, L"", 0, 0});
  return std::make_unique<ScriptedWizzard>(composed, runs.back());
}

}  // namespace qv
