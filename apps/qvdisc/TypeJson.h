#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "tools/XmlNode.h"

/// Hour types and day types as JSON has them, with their values as the document writes them.
namespace qvdisc {

/// The colour of an hour type or a day type, as the dialogs read it, in the form "#RRGGBB".
std::wstring ColourOfType(const qv::XmlNode& type);

nlohmann::ordered_json HourTypeJson(const qv::XmlNode& hour);

/// With its slots, whose hour types have their names in `hourTypes`, which may be null.
nlohmann::ordered_json DayTypeJson(const qv::XmlNode& day, const qv::XmlNode* hourTypes);

}  // namespace qvdisc
