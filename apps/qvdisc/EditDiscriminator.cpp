#include "apps/qvdisc/EditDiscriminator.h"

#include <memory>

#include "apps/qvdisc/ConditionWords.h"
#include "apps/qvdisc/TypeWords.h"
#include "discriminator/DiscriminatorFile.h"
#include "manager/ClipboardPayload.h"

namespace qvdisc {
namespace {

using qv::DiscriminatorForm;
using qv::EditorEnd;

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

std::unique_ptr<DiscriminatorForm> Open(const Edited& edited, qv::XmlNode* deviceGroups,
                                        const QVWideString* path) {
  const Editing& editing = edited.editing;
  std::optional<qv::Refusal> refusal;
  auto form = DiscriminatorForm::Open({editing.host, editing.files, deviceGroups}, path, &refusal);
  if (!form) {
    Tell(editing.prompter, *refusal);
    edited.outcome.status = 1;
  }
  return form;
}

/// Does what a user does in the editor: opens it, uses it, and presses OK.
EditorEnd RunEditor(const Edited& edited, const UseEditor& use, qv::XmlNode* deviceGroups,
                    const QVWideString* path) {
  const auto form = Open(edited, deviceGroups, path);
  const auto typed = form ? use(*form) : std::nullopt;
  if (!typed) {
    return {};
  }
  const qv::SaveEnd end = form->Save(*typed);
  if (!end.IsDone()) {
    TellUnsaved(*form, end, edited.editing.prompter, edited.outcome);
  } else if (form->IsNew()) {
    edited.outcome.made.emplace_back(qv::StemOfDocument(form->Root()).ToView());
  }
  return {end.IsDone(), form->IsModified()};
}

qv::DiscriminatorList::RunEditor EditorOf(const Edited& edited, const UseEditor& use) {
  return [&](qv::XmlNode* deviceGroups, const QVWideString* path) {
    return RunEditor(edited, use, deviceGroups, path);
  };
}

bool Finish(const EditorEnd& end, const Edited& edited) {
  if (!end.confirmed) {
    edited.outcome.status = 1;
  }
  // The dialog would still show what was there before; here it is the list as it is.
  if (edited.outcome.unsaved) {
    edited.list.Refresh();
  }
  return end.confirmed;
}

/// Whether the discriminator has the parts of this type; the outcome tells if not.
bool HasParts(const DiscriminatorForm& form, qv::DiscriminatorType type, Outcome& outcome) {
  if (form.Type() == type) {
    return true;
  }
  const QVWideString name = form.InitialFields().name;
  if (type == qv::DiscriminatorType::Slots) {
    Fail(outcome, TypeWord::NoTimeSlots, {name});
  } else {
    Fail(outcome, ConditionWord::NoConditions, {name});
  }
  return false;
}

}  // namespace

bool AddDiscriminator(const Edited& edited, const UseEditor& use) {
  return Finish(edited.list.OnAdd(EditorOf(edited, use)), edited);
}

bool ModifyDiscriminator(const Edited& edited, const UseEditor& use) {
  return Finish(edited.list.OnModify(edited.rows, EditorOf(edited, use)), edited);
}

bool ModifyParts(const Edited& edited, qv::DiscriminatorType type, const UseParts& use) {
  return ModifyDiscriminator(edited, [&](DiscriminatorForm& form) {
    const bool isConfirmed = HasParts(form, type, edited.outcome) && use(form);
    return isConfirmed ? std::optional(form.InitialFields()) : std::nullopt;
  });
}

bool ReadParts(const Edited& edited, qv::DiscriminatorType type, const UseParts& use) {
  const QVWideString path = edited.list.PathOf(edited.rows.front());
  const auto form = Open(edited, nullptr, &path);
  return form && HasParts(*form, type, edited.outcome) && use(*form);
}

}  // namespace qvdisc
