#include "apps/configurator/WizardWindow.h"

#include <string>

#include "discriminator/DiscriminatorDirectory.h"
#include "discriminator/Fields.h"
#include "hostkit/ui/ExpressionWizard.h"

namespace configurator {
namespace {

/// The expression of the first condition of a discriminator; empty if it has none.
QString FirstOf(const XmlDocument& document) {
  const qv::XmlNode* conditions = document.Root()->Node(qv::tag::Conditions);
  const qv::XmlNode* first = conditions ? conditions->Node(qv::tag::Condition) : nullptr;
  return first ? QString::fromStdWString(std::wstring(first->Value(qv::tag::Expression).ToView()))
               : QString();
}

QString FirstCondition(const Workspace& workspace) {
  const QString directory = workspace.Directory() + QLatin1Char('/');
  const qv::DiscriminatorDirectory files(QVWideString(directory.toStdWString().c_str()),
                                         qv::Files::Disk());
  QString found;
  for (const std::wstring& name : files.FileNames()) {
    XmlDocument document;
    if (found.isEmpty() && files.Load(document, name)) {
      found = FirstOf(document);
    }
  }
  return found;
}

}  // namespace

QString RunWizard(Workspace& workspace, const std::function<void(QWidget&)>& whenMade) {
  const HostServices& services = workspace.Services();
  const qv::ExpressionDemand demand{{qv::ClassAlone(qv::VariableClass::Expression), false}, true};
  qv::ExpressionWizard window({services.Expressions(), services.Texts(), services.Setup()}, demand);
  window.SetExpression(FirstCondition(workspace), {0, 0});
  whenMade(window);
  const bool isTaken = window.exec() == QDialog::Accepted;
  return isTaken ? QStringLiteral("IDOK ") + window.Expression() : QStringLiteral("IDCANCEL");
}

}  // namespace configurator
