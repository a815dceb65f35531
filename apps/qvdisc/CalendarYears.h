#pragma once

#include <string>
#include <vector>

#include "calendar/CalendarDate.h"
#include "tools/XmlNode.h"

namespace qvdisc {

/// The dates of one year with one day type.
struct TypedDates {
  std::wstring id;                       ///< as it stands in the calendar
  const qv::XmlNode* dayType = nullptr;  ///< null if there is none with this id
  std::vector<qv::CalendarDate> dates;   ///< in order, each once
};

/// A year of the calendar.
struct CalendarYear {
  int year = 0;
  std::vector<TypedDates> types;  ///< by their first dates

  int Dates() const;
};

/// What the calendar of the document with this root holds, as its dialog reads it: the years in
/// order, those without a date as well. Of two entries for a date the later counts, unless only the
/// earlier has a day type.
std::vector<CalendarYear> YearsOf(const qv::XmlNode& root);

}  // namespace qvdisc
