#pragma once

#include <QAccessible>
#include <QPoint>
#include <map>

#include "calendar/YearGrid.h"

namespace qv {

class YearView;

/// The dates of a year as assistive technology meets them, each made when it is first asked for.
/// Its cells go with it.
class DateCells {
 public:
  explicit DateCells(YearView& view) : m_view(view) {}
  DateCells(const DateCells&) = delete;
  DateCells& operator=(const DateCells&) = delete;
  ~DateCells() { Forget(); }

  YearGrid Grid() const;
  int Count() const { return Grid().Cells(); }
  /// The cell of an index of the grid, which may be an empty one; null outside of it.
  QAccessibleInterface* At(int index);
  /// -1 for what isn't one of the cells.
  int IndexOf(const QAccessibleInterface* cell) const;
  /// The date at a place of the screen, or null.
  QAccessibleInterface* AtPlace(QPoint globalPlace);
  /// The date of the cursor, if the year has the keyboard.
  QAccessibleInterface* Focused();
  /// Takes all cells back, since another year has others.
  void Forget();

 private:
  YearView& m_view;
  std::map<int, QAccessible::Id> m_made;
};

}  // namespace qv
