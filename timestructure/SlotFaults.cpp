#include "timestructure/SlotFaults.h"

#include <algorithm>
#include <numeric>

namespace qv {
namespace {

MinuteRange MinutesOf(const SlotRange& slot) { return {slot.from.Minutes(), slot.to.Minutes()}; }

bool IsBeyondDay(TimeOfDay time) {
  return time.hours > hoursOfDay || (time.hours == hoursOfDay && time.minutes > 0);
}

}  // namespace

std::optional<Text> FaultOfTimes(const SlotRange& slot) {
  if (IsBeyondDay(slot.from) || IsBeyondDay(slot.to)) {
    return Text::SlotHourOutOfRange;
  }
  if (slot.from.minutes >= minutesOfHour || slot.to.minutes >= minutesOfHour) {
    return Text::SlotMinuteOutOfRange;
  }
  const MinuteRange minutes = MinutesOf(slot);
  return minutes.from > minutes.to ? std::optional(Text::SlotStartAfterEnd) : std::nullopt;
}

std::vector<SlotFault> FaultsOfSlots(const std::vector<SlotRange>& slots) {
  struct Placed {
    std::size_t slot;
    MinuteRange minutes;
  };
  std::vector<SlotFault> faults;
  std::vector<Placed> earlier;
  for (std::size_t i = 0; i < slots.size(); ++i) {
    if (const auto wrong = FaultOfTimes(slots[i])) {
      faults.push_back({.slot = i, .text = *wrong});
      continue;
    }
    const MinuteRange minutes = MinutesOf(slots[i]);
    const auto other = std::find_if(earlier.begin(), earlier.end(), [&](const Placed& placed) {
      return minutes.Overlaps(placed.minutes);
    });
    if (other != earlier.end()) {
      faults.push_back({i, Text::SlotsOverlap, other->slot});
    }
    earlier.push_back({i, minutes});
  }
  return faults;
}

int MinutesOfSlots(const std::vector<SlotRange>& slots) {
  return std::accumulate(slots.begin(), slots.end(), 0, [](int minutes, const SlotRange& slot) {
    return minutes + MinutesOf(slot).Length();
  });
}

std::vector<MinuteRange> GapsOfSlots(const std::vector<SlotRange>& slots) {
  std::vector<MinuteRange> covered = {{minutesOfDay, minutesOfDay}};
  for (const SlotRange& slot : slots) {
    if (MinutesOf(slot).Length() > 0) {
      covered.push_back(MinutesOf(slot));
    }
  }
  std::sort(covered.begin(), covered.end(),
            [](const MinuteRange& a, const MinuteRange& b) { return a.from < b.from; });
  std::vector<MinuteRange> gaps;
  int end = 0;
  for (const MinuteRange& minutes : covered) {
    if (minutes.from > end) {
      gaps.push_back({end, minutes.from});
    }
    end = minutes.to;
  }
  return gaps;
}

}  // namespace qv
