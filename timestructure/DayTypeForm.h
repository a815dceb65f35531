#pragma once

#include <functional>
#include <optional>

#include "discriminator/Containers.h"
#include "discriminator/ListEnd.h"
#include "host/EditorEnd.h"
#include "timestructure/DaySlots.h"
#include "timestructure/TypeIdentity.h"

namespace qv {

/// One day type while it is edited: name, colour and slots. The slots change in its node at once;
/// name and colour are written by `Save`.
class DayTypeForm {
 public:
  /// `day` is the node to edit, which may lie outside `dayTypes`, in which other day types of the
  /// same name or colour are looked for. All references outlive the form.
  DayTypeForm(XmlNode& day, DayTypes dayTypes, HourTypes hourTypes, Prompter& prompter);

  /// Name and colour.
  TypeIdentity& Identity() { return m_identity; }

  /// Reads the rows of the slots anew. Slots whose hour type is no more go, in silence.
  void Fill() { m_slots.Fill(); }
  const std::vector<SlotRow>& Rows() const { return m_slots.Rows(); }

  /// What is told of the slots as they stand, as when the editor opens, with the slots that it is
  /// about and the row of the one at fault: gaps are no fault.
  [[nodiscard]] std::optional<Refusal> FaultOfSlots() const;

  /// Runs the editor of a slot on a slot and on a copy of the hour types, which is taken over when
  /// it is confirmed.
  using RunSlotEditor = std::function<EditorEnd(XmlNode& slot, HourTypes hourTypes)>;

  /// Appends a slot and runs the editor on it; on any end but a confirmation it is removed again.
  ListEnd OnAdd(const RunSlotEditor& runEditor);
  /// Runs the editor on a copy of the row's slot, and takes that over if it was confirmed, also
  /// without a change. No row is selected afterwards. Does nothing without a row.
  ListEnd OnModify(std::optional<int> row, const RunSlotEditor& runEditor);
  /// Removes the row's slot, without a question. The row at the same place is selected then, or the
  /// new last one. Does nothing without a row.
  ListEnd OnRemove(std::optional<int> row);

  /// Checks name and colour and then the slots, and writes name and colour. A changed name counts
  /// as a change even if the slots are refused.
  SaveEnd Save(const QVWideString& name);

  /// Whether a colour was chosen, a slot added, changed or removed, or a name changed.
  bool IsModified() const { return m_modified || m_identity.IsRecoloured(); }

 private:
  XmlNode& m_day;
  HourTypes m_hourTypes;
  Prompter& m_prompter;
  TypeIdentity m_identity;
  DaySlots m_slots;
  bool m_modified = false;
};

}  // namespace qv
