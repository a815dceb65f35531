#include "hostkit/ui/WizardSupport.h"

#include <QPointer>

#include "hostkit/ui/ExpressionWizard.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

constexpr int taken = 1;
constexpr int left = 2;

/// A window that is made when it is run.
class Wizard : public CDlgWizzard {
 public:
  Wizard(const ExpressionSupport& expressions, const ExpressionDemand& demand, QWidget* parent)
      : m_expressions(expressions), m_demand(demand), m_parent(parent) {}

  void SetExpression(const QVWideString& text, int selectionStart, int selectionEnd) override {
    m_expression = text;
    m_selection = {selectionStart, selectionEnd - selectionStart};
  }

  int DoModal() override {
    const auto* texts = QVLoadString::Get();
    const auto* setup = QVVornelSetup::Get();
    return texts && setup ? Run({m_expressions, *texts, *setup}) : left;
  }

 private:
  int Run(const WizardServices& services) {
    // A parent that is destroyed while events come in takes the window with it.
    const QPointer<ExpressionWizard> window(
        new ExpressionWizard(services, m_demand, m_parent.data()));
    window->SetExpression(ToQString(m_expression), m_selection);
    const bool isTaken = window->exec() == QDialog::Accepted && window;
    if (isTaken) {
      m_expression = ToWide(window->Expression());
    }
    delete window.data();
    return isTaken ? taken : left;
  }

  const ExpressionSupport& m_expressions;
  ExpressionDemand m_demand;
  QPointer<QWidget> m_parent;
  ExpressionPlace m_selection{};
};

}  // namespace

std::unique_ptr<CDlgWizzard> WizardSupport::NewWizzard(QWidget* parent,
                                                       const VariableClasses& classes,
                                                       bool withDiscriminators, int purpose) const {
  const ExpressionDemand demand{{classes, withDiscriminators}, purpose == Condition};
  return std::make_unique<Wizard>(m_expressions, demand, parent);
}

}  // namespace qv
