#include "apps/qvdisc/Verbs.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <set>
#include <string>
#include <utility>

#include "apps/qvdisc/Check.h"
#include "apps/qvdisc/Words.h"
#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "discriminator/IndexDocument.h"
#include "editor/DiscriminatorForm.h"
#include "manager/ClipboardPayload.h"
#include "manager/DiscriminatorClipboard.h"
#include "tools/Names.h"

namespace qvdisc {
namespace {

using qv::DiscriminatorForm;
using qv::EditorEnd;

void Fail(Session& session, Word reason, std::initializer_list<qv::FormatArgument> arguments = {}) {
  session.Result().Fail(Words(reason, session.Language(), arguments));
}

const QVWideString& StemOfRow(Session& session, int row) {
  return session.List().Rows().at(static_cast<std::size_t>(row)).shown.fileStem;
}

void Show(Session& session) {
  const auto rows = session.NamedRows();
  if (!rows) {
    return;
  }
  const QVWideString& stem = StemOfRow(session, rows->front());
  auto document = std::make_unique<XmlDocument>();
  if (document->Load(qv::DiscriminatorPath(session.Directory(), stem), session.Files())) {
    session.Result().document = std::move(document);
  } else {
    Fail(session, Word::DiscriminatorUnreadable, {stem});
  }
}

void MakeIndex(Session& session, int row) {
  const QVWideString& stem = StemOfRow(session, row);
  const QVWideString path = qv::DiscriminatorPath(session.Directory(), stem);
  XmlDocument document;
  if (!document.Load(path, session.Files())) {
    Fail(session, Word::DiscriminatorUnreadable, {stem});
    return;
  }
  IndexEnd end{std::wstring(stem.ToView()), false, false};
  if (const qv::XmlNode* hourTypes = document.Root()->Node(qv::tag::HourTypes)) {
    end.needed = true;
    end.written = qv::MakeIndexDocument(*hourTypes)->SaveAs(qv::IndexPath(path), session.Files());
  }
  if (end.needed && !end.written) {
    Fail(session, Word::IndexNotWritten, {stem});
  }
  session.Result().indexes.push_back(std::move(end));
}

void Index(Session& session) {
  auto rows = session.NamedRows();
  if (!rows) {
    return;
  }
  if (session.Call().stems.empty()) {
    rows->resize(session.List().Rows().size());
    std::iota(rows->begin(), rows->end(), 0);
  }
  const auto progress = session.NewProgress();
  for (std::size_t i = 0; i < rows->size(); ++i) {
    progress->Advance(i, rows->size());
    MakeIndex(session, (*rows)[i]);
  }
}

qv::DiscriminatorClipboard ClipboardOf(Session& session) {
  return {session.Services(), session.Files(), session.List()};
}

void Copy(Session& session) {
  if (const auto rows = session.NamedRows()) {
    ClipboardOf(session).Copy(*rows);
    session.Result().payload = session.Clipboard().Put();
  }
}

void Paste(Session& session) {
  const auto pasted = ClipboardOf(session).Paste();
  const auto lost = std::count_if(pasted.begin(), pasted.end(),
                                  [](const auto& discriminator) { return !discriminator.written; });
  if (pasted.empty()) {
    Fail(session, Word::NothingToPaste);
  } else if (lost > 0) {
    Fail(session, Word::NotAllPasted, {static_cast<unsigned>(lost)});
  }
}

/// Tells why it wasn't saved. What could not be written stays with the user: as a payload that can
/// be pasted again.
void TellUnsaved(Session& session, const DiscriminatorForm& form, const qv::SaveEnd& end) {
  if (end.refusal) {
    Tell(session.Prompter(), *end.refusal);
  }
  if (end.outcome == qv::SaveOutcome::NotWritten) {
    session.Result().unsaved = qv::ComposePayload(form.Root()).ToView();
    Fail(session, Word::ContentFollows);
  }
}

/// Chooses the type, as the dialog lets a user do; false if it doesn't.
bool ChooseType(Session& session, DiscriminatorForm& form) {
  const auto slots = session.Call().changes.slots;
  if (!slots ||
      form.Root().Value(qv::tag::Type) == (*slots ? qv::word::Slots : qv::word::Conditions)) {
    return true;
  }
  if (!form.IsTypeSelectable()) {
    Fail(session, Word::TypeNotSelectable);
    return false;
  }
  form.SelectType(*slots ? qv::DiscriminatorType::Slots : qv::DiscriminatorType::Conditions);
  return true;
}

/// Does what a user does in the editor: opens it, types, and presses OK.
EditorEnd RunEditor(Session& session, qv::XmlNode* deviceGroups, const QVWideString* path) {
  const auto form =
      DiscriminatorForm::Open({session.Services(), session.Files(), deviceGroups}, path);
  if (!form) {
    Fail(session, Word::DiscriminatorUnreadable, {session.Call().stems.front().c_str()});
    return {};
  }
  const FieldChanges& changes = session.Call().changes;
  qv::DiscriminatorFields fields = form->InitialFields();
  if (changes.name) {
    fields.name = QVWideString(*changes.name);
  }
  if (changes.description) {
    fields.description = QVWideString(*changes.description);
  }
  fields.setZeroOutsideSlot = changes.setZeroOutsideSlot.value_or(fields.setZeroOutsideSlot);
  if (!ChooseType(session, *form)) {
    return {};
  }
  const qv::SaveEnd end = form->Save(fields);
  if (!end.IsDone()) {
    TellUnsaved(session, *form, end);
  }
  return {end.IsDone(), form->IsModified()};
}

qv::DiscriminatorList::RunEditor EditorOf(Session& session) {
  return [&session](qv::XmlNode* deviceGroups, const QVWideString* path) {
    return RunEditor(session, deviceGroups, path);
  };
}

void FinishEditing(Session& session, const EditorEnd& end) {
  if (!end.confirmed) {
    session.Result().status = 1;
  }
  // The dialog would still show what was there before; here it is the list as it is.
  if (session.Result().unsaved) {
    session.Refresh();
  }
}

void Add(Session& session) { FinishEditing(session, session.List().OnAdd(EditorOf(session))); }

void Modify(Session& session) {
  if (const auto rows = session.NamedRows()) {
    FinishEditing(session, session.List().OnModify(*rows, EditorOf(session)));
  }
}

void Remove(Session& session) {
  const auto rows = session.NamedRows();
  if (!rows) {
    return;
  }
  const qv::RemovalEnd end = session.List().OnRemove(*rows);
  if (end.refusal) {
    Tell(session.Prompter(), *end.refusal);
  }
  if (end.outcome != qv::RemovalOutcome::Done) {
    session.Result().status = 1;
  }
}

/// Whether the call names the discriminator file by its stem, or by id or name alone.
bool IsNamed(const std::wstring& file, const std::wstring& text) {
  const auto stem = qv::WithoutExtension(file).value_or(file);
  const auto name = qv::NameOfStem(stem);
  return stem == text || qv::IdOfStem(QVWideString(stem)) == text ||
         (name && qv::EqualUppered(*name, text));
}

/// Leaves the findings of the files that the call names; false if one names none.
bool KeepNamed(Session& session, CheckedInstallation& checked) {
  std::set<std::wstring> kept;
  for (const std::wstring& text : session.Call().stems) {
    std::vector<std::wstring> named;
    std::copy_if(checked.files.begin(), checked.files.end(), std::back_inserter(named),
                 [&](const std::wstring& file) { return IsNamed(file, text); });
    if (named.empty()) {
      Fail(session, Word::NoSuchDiscriminator, {text.c_str()});
      return false;
    }
    kept.insert(named.begin(), named.end());
  }
  checked.files.assign(kept.begin(), kept.end());
  std::erase_if(checked.findings, [&](const Finding& finding) {
    const bool isIndex = finding.kind == FindingKind::IndexWithoutUse;
    return kept.count(finding.file.substr(0, finding.file.size() - (isIndex ? 1 : 0))) == 0;
  });
  return true;
}

void Check(Session& session) {
  auto checked = CheckInstallation({session.Directory(), session.Config(), session.ConfigLoaded()},
                                   session.Files(), *session.NewProgress());
  if (!session.Call().stems.empty() && !KeepNamed(session, checked)) {
    return;
  }
  Outcome& end = session.Result();
  end.checkedFiles = std::move(checked.files);
  end.findings = std::move(checked.findings);
  const bool faulty = std::any_of(end.findings.begin(), end.findings.end(),
                                  [](const Finding& finding) { return finding.IsFault(); });
  end.status = faulty ? 1 : 0;
}

}  // namespace

void Perform(Session& session) {
  switch (session.Call().verb) {
    case Verb::List:
      return;
    case Verb::Show:
      return Show(session);
    case Verb::Index:
      return Index(session);
    case Verb::Copy:
      return Copy(session);
    case Verb::Paste:
      return Paste(session);
    case Verb::Add:
      return Add(session);
    case Verb::Modify:
      return Modify(session);
    case Verb::Remove:
      return Remove(session);
    case Verb::Check:
      return Check(session);
  }
}

}  // namespace qvdisc
