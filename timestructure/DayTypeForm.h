#pragma once

#include <functional>
#include <optional>

#include "timestructure/DaySlots.h"
#include "timestructure/TypeIdentity.h"
#include "timestructure/TypeList.h"
#include "tools/Colour.h"

namespace qv {

/// One day type while it is edited: name, colour and slots. The slots change in its node at once;
/// name and colour are written by `Save`.
class DayTypeForm {
 public:
  /// `day` is the node to edit, which may lie outside `dayTypes`, in which other day types of the
  /// same name or colour are looked for. All references outlive the form.
  DayTypeForm(XmlNode& day, const XmlNode& dayTypes, XmlNode& hourTypes, Prompter& prompter);

  const QVWideString& Name() const { return m_identity.OpenedName(); }
  Colour CurrentColour() const { return m_identity.CurrentColour(); }

  /// Reads the rows of the slots anew. Slots whose hour type is no more go, in silence.
  void Fill() { m_slots.Fill(); }
  const std::vector<SlotRow>& Rows() const { return m_slots.Rows(); }

  /// Tells of the first fault among the slots, as when the editor opens: gaps are no fault.
  void ReportSlots() const { m_slots.CheckSlots(false, m_prompter); }

  /// Takes over the colour that the user chose; whether it is another one than before.
  bool ChooseColour(Colour colour);

  /// Runs the editor of a slot on a slot and on a copy of the hour types, which is taken over when
  /// it is confirmed.
  using RunEditor = std::function<EditorEnd(XmlNode& hourTypes, XmlNode& slot)>;

  /// Appends a slot and runs the editor on it; on any end but a confirmation it is removed again.
  ListEnd OnAdd(const RunEditor& runEditor);
  /// Runs the editor on a copy of the row's slot, and takes that over if it was confirmed, also
  /// without a change. No row is selected afterwards. Does nothing without a row.
  ListEnd OnModify(std::optional<int> row, const RunEditor& runEditor);
  /// Removes the row's slot, without a question. The row at the same place is selected then, or the
  /// new last one. Does nothing without a row.
  ListEnd OnRemove(std::optional<int> row);

  /// Checks name and colour and then the slots, and writes name and colour. A changed name counts
  /// as a change even if the slots are refused.
  bool Save(const QVWideString& name);

  /// Whether a colour was chosen, a slot added, changed or removed, or a name changed.
  bool IsModified() const { return m_modified; }

 private:
  XmlNode& m_day;
  XmlNode& m_hourTypes;
  Prompter& m_prompter;
  TypeIdentity m_identity;
  DaySlots m_slots;
  bool m_modified = false;
};

}  // namespace qv
