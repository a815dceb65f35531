#include "calendar/CalendarForm.h"

#include "calendar/CalendarTree.h"
#include "discriminator/Fields.h"

namespace qv {

CalendarForm::CalendarForm(Calendar calendar, DayTypes dayTypes)
    : m_calendar(calendar),
      m_dayTypes(dayTypes),
      m_rows(SortedColouredTypes(&dayTypes.Node(), tag::Day)),
      m_marks(ReadCalendar(calendar, dayTypes, m_rows)) {}

Brush CalendarForm::BrushOfRow(std::optional<int> row) const {
  if (!row) {
    return {};
  }
  const ColouredType& type = m_rows.at(static_cast<std::size_t>(*row));
  return {type.colour, type.name};
}

void CalendarForm::SelectRow(std::optional<int> row) {
  m_selected = row;
  m_marks.SetBrush(BrushOfRow(row));
}

void CalendarForm::OnFastSelection(int year, const RunFastSelection& run) {
  const auto choice = run();
  if (!choice || choice->dayType < 0 || m_rows.empty()) {
    return;
  }
  m_marks.SetBrush(BrushOfRow(choice->dayType));
  m_marks.Apply(DatesOfFastSelection(year, choice->rule));
  m_marks.SetBrush(BrushOfRow(m_selected));
  m_modified = true;
}

SaveEnd CalendarForm::Save() {
  m_modified = true;
  WriteCalendar(m_marks, m_dayTypes, m_calendar);
  return {SaveOutcome::Saved, {}};
}

}  // namespace qv
