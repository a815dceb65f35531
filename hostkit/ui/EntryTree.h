#pragma once

#include <QTreeWidget>

namespace qv {

/// A tree with entries that are put into an expression: those of its items that can be dragged. A
/// double click or Return chooses one, and Return opens and closes the other items.
class EntryTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit EntryTree(QWidget* parent = nullptr);

  /// The format of what is dragged from such a tree: its entry's text in UTF-8. Elsewhere than in a
  /// wizard it is a plain text.
  static constexpr char Format[] = "application/x-expression-entry";

  /// Makes `item` the entry of `text`, a variable or a word of expressions.
  static void MakeEntry(QTreeWidgetItem& item, const QString& text);

 signals:
  /// The user wants the entry of this text in the expression.
  void Chosen(const QString& text);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QList<QTreeWidgetItem*>& items) const override;

 private:
  void Choose();
  QTreeWidgetItem* CurrentEntry() const;
};

}  // namespace qv
