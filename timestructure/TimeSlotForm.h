#pragma once

#include <optional>
#include <vector>

#include "discriminator/ColouredType.h"
#include "discriminator/Containers.h"
#include "host/EditorEnd.h"
#include "host/SaveEnd.h"
#include "timestructure/SlotTimes.h"

namespace qv {

/// One slot of a day type while it is edited: its hour type and its times. Nothing is written into
/// its node but by `Save`.
class TimeSlotForm {
 public:
  /// All references outlive the form.
  TimeSlotForm(XmlNode& slot, HourTypes hourTypes);

  /// Whether the slot has no hour type yet.
  bool IsNew() const;

  /// Start and end.
  SlotTimes& Times() { return m_times; }
  const SlotTimes& Times() const { return m_times; }
  /// Whether the spin of the field reacts.
  bool IsSpinEnabled(TimeField field) const {
    return HasInputs() && m_times.Spin(field).IsEnabled();
  }

  /// The hour types to choose from, in the order of the document.
  const std::vector<ColouredType>& Choices() const { return m_choices; }
  std::optional<int> Selected() const { return m_selected; }
  void SelectHourType(int index);
  /// The colour of the hour type in force; nothing without one.
  std::optional<Colour> SelectedColour() const;
  /// Whether the user can enter anything: there has to be an hour type.
  bool HasInputs() const { return !m_choices.empty(); }

  /// Makes a new hour type and runs the editor on it; on any end but a confirmation it is removed
  /// again. The selected place in the list stays.
  void OnAddHourType(const RunEditor& runEditor);

  /// Writes hour type, start and end if the start isn't after the end and there is an hour type.
  /// Refused in silence if the name of the hour type finds none.
  SaveEnd Save();

  /// Whether the user entered anything; never cleared.
  bool IsModified() const { return m_modified || m_times.IsModified(); }

 private:
  void FillHourTypes(std::optional<int> select);
  int OwnHourType() const;
  [[nodiscard]] std::optional<Refusal> Fault() const;

  HourTypes m_hourTypes;
  XmlNode& m_slot;
  SlotTimes m_times;
  std::vector<ColouredType> m_choices;
  std::optional<int> m_selected;
  bool m_modified = false;
};

}  // namespace qv
