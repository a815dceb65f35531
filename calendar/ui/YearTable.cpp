#include "calendar/ui/YearTable.h"

#include <QAccessibleWidget>

#include "calendar/ui/DateCells.h"
#include "calendar/ui/WeekRows.h"
#include "calendar/ui/YearView.h"

namespace qv {
namespace {

/// A year for assistive technology: its cells are its children, its description the cursor's date.
class YearTable : public QAccessibleWidget {
 public:
  explicit YearTable(YearView& view)
      : QAccessibleWidget(&view, QAccessible::Table),
        m_view(view),
        m_cells(view),
        m_rows(view, m_cells) {}

  QString text(QAccessible::Text type) const override {
    return type == QAccessible::Description ? m_view.WordsOf(m_view.Gestures().Cursor().Date())
                                            : QAccessibleWidget::text(type);
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(&m_rows)
                                               : QAccessibleWidget::interface_cast(type);
  }

  int childCount() const override { return m_cells.Count(); }
  QAccessibleInterface* child(int index) const override { return m_cells.At(index); }
  int indexOfChild(const QAccessibleInterface* cell) const override {
    return m_cells.IndexOf(cell);
  }
  QAccessibleInterface* childAt(int x, int y) const override { return m_cells.AtPlace({x, y}); }
  QAccessibleInterface* focusChild() const override { return m_cells.Focused(); }

 private:
  YearView& m_view;
  mutable DateCells m_cells;
  WeekRows m_rows;
};

QAccessibleInterface* MakeYearTable(const QString& /*className*/, QObject* object) {
  auto* view = qobject_cast<YearView*>(object);
  return view ? new YearTable(*view) : nullptr;
}

int offers = 0;

}  // namespace

YearTableOffer::YearTableOffer() {
  if (offers++ == 0) {
    QAccessible::installFactory(MakeYearTable);
  }
}

YearTableOffer::~YearTableOffer() {
  if (--offers == 0) {
    QAccessible::removeFactory(MakeYearTable);
  }
}

}  // namespace qv
