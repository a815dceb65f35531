#pragma once

#include <QAccessible>
#include <vector>

#include "calendar/CalendarDate.h"

namespace qv {

class YearView;

// What assistive technology is told of a year, as far as there is any that listens.

/// Hears the news in place of assistive technology, which Qt alone finds out about: a test can't
/// make it listen. Null, as at first, for none.
using YearListener = void (*)(const QAccessibleEvent& event);
void ListenInstead(YearListener listener);

/// The cursor is on another date.
void TellCursor(YearView& view);
/// Another range is selected.
void TellSelection(YearView& view);
/// Dates of the year have other marks: each is told, or the year as a whole if they are more than
/// those of a month.
void TellMarks(YearView& view, const std::vector<CalendarDate>& dates);
/// Another year is on show, or the same one with other marks.
void TellYear(YearView& view);

}  // namespace qv
