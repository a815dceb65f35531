#include "apps/qvdisc/EditDiscriminator.h"
#include "discriminator/Fields.h"

namespace qvdisc {
namespace {

using qv::DiscriminatorForm;

/// Chooses the type, as the dialog lets a user do; false if it doesn't.
bool ChooseType(std::optional<bool> slots, DiscriminatorForm& form, Outcome& outcome) {
  if (!slots ||
      form.Root().Value(qv::tag::Type) == (*slots ? qv::word::Slots : qv::word::Conditions)) {
    return true;
  }
  if (!form.IsTypeSelectable()) {
    outcome.Fail(Word::TypeNotSelectable);
    return false;
  }
  form.SelectType(*slots ? qv::DiscriminatorType::Slots : qv::DiscriminatorType::Conditions);
  return true;
}

/// The fields of the form as the call changes them.
qv::DiscriminatorFields Typed(const DiscriminatorForm& form, const FieldChanges& changes) {
  qv::DiscriminatorFields fields = form.InitialFields();
  if (changes.name) {
    fields.name = QVWideString(*changes.name);
  }
  if (changes.description) {
    fields.description = QVWideString(*changes.description);
  }
  fields.setZeroOutsideSlot = changes.setZeroOutsideSlot.value_or(fields.setZeroOutsideSlot);
  return fields;
}

/// Types what the call gives, and chooses its type.
UseEditor Typing(const Edited& edited) {
  return [&](DiscriminatorForm& form) -> std::optional<qv::DiscriminatorFields> {
    const FieldChanges& changes = edited.editing.call.changes;
    const qv::DiscriminatorFields typed = Typed(form, changes);
    return ChooseType(changes.slots, form, edited.outcome) ? std::optional(typed) : std::nullopt;
  };
}

}  // namespace

void Add(qv::DiscriminatorList& list, const Editing& editing, Outcome& outcome) {
  const std::vector<int> noRows;
  const Edited added{list, noRows, editing, outcome};
  AddDiscriminator(added, Typing(added));
}

void Modify(qv::DiscriminatorList& list, const std::vector<int>& rows, const Editing& editing,
            Outcome& outcome) {
  const Edited modified{list, rows, editing, outcome};
  ModifyDiscriminator(modified, Typing(modified));
}

}  // namespace qvdisc
