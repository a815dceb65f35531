#pragma once

#include <QTreeWidget>

namespace qv {

/// A tree with entries that are put into an expression: those of its items that can be dragged. A
/// double click or Return chooses one, and Return opens and closes the other items.
class EntryTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit EntryTree(QWidget* parent = nullptr);

  /// Makes `item` an entry, of which `text` is what other programs get when it is dragged there.
  static void MakeEntry(QTreeWidgetItem& item, const QString& text);

  /// The current entry, or null.
  QTreeWidgetItem* CurrentEntry() const;

  /// The text of an entry.
  static QString TextOf(const QTreeWidgetItem& entry);

 signals:
  /// The user wants this entry in the expression.
  void Chosen(QTreeWidgetItem* entry);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QList<QTreeWidgetItem*>& items) const override;

 private:
  void Choose();
};

}  // namespace qv
