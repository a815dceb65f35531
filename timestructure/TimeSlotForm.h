#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "discriminator/DayMinutes.h"
#include "host/Prompter.h"
#include "timestructure/TypeList.h"
#include "tools/Colour.h"
#include "tools/XmlNode.h"

namespace qv {

/// The start or the end of a slot.
enum class SlotEdge { From, To };

/// Hours or minutes of one of them.
struct TimeField {
  SlotEdge edge = SlotEdge::From;
  bool isHours = true;

  friend bool operator==(const TimeField&, const TimeField&) = default;
};

/// A numeric field with the spin beside it.
class SpinState {
 public:
  /// The number in the field if it is one from 0 to `Upper()`, otherwise the last that was.
  int Position() const { return m_position; }
  int Upper() const { return m_upper; }
  /// Whether the spin reacts; the field beside it always does.
  bool IsEnabled() const { return m_enabled; }
  const std::wstring& Text() const { return m_text; }

  /// What the user typed.
  void SetText(const std::wstring& text);
  /// Moves the position into the range and shows it.
  void SetPosition(int position);
  /// A number in the field that is in the range now becomes the position.
  void SetRange(int upper);
  void Enable(bool enabled) { m_enabled = enabled; }

 private:
  std::wstring m_text = L"0";
  int m_position = 0;
  int m_upper = 0;
  bool m_enabled = true;
};

/// One slot of a day type while it is edited: its hour type, its times as four spins, and the
/// selection by mouse on a grid of quarters of an hour. Nothing is written into its node but by
/// `Save`.
class TimeSlotForm {
 public:
  /// All references outlive the form.
  TimeSlotForm(XmlNode& hourTypes, XmlNode& slot, Prompter& prompter);

  /// Whether the slot has no hour type yet.
  bool IsNew() const;

  /// The hour types to choose from, in the order of the document.
  const std::vector<TypeRow>& HourTypes() const { return m_choices; }
  std::optional<int> Selected() const { return m_selected; }
  void SelectHourType(int index);
  /// Whether the user can enter anything: there has to be an hour type.
  bool HasInputs() const { return !m_choices.empty(); }

  const SpinState& Spin(TimeField field) const { return m_spins[Index(field)]; }
  /// Whether the spin of the field reacts.
  bool IsSpinEnabled(TimeField field) const { return HasInputs() && Spin(field).IsEnabled(); }

  /// The user changed the text of a field.
  void Type(TimeField field, const std::wstring& text);
  /// The user moved a spin. Hours from 24 on lock the minutes at 0, lower ones free them.
  void Step(TimeField field, int delta);
  /// A field lost the focus. What is above its range becomes the highest; hours that were above it
  /// lock the minutes, and any others, a typed 24 included, free them.
  void LeaveField(TimeField field);

  /// The user pressed the button at this minute of the grid, or outside of it. A press while a
  /// selection is under way ends it. Whether a selection began, which has to be shown.
  bool Press(std::optional<int> minute);
  /// The pointer moved; outside the grid, and without a selection under way, nothing changes.
  /// Whether the selection follows, which has to be shown.
  bool Move(std::optional<int> minute);
  /// The button was released, anywhere.
  void Release() { m_dragging = false; }

  /// The minutes to paint, or nothing. An end at the last minute of an hour fills that hour, in the
  /// picture only.
  std::optional<MinuteRange> Selection() const;
  /// The colour of the hour type in force; nothing without one.
  std::optional<Colour> SelectionColour() const;

  /// Makes a new hour type and runs the editor on it; on any end but a confirmation it is removed
  /// again. The selected place in the list stays.
  void OnAddHourType(const TypeList::RunEditor& runEditor);

  /// Writes hour type, start and end if the start isn't after the end and there is an hour type;
  /// otherwise the user has been told. In silence false if the name of the hour type finds none.
  bool Save();

  /// Whether the user entered anything; never cleared.
  bool IsModified() const { return m_modified; }

 private:
  static std::size_t Index(TimeField field) {
    return (field.edge == SlotEdge::From ? 0U : 2U) + (field.isHours ? 0U : 1U);
  }
  SpinState& Hours(SlotEdge edge) { return m_spins[Index({edge, true})]; }
  SpinState& Minutes(SlotEdge edge) { return m_spins[Index({edge, false})]; }
  const SpinState& Hours(SlotEdge edge) const { return m_spins[Index({edge, true})]; }
  const SpinState& Minutes(SlotEdge edge) const { return m_spins[Index({edge, false})]; }

  void FillHourTypes(std::optional<int> select);
  void InitializeTime(SlotEdge edge, const QVWideString& text);
  void LockMinutes(SlotEdge edge);
  void FreeMinutes(SlotEdge edge);
  std::optional<MinuteRange> Dragged() const;
  void TakeDragged();
  void TakeChange();
  std::wstring Shown() const;
  int MinuteOf(SlotEdge edge) const;
  bool IsValid() const;

  XmlNode& m_hourTypes;
  XmlNode& m_slot;
  Prompter& m_prompter;
  std::vector<TypeRow> m_choices;
  std::optional<int> m_selected;
  std::array<SpinState, 4> m_spins;
  bool m_dragging = false;
  int m_dragStart = 0;
  int m_dragEnd = 0;
  bool m_modified = false;
};

}  // namespace qv
