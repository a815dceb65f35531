#pragma once

#include <optional>

#include "discriminator/DayMinutes.h"

namespace qv {

/// A selection of minutes by mouse, on a grid of quarters of an hour. It follows the pointer from a
/// press to the release, or the next press.
class QuarterDrag {
 public:
  /// The button was pressed on the quarter that starts at this minute, or outside of the grid. A
  /// press while a selection is under way ends it. Whether a selection began.
  bool Press(std::optional<int> minute);
  /// The pointer moved; outside the grid nothing changes. Whether the selection follows.
  bool Move(std::optional<int> minute);
  /// The button was released, anywhere.
  void Release() { m_active = false; }

  bool IsActive() const { return m_active; }
  /// The minutes from the first quarter to the one under the pointer, both included, in either
  /// direction; nothing outside of a day.
  std::optional<MinuteRange> Range() const;

 private:
  bool m_active = false;
  int m_start = 0;
  int m_end = 0;
};

}  // namespace qv
