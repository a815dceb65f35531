#include "apps/qvdisc/Verbs.h"
#include "discriminator/DiscriminatorFile.h"
#include "discriminator/Fields.h"
#include "editor/DiscriminatorForm.h"
#include "manager/ClipboardPayload.h"

namespace qvdisc {
namespace {

using qv::DiscriminatorForm;
using qv::EditorEnd;

/// Tells why it wasn't saved. What could not be written stays with the user: as a payload that can
/// be pasted again.
void TellUnsaved(const DiscriminatorForm& form, const qv::SaveEnd& end, qv::Prompter& prompter,
                 Outcome& outcome) {
  if (end.refusal) {
    Tell(prompter, *end.refusal);
  }
  if (end.outcome == qv::SaveOutcome::NotWritten) {
    outcome.unsaved = qv::ComposePayload(form.Root()).ToView();
    outcome.Fail(Word::ContentFollows);
  }
}

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

/// Does what a user does in the editor: opens it, types, and presses OK.
EditorEnd RunEditor(const Editing& editing, qv::XmlNode* deviceGroups, const QVWideString* path,
                    Outcome& outcome) {
  std::optional<qv::Refusal> refusal;
  const auto form =
      DiscriminatorForm::Open({editing.host, editing.files, deviceGroups}, path, &refusal);
  if (!form) {
    Tell(editing.prompter, *refusal);
    return {};
  }
  const qv::DiscriminatorFields typed = Typed(*form, editing.call.changes);
  if (!ChooseType(editing.call.changes.slots, *form, outcome)) {
    return {};
  }
  const qv::SaveEnd end = form->Save(typed);
  if (!end.IsDone()) {
    TellUnsaved(*form, end, editing.prompter, outcome);
  } else if (form->IsNew()) {
    outcome.made.emplace_back(qv::StemOfDocument(form->Root()).ToView());
  }
  return {end.IsDone(), form->IsModified()};
}

qv::DiscriminatorList::RunEditor EditorOf(const Editing& editing, Outcome& outcome) {
  return [&](qv::XmlNode* deviceGroups, const QVWideString* path) {
    return RunEditor(editing, deviceGroups, path, outcome);
  };
}

void Finish(const EditorEnd& end, qv::DiscriminatorList& list, Outcome& outcome) {
  if (!end.confirmed) {
    outcome.status = 1;
  }
  // The dialog would still show what was there before; here it is the list as it is.
  if (outcome.unsaved) {
    list.Refresh();
  }
}

}  // namespace

void Add(qv::DiscriminatorList& list, const Editing& editing, Outcome& outcome) {
  Finish(list.OnAdd(EditorOf(editing, outcome)), list, outcome);
}

void Modify(qv::DiscriminatorList& list, const std::vector<int>& rows, const Editing& editing,
            Outcome& outcome) {
  Finish(list.OnModify(rows, EditorOf(editing, outcome)), list, outcome);
}

}  // namespace qvdisc
