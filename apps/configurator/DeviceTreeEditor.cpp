#include "apps/configurator/DeviceTreeEditor.h"

#include <QAction>
#include <QItemSelectionModel>
#include <QKeySequence>
#include <QMenu>
#include <QUndoCommand>
#include <algorithm>
#include <utility>

#include "apps/configurator/DeviceTreeView.h"
#include "apps/configurator/Strings.h"
#include "discriminator/Fields.h"
#include "toolkit/Strings.h"
#include "tools/XmlText.h"

namespace configurator {
namespace {

using qv::XmlNode;
using Snapshot = std::shared_ptr<const XmlNode>;

/// Each step holds the device groups as they were before and after it.
constexpr int maxSteps = 100;

constexpr int indentation = 4;

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

DeviceTreeEditor::DeviceTreeEditor(Workspace& workspace, DeviceTreeView& view, QObject* parent)
    : QObject(parent), m_workspace(workspace), m_view(view), m_moveTo(new QMenu) {
  MakeUndo();
  m_newGroup = NewCommand(OwnText::NewGroup, Qt::CTRL | Qt::SHIFT | Qt::Key_N,
                          &DeviceTreeEditor::OnNewGroup);
  m_rename = NewCommand(OwnText::RenameGroup, Qt::Key_F2, &DeviceTreeEditor::OnRename);
  m_remove = NewCommand(OwnText::RemoveGroup, Qt::Key_Delete, &DeviceTreeEditor::OnRemove);
  m_up = NewCommand(OwnText::MoveUp, Qt::ALT | Qt::Key_Up, &DeviceTreeEditor::OnUp);
  m_down = NewCommand(OwnText::MoveDown, Qt::ALT | Qt::Key_Down, &DeviceTreeEditor::OnDown);
  m_commands.emplace_back(m_moveTo->menuAction(), OwnText::MoveToMenu);
  m_view.addAction(m_moveTo->menuAction());
  connect(m_moveTo.get(), &QMenu::aboutToShow, this, &DeviceTreeEditor::FillMoveTo);
  ListenToView();
}

DeviceTreeEditor::~DeviceTreeEditor() {
  // The stack tells of its end, when there is nothing left to show it with.
  m_undo.disconnect(this);
}

QAction* DeviceTreeEditor::NewCommand(OwnText text, const QKeySequence& keys,
                                      void (DeviceTreeEditor::*run)()) {
  auto* command = new QAction(this);
  command->setShortcut(keys);
  // The keys are those of the lines, not of the whole window.
  command->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  connect(command, &QAction::triggered, this, [this, run] {
    m_view.CommitName();
    (this->*run)();
  });
  m_commands.emplace_back(command, text);
  m_view.addAction(command);
  return command;
}

void DeviceTreeEditor::MakeUndo() {
  m_undo.setUndoLimit(maxSteps);
  m_undoCommand = new QAction(this);
  m_undoCommand->setShortcut(QKeySequence::Undo);
  connect(m_undoCommand, &QAction::triggered, this, [this] {
    m_view.CommitName();
    m_undo.undo();
  });
  m_redoCommand = new QAction(this);
  m_redoCommand->setShortcuts(QKeySequence::Redo);
  connect(m_redoCommand, &QAction::triggered, this, [this] {
    m_view.CommitName();
    m_undo.redo();
  });
  connect(&m_undo, &QUndoStack::indexChanged, this, [this] {
    ShowUndoTexts();
    emit Changed();
  });
}

void DeviceTreeEditor::ListenToView() {
  DeviceTreeModel& lines = m_view.Lines();
  lines.mayDrop = [this](const Places& what, const TreePlace& group) {
    return CanMove(Groups(), what, group);
  };
  connect(&lines, &DeviceTreeModel::Renamed, this, &DeviceTreeEditor::Rename);
  connect(&lines, &DeviceTreeModel::Dropped, this, &DeviceTreeEditor::Move);
  m_view.setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(m_view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &DeviceTreeEditor::ShowState);
  connect(&lines, &QAbstractItemModel::modelReset, this, &DeviceTreeEditor::ShowState);
  ShowState();
}

void DeviceTreeEditor::AddTo(QMenu& menu) {
  menu.addAction(m_undoCommand);
  menu.addAction(m_redoCommand);
  menu.addSeparator();
  for (const auto& [command, text] : m_commands) {
    menu.addAction(command);
  }
}

void DeviceTreeEditor::ShowTexts() {
  for (const auto& [command, text] : m_commands) {
    command->setText(m_workspace.Words(text));
  }
  ShowUndoTexts();
}

void DeviceTreeEditor::ShowUndoTexts() {
  const int next = m_undo.index();
  const qv::Language language = m_workspace.CurrentLanguage();
  m_undoCommand->setText(StepText(m_undo, next - 1, OwnText::Undo, OwnText::UndoEdit, language));
  m_undoCommand->setEnabled(m_undo.canUndo());
  m_redoCommand->setText(StepText(m_undo, next, OwnText::Redo, OwnText::RedoEdit, language));
  m_redoCommand->setEnabled(m_undo.canRedo());
}

TreePlace DeviceTreeEditor::ParentOfNewGroup() const {
  const auto selected = m_view.Selected();
  const TreePlace place = selected.size() == 1 ? selected.front() : TreePlace();
  return IsGroupPlace(Groups(), place) ? place : ParentOf(place);
}

void DeviceTreeEditor::OnNewGroup() {
  std::optional<TreePlace> made;
  Apply(OwnText::GroupMade, [&](XmlNode& groups) {
    const auto name = m_workspace.Words(OwnText::NewGroupName).toStdWString();
    made = AddGroup(groups, ParentOfNewGroup(), name);
    return made ? Places{*made} : Places();
  });
  if (made) {
    m_view.EditName(*made);
  }
}

void DeviceTreeEditor::OnRename() { m_view.EditName(m_view.Selected().front()); }

void DeviceTreeEditor::OnRemove() {
  Apply(OwnText::GroupRemoved, [place = m_view.Selected().front()](XmlNode& groups) {
    return RemoveGroup(groups, place) ? Places{place} : Places();
  });
}

void DeviceTreeEditor::OnUp() { MoveBy(-1); }
void DeviceTreeEditor::OnDown() { MoveBy(1); }

void DeviceTreeEditor::Rename(const TreePlace& place, const QString& name) {
  const std::wstring wide = name.trimmed().toStdWString();
  if (!wide.empty() && qv::IsXmlText(wide)) {
    Apply(OwnText::GroupRenamed, [&](XmlNode& groups) {
      return RenameGroup(groups, place, wide) ? Places{place} : Places();
    });
  }
}

void DeviceTreeEditor::Move(const Places& what, const TreePlace& group, std::optional<int> row) {
  Apply(OwnText::LinesMoved, [&](XmlNode& groups) { return MoveLines(groups, what, group, row); });
}

void DeviceTreeEditor::MoveBy(int rows) {
  const TreePlace place = m_view.Selected().front();
  Move({place}, ParentOf(place), place.back() + (rows < 0 ? rows : rows + 1));
}

void DeviceTreeEditor::Apply(OwnText what, const Edit& edit) {
  qv::Configuration& configuration = m_workspace.Config();
  const XmlNode* groups = configuration.DeviceGroups();
  const Snapshot before = groups ? std::make_shared<const XmlNode>(*groups) : nullptr;
  const auto after = std::make_shared<XmlNode>(Groups());
  const Places places = edit(*after);
  if (!places.empty() && *after != Groups()) {
    m_undo.push(new DeviceGroupsChange(configuration, what, before, after));
    m_view.Select(places);
  }
}

void DeviceTreeEditor::Forget() {
  const QSignalBlocker silent(m_undo);
  m_undo.clear();
  ShowUndoTexts();
}

void DeviceTreeEditor::ShowState() {
  m_newGroup->setEnabled(ParentOfNewGroup().size() < maxGroupDepth);
  const bool isGroup = IsSelectedGroup();
  m_rename->setEnabled(isGroup);
  m_remove->setEnabled(isGroup);
  m_up->setEnabled(CanMoveBy(-1));
  m_down->setEnabled(CanMoveBy(1));
  m_moveTo->menuAction()->setEnabled(!m_view.Selected().empty());
}

void DeviceTreeEditor::FillMoveTo() {
  m_moveTo->clear();
  AddTarget(m_workspace.Words(OwnText::TopLevel), {});
  for (const GroupLine& group : GroupsOf(Groups())) {
    const QString name =
        group.name.empty() ? m_workspace.Words(OwnText::UnnamedGroup) : qv::ToQString(group.name);
    AddTarget(name, group.place);
  }
}

void DeviceTreeEditor::AddTarget(const QString& name, const TreePlace& group) {
  const auto what = m_view.Selected();
  const auto stands = [&](const TreePlace& place) { return ParentOf(place) == group; };
  const QString margin(indentation * static_cast<qsizetype>(group.size()), QLatin1Char(' '));
  QAction* target = m_moveTo->addAction(margin + LiteralCaption(name), this,
                                        [this, what, group] { Move(what, group, {}); });
  target->setEnabled(CanMove(Groups(), what, group) &&
                     !std::all_of(what.begin(), what.end(), stands));
}

const XmlNode& DeviceTreeEditor::Groups() const {
  static const XmlNode none(qv::tag::DeviceGroups);
  const XmlNode* groups = std::as_const(m_workspace).Config().DeviceGroups();
  return groups ? *groups : none;
}

bool DeviceTreeEditor::IsSelectedGroup() const {
  const auto selected = m_view.Selected();
  return selected.size() == 1 && IsGroupPlace(Groups(), selected.front());
}

bool DeviceTreeEditor::CanMoveBy(int rows) const {
  const auto selected = m_view.Selected();
  if (selected.size() != 1) {
    return false;
  }
  const Siblings siblings = SiblingsOf(Groups(), selected.front());
  const int row = selected.front().back() + rows;
  return row >= siblings.first && row < siblings.first + siblings.count;
}

}  // namespace configurator
