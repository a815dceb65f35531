#pragma once

#include <QObject>
#include <QUndoStack>
#include <functional>

#include "apps/configurator/DeviceGroupEdits.h"
#include "apps/configurator/OwnTexts.h"
#include "apps/configurator/Workspace.h"

class QAction;
class QMenu;

namespace configurator {

class DeviceTreeView;

/// The edits of the device groups that can be undone, and the two commands for that.
class DeviceGroupsUndo : public QObject {
  Q_OBJECT

 public:
  /// Changes the tree and gives the places to select then; no change if none.
  using Edit = std::function<Places(qv::XmlNode&)>;

  /// Both outlive this object; `view` shows the device groups of the open installation.
  DeviceGroupsUndo(Workspace& workspace, DeviceTreeView& view, QObject* parent);
  ~DeviceGroupsUndo() override;

  /// Changes the device groups by `edit`, which undoing calls `what`, and selects what it says.
  void Apply(OwnText what, const Edit& edit);

  /// Adds the commands to `menu`.
  void AddTo(QMenu& menu);
  /// Names them in the language of the workspace.
  void ShowTexts();
  /// Takes back the chance to undo and redo.
  void Forget();

 signals:
  /// The device groups are others now.
  void Changed();

 private:
  QAction* NewCommand(void (QUndoStack::*run)());

  Workspace& m_workspace;
  DeviceTreeView& m_view;
  QUndoStack m_stack;
  QAction* m_undo;
  QAction* m_redo;
};

}  // namespace configurator
