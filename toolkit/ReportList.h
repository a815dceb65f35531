#pragma once

#include <QTreeWidget>
#include <functional>
#include <vector>

namespace qv {

/// A list in report form: rows of columns, no tree, full-row selection. It tells of keys and clicks
/// in the terms of the dialogs that use it, and leaves sorting, copying and column widths to them.
/// A text that its column cuts is shown whole in a tooltip. No row is current until the user, or
/// the program, makes one so: the first Down chooses the first row, and until then a ring around
/// all of it shows the focus.
class ReportList : public QTreeWidget {
  Q_OBJECT

 public:
  explicit ReportList(QWidget* parent = nullptr);

  /// The numbers of the selected rows, from the top.
  std::vector<int> SelectedRows() const;

  /// Says more in the tooltip of a row, below a text that is cut: what `hint` gives for the row's
  /// number, asked anew each time that the tooltip shows. Nothing for an empty text.
  void SetRowHint(std::function<QString(int row)> hint) { m_rowHint = std::move(hint); }

 signals:
  /// Delete, Insert, or a letter with Control was pressed; the list itself does nothing for it.
  void KeyDown(int key, bool control);
  /// The left button was double-clicked anywhere in the list, below the last row included.
  void DoubleClicked();
  /// The right button, or the menu key, asks for the context menu at this place of the screen.
  void MenuWanted(const QPoint& globalPosition);
  /// The room for the columns has a new width.
  void RoomChanged();

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  QString ToolTipOf(const QModelIndex& index) const;
  void ShowToolTip(const QHelpEvent& event);

  std::function<QString(int row)> m_rowHint;
};

}  // namespace qv
