#include "apps/configurator/EntryCommands.h"

#include <QAction>
#include <QApplication>
#include <QItemSelectionModel>
#include <QMenu>
#include <algorithm>
#include <utility>

#include "apps/configurator/DeviceTreeView.h"
#include "apps/configurator/Strings.h"
#include "toolkit/Strings.h"

namespace configurator {

EntryCommands::EntryCommands(Workspace& workspace, DeviceTreeView& view, DeviceGroupsUndo& undo,
                             QObject* parent)
    : QObject(parent),
      m_workspace(workspace),
      m_view(view),
      m_undo(undo),
      m_takeOut(new QAction(this)),
      m_putIn(new QMenu) {
  // The key is that of the lines; the command for groups, which has it too, is disabled then.
  m_takeOut->setShortcut(Qt::Key_Delete);
  m_takeOut->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  m_view.addAction(m_takeOut);
  m_view.addAction(m_putIn->menuAction());
  connect(m_takeOut, &QAction::triggered, this, &EntryCommands::OnTakeOut);
  connect(m_putIn.get(), &QMenu::aboutToShow, this, &EntryCommands::FillPutIn);
  connect(m_view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &EntryCommands::ShowState);
  connect(&m_view.Lines(), &QAbstractItemModel::modelReset, this, &EntryCommands::FindMissing);
  // Other programs may have made or removed files while their user was there.
  connect(qApp, &QGuiApplication::applicationStateChanged, this, &EntryCommands::FindMissing);
  ShowState();
}

EntryCommands::~EntryCommands() = default;

void EntryCommands::AddTo(QMenu& menu) {
  menu.addAction(m_takeOut);
  menu.addAction(m_putIn->menuAction());
}

void EntryCommands::ShowTexts() {
  m_takeOut->setText(m_workspace.Words(OwnText::TakeOutEntry));
  m_putIn->setTitle(m_workspace.Words(OwnText::PutInMenu));
}

void EntryCommands::OnTakeOut() {
  m_undo.Apply(OwnText::EntriesTakenOut, [what = m_view.Selected()](qv::XmlNode& groups) {
    return RemoveEntries(groups, what);
  });
}

void EntryCommands::PutIn(const std::vector<std::wstring>& ids) {
  m_view.CommitName();
  m_undo.Apply(OwnText::EntriesPutIn, [&](qv::XmlNode& groups) {
    return AddEntries(groups, GroupFor(groups, m_view.Selected()), ids);
  });
}

void EntryCommands::FillPutIn() {
  FindMissing();
  m_putIn->clear();
  std::vector<std::wstring> all;
  for (const DiscriminatorOnDisk& missing : m_missing) {
    m_putIn->addAction(LiteralCaption(qv::ToQString(missing.name)), this,
                       [this, ids = std::vector{missing.id}] { PutIn(ids); });
    all.push_back(missing.id);
  }
  if (all.size() > 1) {
    m_putIn->addSeparator();
    m_putIn->addAction(m_workspace.Words(OwnText::PutInAll), this, [this, all] { PutIn(all); });
  }
}

void EntryCommands::FindMissing() {
  const qv::XmlNode* groups = std::as_const(m_workspace).Config().DeviceGroups();
  m_missing = DiscriminatorsWithoutEntry(DiscriminatorEntriesOf(groups),
                                         m_workspace.Services().Setup().CfgPath().ToView());
  ShowState();
}

void EntryCommands::ShowState() {
  const Places selected = m_view.Selected();
  const auto isBroken = [this](const TreePlace& place) { return m_view.IsBroken(place); };
  m_takeOut->setEnabled(!selected.empty() &&
                        std::all_of(selected.begin(), selected.end(), isBroken));
  m_putIn->menuAction()->setEnabled(!m_missing.empty());
}

}  // namespace configurator
