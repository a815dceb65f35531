#include "hostkit/ui/EntryTree.h"

#include <QKeyEvent>
#include <QMimeData>

#include "toolkit/RowDelegate.h"

namespace qv {
namespace {

constexpr int textRole = Qt::UserRole;

bool IsReturn(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

}  // namespace

EntryTree::EntryTree(QWidget* parent) : QTreeWidget(parent) {
  setAllColumnsShowFocus(true);
  setUniformRowHeights(true);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setDragDropMode(QAbstractItemView::DragOnly);
  setExpandsOnDoubleClick(true);
  setItemDelegate(new RowDelegate(this));
}

void EntryTree::MakeEntry(QTreeWidgetItem& item, const QString& text) {
  item.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
                Qt::ItemNeverHasChildren);
  item.setData(0, textRole, text);
}

QTreeWidgetItem* EntryTree::CurrentEntry() const {
  QTreeWidgetItem* item = currentItem();
  return item && item->flags().testFlag(Qt::ItemIsDragEnabled) ? item : nullptr;
}

QString EntryTree::TextOf(const QTreeWidgetItem& entry) {
  return entry.data(0, textRole).toString();
}

void EntryTree::keyPressEvent(QKeyEvent* event) {
  if (!IsReturn(*event)) {
    QTreeWidget::keyPressEvent(event);
  } else if (CurrentEntry()) {
    Choose();
  } else if (currentItem()) {
    currentItem()->setExpanded(!currentItem()->isExpanded());
  }
}

void EntryTree::mouseDoubleClickEvent(QMouseEvent* event) {
  QTreeWidget::mouseDoubleClickEvent(event);
  const bool isOnCurrent = itemAt(event->position().toPoint()) == currentItem();
  if (event->button() == Qt::LeftButton && isOnCurrent && CurrentEntry()) {
    Choose();
  }
}

QStringList EntryTree::mimeTypes() const { return {QStringLiteral("text/plain")}; }

QMimeData* EntryTree::mimeData(const QList<QTreeWidgetItem*>& items) const {
  auto* data = new QMimeData;
  data->setText(items.isEmpty() ? QString() : TextOf(*items.front()));
  return data;
}

void EntryTree::Choose() { emit Chosen(currentItem()); }

}  // namespace qv
