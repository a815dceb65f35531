#pragma once

#include <array>

#include "calendar/CalendarMarks.h"
#include "calendar/YearGeometry.h"
#include "tools/Canvas.h"

namespace qv {

/// The texts and colours of a year's picture.
struct YearStyle {
  std::array<QVWideString, 12> monthNames{};
  std::array<QVWideString, 7> weekdayNames{};  ///< from Monday on
  Colour paper = 0xFFFFFF;                     ///< ground of a date without a mark
  Colour ink = 0;                              ///< of texts on the ground
  Colour faintInk = 0x808080;                  ///< of weekdays, and of lines between dates
};

/// Paints the months of a year, in the units of the geometry. A marked date has the colour of its
/// mark, and its number the ink that is legible on it. A name that is wider than its place is cut.
void PaintYear(Canvas& canvas, const YearGeometry& year, const CalendarMarks& marks,
               const YearStyle& style);

}  // namespace qv
