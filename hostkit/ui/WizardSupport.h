#pragma once

#include "host/QVInformes.h"
#include "hostkit/ExpressionSupport.h"

namespace qv {

/// The wizard over the devices of a model. It speaks the host's language, and shows the pictures of
/// the host's image directory, as both are when it is run.
class WizardSupport : public QVInformes {
 public:
  /// The purpose of a wizard for a condition, whose result has to be a truth value.
  static constexpr int Condition = 13;

  /// `expressions` is to outlive this object.
  explicit WizardSupport(const ExpressionSupport& expressions) : m_expressions(expressions) {}

  /// No class at all means every variable. `DoModal` of the wizard gives 2, without a window, if
  /// the host has no texts or no set-up installed.
  std::unique_ptr<CDlgWizzard> NewWizzard(QWidget* parent, const VariableClasses& classes,
                                          bool withDiscriminators, int purpose) const override;

 private:
  const ExpressionSupport& m_expressions;
};

}  // namespace qv
