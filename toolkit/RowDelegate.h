#pragma once

#include <QAbstractItemView>
#include <QStyledItemDelegate>

namespace qv {

/// Draws the rows of a list or of a drop-down list. Icons keep their colours: neither a selection
/// tints them nor the frame of the current row, which goes around all columns. A text of several
/// lines shows in one.
class RowDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  /// `view`, which is to have its model already, becomes the parent; it must not draw a frame
  /// around its rows by itself.
  explicit RowDelegate(QAbstractItemView* view);

  QString displayText(const QVariant& value, const QLocale& locale) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  bool IsInFocusedRow(const QModelIndex& index) const;
  QRect RowOf(const QModelIndex& index) const;
  void DrawFocus(QPainter& painter, const QStyleOptionViewItem& cell,
                 const QModelIndex& index) const;

  QAbstractItemView& m_view;
};

}  // namespace qv
