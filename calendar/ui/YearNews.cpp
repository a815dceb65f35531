#include "calendar/ui/YearNews.h"

#include "calendar/YearGrid.h"
#include "calendar/ui/YearView.h"

namespace qv {
namespace {

YearListener listenerInstead = nullptr;

bool IsHeard() { return listenerInstead || QAccessible::isActive(); }

void Tell(QAccessibleEvent& event) {
  if (listenerInstead) {
    listenerInstead(event);
  } else {
    QAccessible::updateAccessibility(&event);
  }
}

void TellOf(YearView& view, CalendarDate date, QAccessible::Event what) {
  QAccessibleEvent event(&view, what);
  event.setChild(YearGrid(view.Year()).CellOf(date));
  Tell(event);
}

}  // namespace

void ListenInstead(YearListener listener) { listenerInstead = listener; }

void TellCursor(YearView& view) {
  const CalendarDate date = view.Gestures().Cursor().Date();
  if (IsHeard() && view.hasFocus() && date.year == view.Year()) {
    TellOf(view, date, QAccessible::Focus);
  }
}

void TellSelection(YearView& view) {
  QAccessibleEvent event(&view, QAccessible::SelectionWithin);
  Tell(event);
}

void TellMarks(YearView& view, const std::vector<CalendarDate>& dates) {
  if (!IsHeard()) {
    return;
  }
  constexpr std::size_t daysOfMonth = 31;
  if (dates.size() > daysOfMonth) {
    TellYear(view);
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
  Tell(event);
}

}  // namespace qv
