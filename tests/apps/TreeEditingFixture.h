#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTest>
#include <memory>

#include "apps/configurator/DeviceTreeModel.h"
#include "apps/configurator/DeviceTreeView.h"
#include "tests/apps/MainWindowFixture.h"

namespace configurator {

/// The main window with its tree of device groups, as a user works on it.
class TreeEditingTest : public MainWindowTest {
 protected:
  TreeEditingTest() : view(*window->findChild<DeviceTreeView*>()) { view.setFocus(); }

  /// All lines, in order, with a dot before each for each level.
  QStringList Lines() const {
    QStringList lines;
    AddLines({}, QString(), lines);
    return lines;
  }

  void AddLines(const QModelIndex& parent, const QString& margin, QStringList& lines) const {
    for (int row = 0; row < view.model()->rowCount(parent); ++row) {
      const QModelIndex line = view.model()->index(row, 0, parent);
      lines += margin + line.data().toString();
      AddLines(line, margin + '.', lines);
    }
  }

  QString SelectedText() const {
    QStringList texts;
    for (const QModelIndex& line : view.selectionModel()->selectedRows()) {
      texts += line.data().toString();
    }
    return texts.join('|');
  }

  QAction* Command(const QString& text) const {
    for (const QAction* menu : window->menuBar()->actions()) {
      for (QAction* action : menu->menu()->actions()) {
        if (action->text().remove('&') == text) {
          return action;
        }
      }
    }
    ADD_FAILURE() << qPrintable(text);
    return nullptr;
  }

  /// Types into the name that is being edited.
  void TypeName(const QString& name, Qt::Key end = Qt::Key_Return) {
    const auto edits = view.findChildren<QLineEdit*>();
    ASSERT_FALSE(edits.isEmpty());
    auto* edit = edits.last();  // those before it wait for their end
    edit->selectAll();
    QTest::keyClicks(edit, name);
    QTest::keyClick(edit, end);
    qv::Settle();
  }

  void Undo() { QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier); }
  void Redo() { QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

  /// Drops what is selected at a point of the view, as the view's own drag does.
  bool DropAt(const QPoint& point) {
    const std::unique_ptr<QMimeData> lines(
        view.model()->mimeData(view.selectionModel()->selectedIndexes()));
    QDragEnterEvent enter(point, Qt::MoveAction, lines.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &enter);
    QDragMoveEvent move(point, Qt::MoveAction, lines.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &move);
    const bool welcome = move.isAccepted();
    QDropEvent drop(point, Qt::MoveAction, lines.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &drop);
    EXPECT_FALSE(drop.isAccepted()) << "the view would remove the lines itself";
    qv::Settle();
    return welcome;
  }

  QPoint Middle(const TreePlace& place) const { return RectOf(place).center(); }
  QPoint UpperEdge(const TreePlace& place) const {
    const QRect line = RectOf(place);
    return {line.center().x(), line.top() + 1};
  }

  QRect RectOf(const TreePlace& place) const {
    QModelIndex index;
    for (const int row : place) {
      index = view.model()->index(row, 0, index);
    }
    return view.visualRect(index);
  }

  DeviceTreeView& view;
  const QStringList before = Lines();
};

}  // namespace configurator
