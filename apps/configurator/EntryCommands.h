#pragma once

#include <QObject>
#include <memory>
#include <vector>

#include "apps/configurator/DeviceGroupsUndo.h"
#include "apps/configurator/DiscriminatorEntries.h"
#include "apps/configurator/Workspace.h"

class QAction;
class QMenu;

namespace configurator {

class DeviceTreeView;

/// What the user can do where entries and files don't match: take out entries that lead nowhere,
/// and put in those of discriminators that have none. The view has the commands as well.
class EntryCommands : public QObject {
  Q_OBJECT

 public:
  /// All outlive this object; `view` shows the device groups of the open installation.
  EntryCommands(Workspace& workspace, DeviceTreeView& view, DeviceGroupsUndo& undo,
                QObject* parent);
  ~EntryCommands() override;

  /// Adds the commands to `menu`.
  void AddTo(QMenu& menu);
  /// Names them in the language of the workspace.
  void ShowTexts();

 private:
  void OnTakeOut();
  void PutIn(const std::vector<std::wstring>& ids);
  void FillPutIn();
  void FindMissing();
  void ShowState();

  Workspace& m_workspace;
  DeviceTreeView& m_view;
  DeviceGroupsUndo& m_undo;
  std::vector<DiscriminatorOnDisk> m_missing;  // as the tree was shown last
  QAction* m_takeOut;
  std::unique_ptr<QMenu> m_putIn;
};

}  // namespace configurator
