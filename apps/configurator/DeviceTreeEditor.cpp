#include "apps/configurator/DeviceTreeEditor.h"

#include <QAction>
#include <QItemSelectionModel>
#include <QKeySequence>
#include <QMenu>
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
constexpr int indentation = 4;

}  // namespace

DeviceTreeEditor::DeviceTreeEditor(Workspace& workspace, DeviceTreeView& view, QObject* parent)
    : QObject(parent),
      m_workspace(workspace),
      m_view(view),
      m_undo(workspace, view, this),
      m_entries(workspace, view, m_undo, this),
      m_moveTo(new QMenu) {
  connect(&m_undo, &DeviceGroupsUndo::Changed, this, &DeviceTreeEditor::Changed);
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

DeviceTreeEditor::~DeviceTreeEditor() = default;

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
  m_undo.AddTo(menu);
  menu.addSeparator();
  for (const auto& [command, text] : m_commands) {
    menu.addAction(command);
  }
  menu.addSeparator();
  m_entries.AddTo(menu);
}

void DeviceTreeEditor::ShowTexts() {
  for (const auto& [command, text] : m_commands) {
    command->setText(m_workspace.Words(text));
  }
  m_undo.ShowTexts();
  m_entries.ShowTexts();
}

void DeviceTreeEditor::OnNewGroup() {
  std::optional<TreePlace> made;
  m_undo.Apply(OwnText::GroupMade, [&](XmlNode& groups) {
    const auto name = m_workspace.Words(OwnText::NewGroupName).toStdWString();
    made = AddGroup(groups, GroupFor(groups, m_view.Selected()), name);
    return made ? Places{*made} : Places();
  });
  if (made) {
    m_view.EditName(*made);
  }
}

void DeviceTreeEditor::OnRename() { m_view.EditName(m_view.Selected().front()); }

void DeviceTreeEditor::OnRemove() {
  m_undo.Apply(OwnText::GroupRemoved, [place = m_view.Selected().front()](XmlNode& groups) {
    return RemoveGroup(groups, place) ? Places{place} : Places();
  });
}

void DeviceTreeEditor::OnUp() { MoveBy(-1); }
void DeviceTreeEditor::OnDown() { MoveBy(1); }

void DeviceTreeEditor::Rename(const TreePlace& place, const QString& name) {
  const std::wstring wide = name.trimmed().toStdWString();
  if (!wide.empty() && qv::IsXmlText(wide)) {
    m_undo.Apply(OwnText::GroupRenamed, [&](XmlNode& groups) {
      return RenameGroup(groups, place, wide) ? Places{place} : Places();
    });
  }
}

void DeviceTreeEditor::Move(const Places& what, const TreePlace& group, std::optional<int> row) {
  m_undo.Apply(OwnText::LinesMoved,
               [&](XmlNode& groups) { return MoveLines(groups, what, group, row); });
}

void DeviceTreeEditor::MoveBy(int rows) {
  const TreePlace place = m_view.Selected().front();
  Move({place}, ParentOf(place), place.back() + (rows < 0 ? rows : rows + 1));
}

void DeviceTreeEditor::ShowState() {
  m_newGroup->setEnabled(GroupFor(Groups(), m_view.Selected()).size() < maxGroupDepth);
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
