#include "toolkit/RowDelegate.h"

#include <QPainter>
#include <QRegularExpression>

namespace qv {
namespace {

/// The icon as it is, also where the style would mix in the colour of the selection.
QIcon Untinted(const QIcon& icon, QSize size, double density) {
  const QPixmap pixmap = icon.pixmap(size, density);
  QIcon untinted(pixmap);
  untinted.addPixmap(pixmap, QIcon::Selected);
  return untinted;
}

}  // namespace

RowDelegate::RowDelegate(QAbstractItemView* view) : QStyledItemDelegate(view), m_view(*view) {
  // The view paints only the cell that was current anew, but the frame is around all of its row.
  connect(view->selectionModel(), &QItemSelectionModel::currentRowChanged, view->viewport(),
          qOverload<>(&QWidget::update));
}

QString RowDelegate::displayText(const QVariant& value, const QLocale& locale) const {
  static const QRegularExpression lineBreaks(QStringLiteral("[\\r\\n\\x{2028}\\x{2029}]+"));
  return QStyledItemDelegate::displayText(value, locale).replace(lineBreaks, QStringLiteral(" "));
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (!option->icon.isNull()) {
    option->icon = Untinted(option->icon, option->decorationSize, m_view.devicePixelRatioF());
  }
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  QStyleOptionViewItem cell(option);
  cell.state &= ~QStyle::State_HasFocus;
  QStyledItemDelegate::paint(painter, cell, index);
  if (IsInFocusedRow(index)) {
    DrawFocus(*painter, cell, index);
  }
}

bool RowDelegate::IsInFocusedRow(const QModelIndex& index) const {
  const QModelIndex current = m_view.currentIndex();
  return m_view.hasFocus() && current.isValid() && current.row() == index.row();
}

QRect RowDelegate::RowOf(const QModelIndex& index) const {
  QRect row;
  for (int column = 0; column < index.model()->columnCount(index.parent()); ++column) {
    row |= m_view.visualRect(index.siblingAtColumn(column));
  }
  return row;
}

void RowDelegate::DrawFocus(QPainter& painter, const QStyleOptionViewItem& cell,
                            const QModelIndex& index) const {
  QStyleOptionViewItem full(cell);
  initStyleOption(&full, index);
  const QStyle& style = *m_view.style();
  QRegion visible(cell.rect);
  if (!full.icon.isNull()) {
    visible -= style.subElementRect(QStyle::SE_ItemViewItemDecoration, &full, &m_view);
  }
  QStyleOptionFocusRect frame;
  frame.QStyleOption::operator=(full);
  frame.rect = RowOf(index);
  frame.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
  frame.backgroundColor = full.palette.color(
      full.state.testFlag(QStyle::State_Selected) ? QPalette::Highlight : QPalette::Window);
  painter.save();
  painter.setClipRegion(visible, Qt::IntersectClip);
  style.drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, &m_view);
  painter.restore();
}

}  // namespace qv
