#pragma once

#include <optional>

#include "discriminator/DayMinutes.h"
#include "tools/Colour.h"

namespace qv {

/// A stretch of the day in one colour. Minutes count from 00:00 and should lie in 0 to 1440; what a
/// file or a host gives is kept as it is.
struct STagSlot {
  int from = 0;  ///< first minute
  int to = 0;    ///< end minute, exclusive
  Colour color = 0;

  friend bool operator==(const STagSlot&, const STagSlot&) = default;
};

/// What of the slot lies in the day. Nothing, if it ends before it starts or lies outside; a slot
/// of no length in the day is part of it.
std::optional<STagSlot> DayPart(const STagSlot& slot);

}  // namespace qv
