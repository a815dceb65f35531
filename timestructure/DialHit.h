#pragma once

#include <optional>
#include <vector>

#include "timestructure/STagSlot.h"
#include "tools/Canvas.h"

namespace qv {

/// The minute of the day (0 to 1439) that a place in a dial of this size stands for; nothing
/// outside of its two discs. The centre of a disc is its first minute.
std::optional<int> MinuteAt(Point place, int width, int height);

/// The place among the slots of the one that is seen at this minute, the last that has it.
std::optional<std::size_t> SlotAt(int minute, const std::vector<STagSlot>& slots);

}  // namespace qv
