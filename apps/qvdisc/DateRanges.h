#pragma once

#include <string>
#include <vector>

#include "calendar/CalendarDate.h"
#include "hostkit/Language.h"

namespace qvdisc {

/// Dates that follow each other, both ends included.
struct DateRange {
  qv::CalendarDate from;
  qv::CalendarDate to;

  friend bool operator==(const DateRange&, const DateRange&) = default;
};

/// The date as calls write it, "2026-01-06".
std::wstring DateText(qv::CalendarDate date);

/// All dates of a range, in order.
std::vector<qv::CalendarDate> DatesOf(const DateRange& range);

/// The fewest ranges that the dates make, which are sorted and there once each.
std::vector<DateRange> RangesOf(const std::vector<qv::CalendarDate>& dates);

/// The dates on one line for people, as "2026-03-01 to 2026-03-10, 2026-05-01".
std::wstring RangesAsText(const std::vector<qv::CalendarDate>& dates, qv::Language language);

}  // namespace qvdisc
