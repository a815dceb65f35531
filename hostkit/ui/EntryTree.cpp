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

QString TextOf(const QTreeWidgetItem& entry) { return entry.data(0, textRole).toString(); }

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

QStringList EntryTree::mimeTypes() const {
  return {QString::fromLatin1(Format), QStringLiteral("text/plain")};
}

QMimeData* EntryTree::mimeData(const QList<QTreeWidgetItem*>& items) const {
  auto* dragged = new QMimeData;
  const QString text = items.isEmpty() ? QString() : TextOf(*items.front());
  dragged->setText(text);
  dragged->setData(QString::fromLatin1(Format), text.toUtf8());
  return dragged;
}

void EntryTree::Choose() { emit Chosen(TextOf(*currentItem())); }

/// The current item if it is an entry, else null.
QTreeWidgetItem* EntryTree::CurrentEntry() const {
  QTreeWidgetItem* item = currentItem();
  return item && item->flags().testFlag(Qt::ItemIsDragEnabled) ? item : nullptr;
}

}  // namespace qv
