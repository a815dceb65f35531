#include "calendar/ui/YearNews.h"

#include <QAccessible>

#include "calendar/YearGrid.h"
#include "calendar/ui/YearView.h"

namespace qv {
namespace {

void TellOf(YearView& view, CalendarDate date, QAccessible::Event what) {
  QAccessibleEvent event(&view, what);
  event.setChild(YearGrid(view.Year()).CellOf(date));
  QAccessible::updateAccessibility(&event);
}

}  // namespace

void TellCursor(YearView& view) {
  const CalendarDate date = view.Gestures().Cursor().Date();
  if (QAccessible::isActive() && view.hasFocus() && date.year == view.Year()) {
    TellOf(view, date, QAccessible::Focus);
  }
}

void TellSelection(YearView& view) {
  QAccessibleEvent event(&view, QAccessible::SelectionWithin);
  QAccessible::updateAccessibility(&event);
}

void TellMarks(YearView& view, const std::vector<CalendarDate>& dates) {
  if (!QAccessible::isActive()) {
    return;
  }
  for (const CalendarDate date : dates) {
    if (date.year == view.Year()) {
      TellOf(view, date, QAccessible::NameChanged);
    }
  }
}

void TellYear(YearView& view) {
  QAccessibleTableModelChangeEvent event(&view, QAccessibleTableModelChangeEvent::ModelReset);
  QAccessible::updateAccessibility(&event);
}

}  // namespace qv
