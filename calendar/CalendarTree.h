#pragma once

#include <array>
#include <functional>
#include <vector>

#include "calendar/CalendarMarks.h"
#include "discriminator/ColouredType.h"
#include "discriminator/Containers.h"

namespace qv {

/// The children of a node whose tags are a word and a number, as "month1" to "month12", by their
/// number. Of several with one tag it is the first, as for a path.
template <int last>
using NumberedChildren = std::array<const XmlNode*, last + 1>;

/// The months of a `year` node: null where there is none, and at 0.
NumberedChildren<12> MonthsOf(const XmlNode& year);
/// The days of a month's node, in the same way.
NumberedChildren<31> DaysOf(const XmlNode& month);

/// Calls `visit` for each date of `calendar`, in the order of the document, with the id that stands
/// there. Years are narrowed to 16 bits: 99999 is -31073. Dates that don't exist are passed over.
void ForEachDate(const XmlNode& calendar,
                 const std::function<void(CalendarDate date, const QVWideString& id)>& visit);

/// The marks of the dates in `calendar`, and the eraser as their brush. `rows` are the day types as
/// they are listed.
///
/// The id of a date leads to a day type, and its name to the first row that bears it, whose colour
/// is taken. Dates whose id or name leads nowhere stay without a mark.
CalendarMarks ReadCalendar(Calendar calendar, DayTypes dayTypes,
                           const std::vector<ColouredType>& rows);

/// Replaces the years of `calendar` by those of the marks.
///
/// Months are walked from that of the first mark on; the walk keeps the first mark's day of the
/// month and ends behind the last mark. So the last month is left out if the last mark has the
/// smaller day. Each year that is passed gets its node, also without a date; a month gets one with
/// its first date. The name of a mark leads to the first day type of the document that bears it; a
/// date whose name leads to none is left out.
void WriteCalendar(const CalendarMarks& marks, DayTypes dayTypes, Calendar calendar);

/// The dates with a mark that `WriteCalendar` leaves out because its walk ends before them.
std::vector<CalendarDate> DatesBeyondWalk(const CalendarMarks& marks);

}  // namespace qv
