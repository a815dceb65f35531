#pragma once

#include <QObject>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "apps/configurator/DeviceGroupEdits.h"
#include "apps/configurator/DeviceGroupsUndo.h"
#include "apps/configurator/EntryCommands.h"
#include "apps/configurator/Workspace.h"

class QAction;
class QMenu;

namespace configurator {

class DeviceTreeView;

/// What the user can do to the device groups: the commands of a menu, which the view has as well,
/// and what is dragged and typed in the view. All of it can be undone until `Forget`.
class DeviceTreeEditor : public QObject {
  Q_OBJECT

 public:
  /// Both outlive the editor; `view` shows the device groups of the open installation.
  DeviceTreeEditor(Workspace& workspace, DeviceTreeView& view, QObject* parent);
  ~DeviceTreeEditor() override;

  /// Adds the commands to `menu`.
  void AddTo(QMenu& menu);
  /// Names all commands in the language of the workspace.
  void ShowTexts();
  /// Takes back the chance to undo and redo, since something else changed the device groups. They
  /// have to be shown by whoever calls this.
  void Forget() { m_undo.Forget(); }

 signals:
  /// The device groups are others now: they have to be shown.
  void Changed();

 private:
  QAction* NewCommand(OwnText text, const QKeySequence& keys, void (DeviceTreeEditor::*run)());
  void ListenToView();

  void OnNewGroup();
  void OnRename();
  void OnRemove();
  void OnUp();
  void OnDown();
  void Rename(const TreePlace& place, const QString& name);
  void Move(const Places& what, const TreePlace& group, std::optional<int> row);
  void MoveBy(int rows);

  void ShowState();
  void FillMoveTo();
  void AddTarget(const QString& name, const TreePlace& group);

  const qv::XmlNode& Groups() const;
  bool IsSelectedGroup() const;
  bool CanMoveBy(int rows) const;

  Workspace& m_workspace;
  DeviceTreeView& m_view;
  DeviceGroupsUndo m_undo;
  EntryCommands m_entries;
  std::vector<std::pair<QAction*, OwnText>> m_commands;
  QAction* m_newGroup = nullptr;
  QAction* m_rename = nullptr;
  QAction* m_remove = nullptr;
  QAction* m_up = nullptr;
  QAction* m_down = nullptr;
  std::unique_ptr<QMenu> m_moveTo;
};

}  // namespace configurator
