#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/QVDriverSupport.h"
#include "host/QVInformes.h"

namespace qv {

/// What a script says of one expression.
struct ScriptedExpression {
  int analysis = 1;
  int code = QVEvaluator::CodeEvaluated;
  double value = 1;
  int type = QVEvaluator::TypeLogical;
  bool hasModule = false;
  std::optional<ExpressionFault> fault{};
  ExpressionProposals proposals{};
};

/// Evaluators that say what a script tells them.
class ScriptedDriverSupport : public QVDriverSupport {
 public:
  /// What is said of an expression; one that isn't here isn't well-formed.
  std::map<std::wstring, ScriptedExpression> script;
  /// The wordings of codes; one that isn't here has none.
  std::map<int, std::wstring> words;
  /// What was called, in order, such as "AnalizeExpression" and "SetFlags 4 -1"; a new evaluator
  /// as "new" and its expression.
  mutable std::vector<std::wstring> calls;

  std::unique_ptr<QVEvaluator> NewEvaluator(const QVWideString& expression) const override;
  bool ErrorMsg(int code, QVWideString& text) const override;
  bool isThereAModuleInExpression(const std::wstring& expression) const override;
};

/// Wizards that take what they are given and end at once.
class ScriptedInformes : public QVInformes {
 public:
  /// One run of a wizard.
  struct Run {
    QWidget* parent;
    VariableClasses classes;
    bool withDiscriminators;
    int purpose;
    std::wstring text;
    int selectionStart;
    int selectionEnd;
  };

  /// What each wizard composes; without it, it is left by Cancel.
  std::optional<std::wstring> composed;
  mutable std::vector<Run> runs;

  std::unique_ptr<CDlgWizzard> NewWizzard(QWidget* parent, const VariableClasses& classes,
                                          bool withDiscriminators, int purpose) const override;
};

}  // namespace qv
