#include "apps/configurator/DeviceTreeView.h"

#include <QHash>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

#include "apps/configurator/Strings.h"
#include "toolkit/Strings.h"

namespace configurator {
namespace {

/// What tells a line from all others after a refresh: from the top down to it the names, each with
/// a number that tells it from others of that name beside it.
constexpr int keyRole = Qt::UserRole;

constexpr int discriminatorRole = Qt::UserRole + 2;
constexpr int brokenRole = Qt::UserRole + 3;

constexpr int gapBetweenColumns = 24;

void ForEachLine(const QAbstractItemModel& model, const QModelIndex& parent,
                 const std::function<void(const QModelIndex&)>& visit) {
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex line = model.index(row, 0, parent);
    visit(line);
    ForEachLine(model, line, visit);
  }
}

bool IsDiscriminator(const QModelIndex& index) {
  return index.siblingAtColumn(0).data(discriminatorRole).toBool();
}

QStandardItem* Cell(const QString& text) {
  auto* cell = new QStandardItem(text);
  cell->setEditable(false);
  cell->setToolTip(PlainTooltip(text));
  return cell;
}

}  // namespace

DeviceTreeView::DeviceTreeView(QIcon discriminatorIcon, QWidget* parent)
    : QTreeView(parent),
      m_model(new DeviceTreeModel(this)),
      m_discriminatorIcon(std::move(discriminatorIcon)) {
  setModel(m_model);
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
  setSelectionMode(ExtendedSelection);
  // A second click expands; names are typed after their command or its key.
  setEditTriggers(NoEditTriggers);
  setDragDropMode(DragDrop);
  setDefaultDropAction(Qt::MoveAction);
}

std::vector<TreePlace> DeviceTreeView::Selected() const {
  std::vector<TreePlace> places;
  const auto lines = selectionModel()->selectedRows();
  std::transform(lines.begin(), lines.end(), std::back_inserter(places), PlaceOf);
  std::sort(places.begin(), places.end());
  return places;
}

void DeviceTreeView::Select(const std::vector<TreePlace>& places) {
  QItemSelection lines;
  for (const TreePlace& place : places) {
    const QModelIndex line = IndexOf(place);
    if (line.isValid()) {
      lines.select(line, line);
    }
  }
  if (!lines.isEmpty()) {
    setCurrentIndex(lines.first().topLeft());
    selectionModel()->select(lines,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
}

void DeviceTreeView::EditName(const TreePlace& place) { edit(IndexOf(place)); }

void DeviceTreeView::CommitName() {
  // Editors that were closed before this one may still wait for their end.
  const auto editors = viewport()->findChildren<QLineEdit*>();
  if (state() == EditingState && !editors.isEmpty()) {
    commitData(editors.last());
    closeEditor(editors.last(), QAbstractItemDelegate::NoHint);
    m_model->TellNow();
  }
}

bool DeviceTreeView::IsBroken(const TreePlace& place) const {
  return IndexOf(place).data(brokenRole).toBool();
}

void DeviceTreeView::keyPressEvent(QKeyEvent* event) {
  QTreeView::keyPressEvent(event);
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReturn && IsDiscriminator(currentIndex())) {
    emit DiscriminatorActivated();
  }
}

void DeviceTreeView::mouseDoubleClickEvent(QMouseEvent* event) {
  QTreeView::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton && IsDiscriminator(indexAt(event->position().toPoint()))) {
    emit DiscriminatorActivated();
  }
}

QModelIndex DeviceTreeView::IndexOf(const TreePlace& place) const {
  QModelIndex index;
  for (const int row : place) {
    index = m_model->index(row, 0, index);
    if (!index.isValid()) {
      break;
    }
  }
  return index;
}

/// Which lines were collapsed, selected and current, by their keys.
struct DeviceTreeView::Shown {
  QSet<QString> collapsed;
  QSet<QString> selected;
  QString current;
};

void DeviceTreeView::Show(const std::vector<DeviceTreeItem>& items, qv::Language language) {
  const Shown shown = Remembered();
  m_language = language;
  m_model->clear();
  SetTexts(language);
  AddItems(m_model->invisibleRootItem(), items);
  Restore(shown);
  resizeColumnToContents(0);
  setColumnWidth(0, columnWidth(0) + gapBetweenColumns);
}

DeviceTreeView::Shown DeviceTreeView::Remembered() const {
  Shown shown;
  shown.current = currentIndex().siblingAtColumn(0).data(keyRole).toString();
  ForEachLine(*m_model, {}, [&](const QModelIndex& line) {
    const QString key = line.data(keyRole).toString();
    if (m_model->hasChildren(line) && !isExpanded(line)) {
      shown.collapsed.insert(key);
    }
    if (selectionModel()->isSelected(line)) {
      shown.selected.insert(key);
    }
  });
  return shown;
}

void DeviceTreeView::SetTexts(qv::Language language) {
  setAccessibleName(Words(OwnText::Tree, language));
  setAccessibleDescription(Words(OwnText::TreeHint, language));
  m_model->setHorizontalHeaderLabels(
      {Words(OwnText::Tree, language), Words(OwnText::TreeType, language)});
}

void DeviceTreeView::AddItems(QStandardItem* parent, const std::vector<DeviceTreeItem>& items) {
  const QString above = parent->data(keyRole).toString();
  QHash<QString, int> sameName;
  for (const DeviceTreeItem& item : items) {
    const QString name = NameText(item);
    const auto line =
        Line(item, above + QStringLiteral("\n%1\t%2").arg(++sameName[name]).arg(name));
    parent->appendRow(line);
    AddItems(line.front(), item.below);
  }
}

QList<QStandardItem*> DeviceTreeView::Line(const DeviceTreeItem& item, const QString& key) const {
  QStandardItem* name = Cell(NameText(item));
  QStandardItem* type = Cell(TypeText(item));
  const bool isGroup = item.kind == DeviceTreeItem::Kind::Group;
  name->setIcon(IconOf(item));
  name->setData(key, keyRole);
  name->setData(qv::ToQString(item.name), DeviceTreeModel::nameRole);
  name->setData(item.kind == DeviceTreeItem::Kind::Discriminator, discriminatorRole);
  name->setData(item.IsBroken(), brokenRole);
  name->setEditable(isGroup);
  name->setDropEnabled(isGroup);
  type->setDropEnabled(false);
  return {name, type};
}

QString DeviceTreeView::NameText(const DeviceTreeItem& item) const {
  if (!item.name.empty()) {
    return qv::ToQString(item.name);
  }
  if (item.kind == DeviceTreeItem::Kind::Group) {
    return Words(OwnText::UnnamedGroup, m_language);
  }
  return item.id.empty() ? Words(OwnText::UnnamedDevice, m_language) : qv::ToQString(item.id);
}

QString DeviceTreeView::TypeText(const DeviceTreeItem& item) const {
  QString type = qv::ToQString(item.type);
  if (!item.IsBroken()) {
    return type;
  }
  const OwnText hint = item.kind == DeviceTreeItem::Kind::Device ? OwnText::DeviceNotFound
                                                                 : OwnText::DiscriminatorNotFound;
  return QStringLiteral("%1 (%2)").arg(type, Words(hint, m_language));
}

QIcon DeviceTreeView::IconOf(const DeviceTreeItem& item) const {
  if (item.kind == DeviceTreeItem::Kind::Group) {
    return style()->standardIcon(QStyle::SP_DirIcon);
  }
  if (item.IsBroken()) {
    return style()->standardIcon(QStyle::SP_MessageBoxWarning);
  }
  return item.kind == DeviceTreeItem::Kind::Discriminator
             ? m_discriminatorIcon
             : style()->standardIcon(QStyle::SP_ComputerIcon);
}

void DeviceTreeView::Restore(const Shown& shown) {
  expandAll();
  setCurrentIndex(m_model->index(0, 0));
  ForEachLine(*m_model, {}, [&](const QModelIndex& line) {
    const QString key = line.data(keyRole).toString();
    setExpanded(line, !shown.collapsed.contains(key));
    if (key == shown.current) {
      setCurrentIndex(line);
    }
  });
  ForEachLine(*m_model, {}, [&](const QModelIndex& line) {
    if (shown.selected.contains(line.data(keyRole).toString())) {
      selectionModel()->select(line, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
  });
}

}  // namespace configurator
