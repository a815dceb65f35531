#include "toolkit/ReportList.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "toolkit/Caption.h"
#include "toolkit/RowDelegate.h"

namespace qv {
namespace {

bool IsForTheDialog(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Delete || event.key() == Qt::Key_Insert) {
    return true;
  }
  return event.modifiers().testFlag(Qt::ControlModifier) && event.key() >= Qt::Key_A &&
         event.key() <= Qt::Key_Z;
}

}  // namespace

ReportList::ReportList(QWidget* parent) : QTreeWidget(parent) {
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setItemDelegate(new RowDelegate(this));
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  header()->setStretchLastSection(false);
  header()->setSectionsMovable(false);
  header()->setMinimumSectionSize(0);
}

std::vector<int> ReportList::SelectedRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) {
    rows.push_back(index.row());
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

void ReportList::focusInEvent(QFocusEvent* event) {
  const bool hadCurrent = currentIndex().isValid();
  QTreeWidget::focusInEvent(event);
  if (!hadCurrent) {
    // By itself a view makes its first row current, which then looks chosen, and Down skips it.
    selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
  }
}

void ReportList::keyPressEvent(QKeyEvent* event) {
  if (!IsForTheDialog(*event)) {
    QTreeWidget::keyPressEvent(event);
    return;
  }
  event->accept();
  emit KeyDown(event->key(), event->modifiers().testFlag(Qt::ControlModifier));
}

void ReportList::mousePressEvent(QMouseEvent* event) {
  QTreeWidget::mousePressEvent(event);
  if (event->button() == Qt::LeftButton && !indexAt(event->position().toPoint()).isValid()) {
    // By itself a list of single selection keeps its row.
    clearSelection();
  }
}

void ReportList::mouseDoubleClickEvent(QMouseEvent* event) {
  QTreeWidget::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton) {
    emit DoubleClicked();
  }
}

void ReportList::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  emit MenuWanted(event->globalPos());
}

void ReportList::paintEvent(QPaintEvent* event) {
  QTreeWidget::paintEvent(event);
  if (hasFocus() && !currentIndex().isValid()) {
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
  }
}

void ReportList::resizeEvent(QResizeEvent* event) {
  QTreeWidget::resizeEvent(event);
  emit RoomChanged();
}

bool ReportList::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) {
    return QTreeWidget::viewportEvent(event);
  }
  ShowToolTip(static_cast<const QHelpEvent&>(*event));
  return true;
}

QString ReportList::ToolTipOf(const QModelIndex& index) const {
  if (!index.isValid()) {
    return {};
  }
  const bool isCut = sizeHintForIndex(index).width() > columnWidth(index.column());
  QStringList lines = {isCut ? index.data().toString() : QString(),
                       m_rowHint ? m_rowHint(index.row()) : QString()};
  lines.removeAll(QString());
  return lines.join(QLatin1Char('\n'));
}

void ReportList::ShowToolTip(const QHelpEvent& event) {
  const QModelIndex index = indexAt(event.pos());
  // An empty text hides the one before.
  QToolTip::showText(event.globalPos(), PlainToolTip(ToolTipOf(index)), viewport(),
                     visualRect(index));
}

}  // namespace qv
