#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "calendar/CalendarMarks.h"
#include "calendar/YearGeometry.h"
#include "calendar/YearLegend.h"
#include "tools/Canvas.h"
#include "tools/Density.h"

namespace qv {

/// The texts and colours of a year's picture.
struct YearStyle {
  std::array<QVWideString, 12> monthNames{};
  std::array<QVWideString, 7> weekdayNames{};  ///< from Monday on
  Colour ground = 0xF0F0F0;                    ///< of the control, already painted all over
  Colour paper = 0xFFFFFF;                     ///< of a weekday without a mark
  Colour ink = 0;                              ///< of texts on ground and paper
  Colour highlight = 0xD77800;                 ///< of dates that are selected
  Density density{};
};

/// What is seen of a year beyond where its dates stand.
struct YearLook {
  const CalendarMarks& marks;
  YearStyle style{};
  std::vector<LegendEntry> legend{};  ///< where the brushes' signs are taken from
  std::optional<CalendarDate> today{};
  std::optional<CalendarDate> focused{};
  std::vector<CalendarDate> preview{};   ///< sorted: dates that are shown as if they were marked
  Brush previewBrush{};                  ///< with this brush
  std::vector<CalendarDate> selected{};  ///< sorted
};

/// Paints the months on show. A date has the colour of its mark, the brush's sign, and its number
/// in the ink that is legible on it. A name that is wider than its place is cut.
void PaintYear(Canvas& canvas, const YearGeometry& year, const YearLook& look);

/// Paints these dates again, their ground included, over a picture that is there; those that
/// aren't on show are passed over.
void PaintDates(Canvas& canvas, const YearGeometry& year, const YearLook& look,
                std::span<const CalendarDate> dates);

}  // namespace qv
