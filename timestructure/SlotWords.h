#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "timestructure/STagSlot.h"

namespace qv {

/// The slots in words, for people who can't see them: each by `form`, in which the first `%s` is
/// its start and the second its end, as in "from %s to %s", joined by semicolons. Only what lies in
/// the day is told, in the order of the slots; a slot that isn't drawn is left out. Empty for none.
std::wstring SlotsInWords(const std::vector<STagSlot>& day, std::wstring_view form);

}  // namespace qv
