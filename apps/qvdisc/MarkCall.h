#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calendar/CalendarDate.h"

namespace qvdisc {

/// Which dates of the calendar a call gives a day type, or takes it from.
struct MarkCall {
  std::vector<qv::CalendarDate> dates;  ///< in order, each once
  std::optional<std::wstring> dayType;  ///< by name or id; nothing to leave the dates without one

  friend bool operator==(const MarkCall&, const MarkCall&) = default;
};

}  // namespace qvdisc
