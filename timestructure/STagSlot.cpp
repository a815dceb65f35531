#include "timestructure/STagSlot.h"

#include <algorithm>

namespace qv {

std::optional<STagSlot> DayPart(const STagSlot& slot) {
  const int from = std::max(slot.from, 0);
  const int to = std::min(slot.to, minutesOfDay);
  const bool touchesOnly = from == to && slot.from != slot.to;
  if (from > to || touchesOnly) {
    return std::nullopt;
  }
  return STagSlot{from, to, slot.color};
}

}  // namespace qv
