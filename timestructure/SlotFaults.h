#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "discriminator/DayMinutes.h"
#include "discriminator/ValueForms.h"
#include "host/Text.h"

namespace qv {

/// Start and end of a slot, of any numbers.
struct SlotRange {
  TimeOfDay from;
  TimeOfDay to;

  friend bool operator==(const SlotRange&, const SlotRange&) = default;
};

/// What is wrong with a slot of a day.
struct SlotFault {
  std::size_t slot = 0;                     ///< its place among the slots
  Text text{};                              ///< in which it is told
  std::optional<std::size_t> overlapped{};  ///< the place of the earlier slot, if it overlaps one

  friend bool operator==(const SlotFault&, const SlotFault&) = default;
};

/// What is wrong with the times of a slot: an hour above 24 or 24 with minutes, minutes above 59, a
/// start after its end; the first of these, or nothing.
[[nodiscard]] std::optional<Text> FaultOfTimes(const SlotRange& slot);

/// What is wrong with the slots of a day, in their order: with the times of one, or that it
/// overlaps an earlier one (slots that touch don't). A slot with wrong times overlaps none.
[[nodiscard]] std::vector<SlotFault> FaultsOfSlots(const std::vector<SlotRange>& slots);

/// How many minutes the slots come to, which is all of the day's where none is wrong and none is
/// missing.
int MinutesOfSlots(const std::vector<SlotRange>& slots);

/// The minutes of the day that no slot covers, from 00:00 on, for slots of which none is wrong.
std::vector<MinuteRange> GapsOfSlots(const std::vector<SlotRange>& slots);

}  // namespace qv
