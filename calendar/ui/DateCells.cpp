#include "calendar/ui/DateCells.h"

#include "calendar/YearDates.h"
#include "calendar/ui/YearView.h"

namespace qv {
namespace {

/// One cell of the year's table.
class DateCell : public QAccessibleInterface,
                 public QAccessibleTableCellInterface,
                 public QAccessibleActionInterface {
 public:
  DateCell(YearView& view, int index) : m_view(view), m_index(index) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return m_view.window()->windowHandle(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&m_view);
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::Cell; }
  void setText(QAccessible::Text /*type*/, const QString& /*text*/) override {}
  QString text(QAccessible::Text type) const override;
  QRect rect() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  bool isSelected() const override;
  QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  int columnIndex() const override { return m_index % daysOfWeek; }
  int rowIndex() const override { return m_index / daysOfWeek; }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  std::optional<CalendarDate> Date() const { return YearGrid(m_view.Year()).DateAt(m_index); }

  YearView& m_view;
  int m_index;
};

QString DateCell::text(QAccessible::Text type) const {
  const auto date = Date();
  return date && type == QAccessible::Name ? m_view.WordsOf(*date) : QString();
}

QRect DateCell::rect() const {
  const auto date = Date();
  const QRect cell = date ? m_view.CellOf(*date) : QRect();
  return cell.isEmpty() ? QRect() : QRect(m_view.mapToGlobal(cell.topLeft()), cell.size());
}

QAccessible::State DateCell::state() const {
  QAccessible::State state;
  const auto date = Date();
  if (!date) {
    state.disabled = true;
    state.invisible = true;
    return state;
  }
  state.focusable = true;
  state.selectable = true;
  state.multiSelectable = true;
  state.focused = m_view.hasFocus() && date == m_view.Gestures().Cursor().Date();
  state.selected = isSelected();
  state.offscreen = m_view.CellOf(*date).isEmpty();
  return state;
}

bool DateCell::isSelected() const {
  const auto date = Date();
  return date && m_view.Gestures().Cursor().IsSelected(*date);
}

void* DateCell::interface_cast(QAccessible::InterfaceType type) {
  switch (type) {
    case QAccessible::TableCellInterface:
      return static_cast<QAccessibleTableCellInterface*>(this);
    case QAccessible::ActionInterface:
      return static_cast<QAccessibleActionInterface*>(this);
    default:
      return nullptr;
  }
}

QStringList DateCell::actionNames() const {
  return Date() ? QStringList({pressAction(), setFocusAction()}) : QStringList();
}

void DateCell::doAction(const QString& name) {
  const auto date = Date();
  const bool marks = name == pressAction();
  if (date && (marks || name == setFocusAction())) {
    m_view.setFocus();
    m_view.Do([&](YearGestures& gestures) {
      gestures.Cursor().GoTo(*date);
      return marks && gestures.MarkSelected();
    });
  }
}

}  // namespace

YearGrid DateCells::Grid() const { return YearGrid(m_view.Year()); }

QAccessibleInterface* DateCells::At(int index) {
  if (index < 0 || index >= Count()) {
    return nullptr;
  }
  const auto made = m_made.find(index);
  if (made != m_made.end()) {
    return QAccessible::accessibleInterface(made->second);
  }
  auto* cell = new DateCell(m_view, index);
  m_made[index] = QAccessible::registerAccessibleInterface(cell);
  return cell;
}

int DateCells::IndexOf(const QAccessibleInterface* cell) const {
  for (const auto& [index, id] : m_made) {
    if (QAccessible::accessibleInterface(id) == cell) {
      return index;
    }
  }
  return -1;
}

QAccessibleInterface* DateCells::AtPlace(QPoint globalPlace) {
  const auto place = m_view.PlaceAt(m_view.mapFromGlobal(globalPlace));
  const auto* date = place ? std::get_if<CalendarDate>(&*place) : nullptr;
  return date ? At(Grid().CellOf(*date)) : nullptr;
}

QAccessibleInterface* DateCells::Focused() {
  return m_view.hasFocus() ? At(Grid().CellOf(m_view.Gestures().Cursor().Date())) : nullptr;
}

void DateCells::Forget() {
  for (const auto& [index, id] : m_made) {
    QAccessible::deleteAccessibleInterface(id);
  }
  m_made.clear();
}

}  // namespace qv
