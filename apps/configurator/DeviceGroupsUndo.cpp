#include "apps/configurator/DeviceGroupsUndo.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QUndoCommand>
#include <memory>
#include <utility>

#include "apps/configurator/DeviceTreeView.h"
#include "discriminator/Fields.h"

namespace configurator {
namespace {

using qv::XmlNode;
using Snapshot = std::shared_ptr<const XmlNode>;

/// Each step holds the device groups as they were before and after it.
constexpr int maxSteps = 100;

class DeviceGroupsChange : public QUndoCommand {
 public:
  DeviceGroupsChange(qv::Configuration& configuration, OwnText what, Snapshot before,
                     Snapshot after)
      : m_configuration(configuration),
        m_what(what),
        m_before(std::move(before)),
        m_after(std::move(after)) {}

  OwnText What() const { return m_what; }
  void undo() override { m_configuration.SetDeviceGroups(m_before.get()); }
  void redo() override { m_configuration.SetDeviceGroups(m_after.get()); }

 private:
  qv::Configuration& m_configuration;
  OwnText m_what;
  Snapshot m_before;
  Snapshot m_after;
};

/// "Undo" and what, or the bare word if there is nothing to undo.
QString StepText(const QUndoStack& stack, int index, OwnText bare, OwnText named,
                 qv::Language language) {
  const auto* step = dynamic_cast<const DeviceGroupsChange*>(stack.command(index));
  return step ? Words(named, language).arg(Words(step->What(), language)) : Words(bare, language);
}

}  // namespace

DeviceGroupsUndo::DeviceGroupsUndo(Workspace& workspace, DeviceTreeView& view, QObject* parent)
    : QObject(parent),
      m_workspace(workspace),
      m_view(view),
      m_undo(NewCommand(&QUndoStack::undo)),
      m_redo(NewCommand(&QUndoStack::redo)) {
  m_stack.setUndoLimit(maxSteps);
  m_undo->setShortcut(QKeySequence::Undo);
  m_redo->setShortcuts(QKeySequence::Redo);
  connect(&m_stack, &QUndoStack::indexChanged, this, [this] {
    ShowTexts();
    emit Changed();
  });
}

DeviceGroupsUndo::~DeviceGroupsUndo() {
  // The stack tells of its end, when there is nothing left to show it with.
  m_stack.disconnect(this);
}

QAction* DeviceGroupsUndo::NewCommand(void (QUndoStack::*run)()) {
  auto* command = new QAction(this);
  connect(command, &QAction::triggered, this, [this, run] {
    m_view.CommitName();
    (m_stack.*run)();
  });
  return command;
}

void DeviceGroupsUndo::Apply(OwnText what, const Edit& edit) {
  qv::Configuration& configuration = m_workspace.Config();
  const XmlNode* groups = configuration.DeviceGroups();
  const Snapshot before = groups ? std::make_shared<const XmlNode>(*groups) : nullptr;
  const auto after = groups ? std::make_shared<XmlNode>(*groups)
                            : std::make_shared<XmlNode>(qv::tag::DeviceGroups);
  const XmlNode unchanged = *after;
  const Places places = edit(*after);
  if (!places.empty() && *after != unchanged) {
    m_stack.push(new DeviceGroupsChange(configuration, what, before, after));
    m_view.Select(places);
  }
}

void DeviceGroupsUndo::AddTo(QMenu& menu) {
  menu.addAction(m_undo);
  menu.addAction(m_redo);
}

void DeviceGroupsUndo::ShowTexts() {
  const int next = m_stack.index();
  const qv::Language language = m_workspace.CurrentLanguage();
  m_undo->setText(StepText(m_stack, next - 1, OwnText::Undo, OwnText::UndoEdit, language));
  m_undo->setEnabled(m_stack.canUndo());
  m_redo->setText(StepText(m_stack, next, OwnText::Redo, OwnText::RedoEdit, language));
  m_redo->setEnabled(m_stack.canRedo());
}

void DeviceGroupsUndo::Forget() {
  const QSignalBlocker silent(m_stack);
  m_stack.clear();
  ShowTexts();
}

}  // namespace configurator
