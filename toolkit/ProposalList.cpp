#include "toolkit/ProposalList.h"

#include <QAccessible>
#include <QEvent>
#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

#include "toolkit/RowDelegate.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

constexpr int mostRows = 10;
constexpr int aroundText = 12;  ///< a column is so much wider than its texts

/// Whether the list must not stay after an event of the window that its edit is in.
bool EndsList(QEvent::Type type) {
  switch (type) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
    case QEvent::MouseButtonPress:
      return true;
    default:
      return false;
  }
}

/// `wanted` below `anchor`, or above it where that has more room, inside of `screen`.
QRect Placed(QSize wanted, const QRect& anchor, const QRect& screen) {
  const int below = screen.bottom() - anchor.bottom();
  const int above = anchor.top() - screen.top();
  const bool isBelow = wanted.height() <= below || below >= above;
  const QSize size = wanted.boundedTo({screen.width(), isBelow ? below : above});
  const int left = std::clamp(anchor.left(), screen.left(), screen.right() + 1 - size.width());
  return {{left, isBelow ? anchor.bottom() + 1 : anchor.top() - size.height()}, size};
}

}  // namespace

ProposalList::ProposalList(QWidget* owner) : QTreeWidget(owner), m_owner(*owner) {
  setWindowFlag(Qt::ToolTip);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setAttribute(Qt::WA_WindowPropagation);  // the owner's font and colours
  setFocusPolicy(Qt::NoFocus);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setColumnCount(2);
  setHeaderHidden(true);
  header()->setStretchLastSection(true);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  setItemDelegate(new RowDelegate(this));
  connect(this, &QTreeWidget::itemClicked, this,
          [this](QTreeWidgetItem* row) { emit Clicked(indexOfTopLevelItem(row)); });
}

void ProposalList::Open(const std::vector<ExpressionProposal>& proposals, const QRect& anchor) {
  Fill(proposals);
  Place(anchor);
  if (!isVisible()) {
    m_owner.window()->installEventFilter(this);
    show();
  }
  TellCurrent();
}

void ProposalList::Close() {
  if (isVisible()) {
    hide();
    // Assistive technology was led to the row, though the focus never left the edit.
    QAccessibleEvent back(&m_owner, QAccessible::Focus);
    QAccessible::updateAccessibility(&back);
  }
}

void ProposalList::Move(int rows) {
  const int row = std::clamp(Current() + rows, 0, topLevelItemCount() - 1);
  setCurrentItem(topLevelItem(row));
  TellCurrent();
}

int ProposalList::Current() const { return indexOfTopLevelItem(currentItem()); }

int ProposalList::RowsPerPage() const { return std::min(mostRows, topLevelItemCount()); }

bool ProposalList::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_owner.window() && EndsList(event->type())) {
    Close();
  }
  return QTreeWidget::eventFilter(watched, event);
}

void ProposalList::hideEvent(QHideEvent* event) {
  m_owner.window()->removeEventFilter(this);
  QTreeWidget::hideEvent(event);
}

void ProposalList::Fill(const std::vector<ExpressionProposal>& proposals) {
  QList<QTreeWidgetItem*> rows;
  const QBrush faint = palette().brush(QPalette::PlaceholderText);
  for (const auto& proposal : proposals) {
    rows.append(new QTreeWidgetItem({ToQString(proposal.text), ToQString(proposal.description)}));
    rows.back()->setForeground(1, faint);
  }
  clear();
  addTopLevelItems(rows);
  setCurrentItem(topLevelItem(0));
}

void ProposalList::Place(const QRect& anchor) {
  const QRect onScreen(m_owner.mapToGlobal(anchor.topLeft()), anchor.size());
  setGeometry(Placed(WantedSize(), onScreen, m_owner.screen()->availableGeometry()));
  const int room = viewport()->width();
  setColumnWidth(0, std::min(sizeHintForColumn(0) + aroundText, room));
}

QSize ProposalList::WantedSize() const {
  const int rows = topLevelItemCount();
  const int bar = rows > mostRows ? verticalScrollBar()->sizeHint().width() : 0;
  const int texts = sizeHintForColumn(0) + sizeHintForColumn(1) + 2 * aroundText;
  return QSize(texts + bar, RowsPerPage() * sizeHintForRow(0)) +
         QSize(2 * frameWidth(), 2 * frameWidth());
}

void ProposalList::TellCurrent() {
  if (QAccessible::isActive()) {
    QAccessibleInterface* rows = QAccessible::queryAccessibleInterface(this);
    QAccessibleEvent now(rows->tableInterface()->cellAt(Current(), 0), QAccessible::Focus);
    QAccessible::updateAccessibility(&now);
  }
}

}  // namespace qv
