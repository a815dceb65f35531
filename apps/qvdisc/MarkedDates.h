#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <vector>

#include "calendar/CalendarDate.h"
#include "hostkit/Language.h"

namespace qvdisc {

/// What became of the dates of a calendar when a call marked some of them.
struct MarkedDates {
  std::optional<std::wstring> dayType;  ///< its name; nothing if the dates were left without one
  int dates = 0;                        ///< how many, without those that were left out
  std::vector<qv::CalendarDate> beyondWalk;   ///< lost, because the walk ends before them
  std::vector<qv::CalendarDate> withoutType;  ///< fallen away, since their day type is no more
};

/// As a JSON object.
nlohmann::ordered_json MarkedAsJson(const MarkedDates& marked);

/// What was done, in a line for people.
std::wstring MarkedAsLine(const MarkedDates& marked, qv::Language language);

}  // namespace qvdisc
