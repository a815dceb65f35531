#include "apps/configurator/DiscriminatorManager.h"

#include "library/QVDiscriminator.h"

namespace configurator {

ManagerEnd RunDiscriminatorManager(Workspace& workspace, QWidget* parent,
                                   const std::function<void(QWidget&)>& whenMade) {
  // Without the node, null: the dialog then makes one in QVMainCfg when it needs it.
  CDlgSetupDiscriminators dialog(workspace.Config().DeviceGroups(), parent);
  if (whenMade) {
    whenMade(dialog);
  }
  const int result = dialog.DoModal();
  return {result, SaveIfAsked(workspace, result)};
}

Workspace::Problem SaveIfAsked(Workspace& workspace, int result) {
  return result == IDOK ? workspace.Save() : std::nullopt;
}

QString ResultName(int result) {
  switch (result) {
    case IDOK:
      return QStringLiteral("IDOK");
    case IDCANCEL:
      return QStringLiteral("IDCANCEL");
    default:
      return QString::number(result);
  }
}

}  // namespace configurator
