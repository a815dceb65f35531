#pragma once

#include <string>
#include <variant>

#include "apps/qvdisc/TypeCall.h"

namespace qvdisc {

/// Reads a slot as a call writes it, "08:00-12:00 NAME". Hours are 0 to 24 and minutes 0 to 59, as
/// the fields of its editor hold them; what else is wrong with a time is up to the rules. Otherwise
/// the reason in words.
std::variant<CalledSlot, std::string> ReadSlot(const std::string& text);

}  // namespace qvdisc
