#pragma once

#include <array>
#include <optional>
#include <string>

#include "timestructure/QuarterDrag.h"
#include "timestructure/SpinState.h"
#include "tools/QVBasicString.h"

namespace qv {

/// The start or the end of a slot.
enum class SlotEdge { From, To };

/// Hours or minutes of one of them.
struct TimeField {
  SlotEdge edge = SlotEdge::From;
  bool isHours = true;

  friend bool operator==(const TimeField&, const TimeField&) = default;
};

/// The times of a slot while it is edited: four spins, of which hours from 24 on lock their
/// minutes, and the selection by mouse on a grid of quarters of an hour.
class SlotTimes {
 public:
  /// `from` and `to` may be any text; their numbers are moved into their ranges.
  SlotTimes(const QVWideString& from, const QVWideString& to);

  const SpinState& Spin(TimeField field) const { return m_spins[Index(field)]; }
  /// Lets all spins react, also one that was locked: only its range still says so.
  void EnableSpins();

  /// The user changed the text of a field.
  void Type(TimeField field, const std::wstring& text);
  /// The user moved a spin. Hours from 24 on lock the minutes at 0, lower ones free them.
  void Step(TimeField field, int delta);
  /// A field lost the focus. What is above its range becomes the highest; hours that were above it
  /// lock the minutes, and any others, a typed 24 included, free them.
  void LeaveField(TimeField field);
  /// The user changed the slot, here or elsewhere. A selection under way has the last word about
  /// the times.
  void TakeChange();

  // What the mouse does on the grid, as `QuarterDrag` tells; a selection that began or follows has
  // to be shown.
  bool Press(std::optional<int> minute);
  bool Move(std::optional<int> minute);
  void Release() { m_drag.Release(); }

  /// The minutes to paint, or nothing. An end at the last minute of an hour fills that hour, in the
  /// picture only.
  std::optional<MinuteRange> Selection() const;

  /// Whether the start isn't after the end.
  bool IsOrdered() const { return MinuteOf(SlotEdge::From) <= MinuteOf(SlotEdge::To); }
  /// Start or end as the document writes them.
  QVWideString TextOf(SlotEdge edge) const;

  /// Whether the user changed anything; never cleared.
  bool IsModified() const { return m_modified; }

 private:
  static std::size_t Index(TimeField field) {
    return (field.edge == SlotEdge::From ? 0U : 2U) + (field.isHours ? 0U : 1U);
  }
  SpinState& Hours(SlotEdge edge) { return m_spins[Index({edge, true})]; }
  SpinState& Minutes(SlotEdge edge) { return m_spins[Index({edge, false})]; }
  const SpinState& Hours(SlotEdge edge) const { return m_spins[Index({edge, true})]; }
  const SpinState& Minutes(SlotEdge edge) const { return m_spins[Index({edge, false})]; }

  void InitializeTime(SlotEdge edge, const QVWideString& text);
  void LockMinutes(SlotEdge edge);
  void FreeMinutes(SlotEdge edge);
  int MinuteOf(SlotEdge edge) const;
  std::wstring Shown() const;
  void TakeDragged();

  std::array<SpinState, 4> m_spins;
  QuarterDrag m_drag;
  bool m_modified = false;
};

}  // namespace qv
