#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "calendar/CalendarMarks.h"
#include "calendar/FastSelection.h"
#include "discriminator/ColouredType.h"
#include "discriminator/Containers.h"
#include "host/SaveEnd.h"

namespace qv {

/// What the user of the fast selection chose.
struct FastSelectionChoice {
  int dayType = -1;  ///< index among the day types on offer
  FastSelection rule{};
};

/// The calendar of a discriminator while its dates are given day types.
class CalendarForm {
 public:
  /// What the fast selection gives, or nothing if it was left without a choice.
  using RunFastSelection = std::function<std::optional<FastSelectionChoice>()>;

  /// Both nodes outlive the form; `dayTypes` is only read.
  CalendarForm(Calendar calendar, DayTypes dayTypes);

  /// The day types as they are listed, sorted by name.
  const std::vector<ColouredType>& Rows() const { return m_rows; }

  /// The marks of the dates, which the calendar shows and the user changes there.
  CalendarMarks& Marks() { return m_marks; }

  /// Makes the row's day type the brush; without a row the brush erases.
  void SelectRow(std::optional<int> row);

  /// Asks for a rule by `run` and marks the dates of `year` that match it, as one step that can be
  /// undone; the brush is the selected row's again afterwards. It counts as a change also if no
  /// date matches. Without a choice, or without day types, nothing happens.
  void OnFastSelection(int year, const RunFastSelection& run);

  /// Writes the marks to the calendar, which always counts as a change. Dates that the walk over
  /// the months doesn't reach are left out, and those of a name that no path can hold.
  SaveEnd Save();

  /// Whether a fast selection was confirmed or the calendar was saved; never cleared.
  bool IsModified() const { return m_modified; }

 private:
  Brush BrushOfRow(std::optional<int> row) const;

  Calendar m_calendar;
  DayTypes m_dayTypes;
  std::vector<ColouredType> m_rows;
  CalendarMarks m_marks;
  std::optional<int> m_selected;
  bool m_modified = false;
};

}  // namespace qv
