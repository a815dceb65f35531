#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "calendar/CalendarDate.h"
#include "hostkit/Language.h"
#include "tools/XmlNode.h"

namespace qvdisc {

/// As many dates in words.
std::wstring CountedDates(int count, qv::Language language);

/// The ranges of dates that are sorted and there once each, as a JSON array of objects.
nlohmann::ordered_json RangesAsJson(const std::vector<qv::CalendarDate>& dates);

/// The calendar of the document with this root as a JSON object: its years with their dates by day
/// type.
nlohmann::ordered_json CalendarAsJson(const qv::XmlNode& root);

/// The same in lines for people: how many dates of each year have which day type.
std::vector<std::wstring> CalendarAsLines(const qv::XmlNode& root, qv::Language language);

}  // namespace qvdisc
