#pragma once

#include <vector>

#include "calendar/CalendarMarks.h"
#include "discriminator/ColouredType.h"

namespace qv {

/// One line of what the colours of a year mean.
struct LegendEntry {
  Brush brush{};         ///< the eraser for the dates without a day type
  wchar_t sign = L'\0';  ///< that dates have besides their colour; none if 0
  int days = 0;          ///< of the year on show

  friend bool operator==(const LegendEntry&, const LegendEntry&) = default;
};

/// An entry for each of `rows`, in their order, and a last one for the dates of `year` without a
/// day type. If any two of the rows' colours look alike to someone, all rows have signs: the
/// first letter of their name, or else another of it, or any that is free. No sign is a letter that
/// looks like a digit (I, O) or is broad (M, W). Rows of one name and
/// colour are one brush, and have equal numbers of days.
std::vector<LegendEntry> LegendOf(const CalendarMarks& marks, const std::vector<ColouredType>& rows,
                                  int year);

}  // namespace qv
