#include "tests/support/ControlDriver.h"

#include <QApplication>
#include <QColorDialog>
#include <QTest>
#include <QWheelEvent>

#include "tests/support/ControlNumbers.h"

namespace qv {
namespace {

QPoint MiddleOf(const QTreeWidget& list, int row) {
  return list.visualItemRect(list.topLevelItem(row)).center();
}

QString RowText(const QTreeWidget& list, int row) {
  QStringList texts;
  for (int column = 0; column < list.columnCount(); ++column) {
    texts += list.topLevelItem(row)->text(column);
  }
  return texts.join(QLatin1Char(' '));
}

/// Expects a property of Qt's to be set in the first controls, and in the others not.
void ExpectThatAre(const char* property, std::initializer_list<int> are,
                   std::initializer_list<int> areNot) {
  for (const int id : are) {
    EXPECT_TRUE(TopControl(id)->property(property).toBool()) << property << " " << id;
  }
  for (const int id : areNot) {
    EXPECT_FALSE(TopControl(id)->property(property).toBool()) << property << " " << id;
  }
}

}  // namespace

QLineEdit* Edit(int id) { return TopControl<QLineEdit>(id); }
QComboBox* Combo(int id) { return TopControl<QComboBox>(id); }
QTreeWidget* List(int id) { return TopControl<QTreeWidget>(id); }

QString Caption(int id) {
  const QWidget* control = TopControl(id);
  const QVariant text = control->property("text");
  return (text.isValid() ? text : control->property("title")).toString();
}

void Type(int id, const QString& text) {
  QLineEdit* edit = Edit(id);
  edit->setFocus();
  edit->selectAll();
  QTest::keyClicks(edit, text);
}

QStringList Rows(int list) {
  QStringList rows;
  for (int row = 0; row < List(list)->topLevelItemCount(); ++row) {
    rows += RowText(*List(list), row);
  }
  return rows;
}

QStringList Names(int list) {
  QStringList names;
  for (int row = 0; row < List(list)->topLevelItemCount(); ++row) {
    names += List(list)->topLevelItem(row)->text(0);
  }
  return names;
}

std::vector<int> SelectedRows(int list) {
  std::vector<int> selected;
  for (int row = 0; row < List(list)->topLevelItemCount(); ++row) {
    if (List(list)->topLevelItem(row)->isSelected()) {
      selected.push_back(row);
    }
  }
  return selected;
}

void ClickRow(int list, int row, Qt::KeyboardModifiers modifiers) {
  QTest::mouseClick(List(list)->viewport(), Qt::LeftButton, modifiers, MiddleOf(*List(list), row));
}

void DoubleClickRow(int list, int row) {
  QTest::mouseDClick(List(list)->viewport(), Qt::LeftButton, {}, MiddleOf(*List(list), row));
}

void DoubleClickBelowRows(int list) {
  const QPoint below = List(list)->viewport()->rect().bottomLeft() - QPoint(-5, 5);
  QTest::mouseDClick(List(list)->viewport(), Qt::LeftButton, {}, below);
}

void Press(int id, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(TopControl(id), key, modifiers);
}

void TurnWheel(int id, int eighths) {
  QWidget* control = TopControl(id);
  const QPointF centre = control->rect().center();
  QWheelEvent wheel(centre, control->mapToGlobal(centre), {}, QPoint(0, eighths), Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(control, &wheel);
}

void ChooseNextColour(const QColor& colour, Qt::Key leaveBy) {
  WhenNextWindow([=] {
    auto* dialog = qobject_cast<QColorDialog*>(TopWindow());
    ASSERT_TRUE(dialog);
    dialog->setCurrentColor(colour);
    QTest::keyClick(dialog, leaveBy);
  });
}

void ExpectEnabled(std::initializer_list<int> enabled, std::initializer_list<int> disabled) {
  ExpectThatAre("enabled", enabled, disabled);
}

void ExpectNoneSelected() { ExpectEnabled({addButton}, {modifyButton, removeButton}); }

void ExpectOneSelected() { ExpectEnabled({addButton, modifyButton, removeButton}, {}); }

void ExpectSeveralSelected() { ExpectEnabled({addButton, removeButton}, {modifyButton}); }

void ExpectVisible(std::initializer_list<int> visible, std::initializer_list<int> hidden) {
  ExpectThatAre("visible", visible, hidden);
}

}  // namespace qv
