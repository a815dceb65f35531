#include "apps/qvdisc/Verbs.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <utility>

#include "apps/qvdisc/Check.h"
#include "apps/qvdisc/Words.h"
#include "discriminator/ClipboardPayload.h"
#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "editor/DiscriminatorForm.h"
#include "tools/Names.h"

namespace qvdisc {
namespace {

using qv::DiscriminatorForm;
using qv::EditorEnd;

void Fail(Session& session, Word reason, std::initializer_list<qv::FormatArgument> arguments = {}) {
  session.End().Fail(Words(reason, session.Language(), arguments));
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
    session.End().document = std::move(document);
  } else {
    Fail(session, Word::DiscriminatorUnreadable, {stem});
  }
}

void MakeIndex(Session& session, int row) {
  const auto& shown = session.List().Rows().at(static_cast<std::size_t>(row)).shown;
  XmlDocument document;
  IndexEnd end{std::wstring(shown.fileStem.ToView()), false, false};
  end.needed =
      document.Load(qv::DiscriminatorPath(session.Directory(), shown.fileStem), session.Files()) &&
      document.Root()->Node(qv::tag::HourTypes);
  if (end.needed) {
    end.written = session.Services().createIndex(session.Directory(),
                                                 shown.name + qv::discriminatorExtension);
    if (!end.written) {
      Fail(session, Word::IndexNotWritten, {shown.name});
    }
  }
  session.End().indexes.push_back(std::move(end));
}

void Index(Session& session) {
  auto rows = session.NamedRows();
  if (rows && session.Call().stems.empty()) {
    for (int row = 0; row < static_cast<int>(session.List().Rows().size()); ++row) {
      rows->push_back(row);
    }
  }
  for (const int row : rows.value_or(std::vector<int>())) {
    MakeIndex(session, row);
  }
}

void Copy(Session& session) {
  if (const auto rows = session.NamedRows()) {
    session.List().CopyToClipboard(*rows);
    session.End().payload = session.Clipboard().Put();
  }
}

std::size_t FileCount(Session& session) {
  return session.Files().Walk((session.Directory() + qv::discriminatorPattern).ToView()).size();
}

void Paste(Session& session) {
  const std::size_t before = FileCount(session);
  bool pasted = false;
  session.List().PasteFromClipboard([&] {
    pasted = true;
    session.Refresh();
  });
  if (!pasted) {
    Fail(session, Word::NothingToPaste);
  }
  constexpr std::size_t noticesOfEach = 2;
  const std::size_t items = session.End().notices.size() / noticesOfEach;
  const std::size_t made = FileCount(session) - before;
  if (made < items) {
    Fail(session, Word::NotAllPasted, {static_cast<unsigned>(items - made)});
  }
}

/// What could not be written stays with the user: as a payload that can be pasted again.
void KeepUnsaved(Session& session, const DiscriminatorForm& form) {
  const auto& texts = session.End().texts;
  if (!texts.empty() && texts.back().number == Number(Text::DiscriminatorNotSaved)) {
    session.End().payload = qv::ComposePayload(form.Root()).ToView();
    Fail(session, Word::ContentFollows);
  }
  session.End().status = 1;
}

/// Chooses the type, as the dialog lets a user do; false if it doesn't.
bool ChooseType(Session& session, DiscriminatorForm& form) {
  const auto slots = session.Call().changes.slots;
  if (slots && *slots != form.HasSlots()) {
    if (!form.IsTypeSelectable()) {
      Fail(session, Word::TypeNotSelectable);
      return false;
    }
    form.SelectType(*slots ? 0 : 1);
  }
  return true;
}

/// Does what a user does in the editor: opens it, types, and presses OK.
EditorEnd RunEditor(Session& session, qv::XmlNode* deviceGroups, const QVWideString* path) {
  DiscriminatorForm form({session.Services(), session.Files(), session.Speaker(), deviceGroups},
                         path);
  if (!form.IsLoaded()) {
    Fail(session, Word::DiscriminatorUnreadable, {session.Call().stems.front().c_str()});
    return {};
  }
  const FieldChanges& changes = session.Call().changes;
  qv::DiscriminatorFields fields = form.InitialFields();
  if (changes.name) {
    fields.name = QVWideString(*changes.name);
  }
  if (changes.description) {
    fields.description = QVWideString(*changes.description);
  }
  fields.setZeroOutsideSlot = changes.setZeroOutsideSlot.value_or(fields.setZeroOutsideSlot);
  if (!ChooseType(session, form)) {
    return {};
  }
  const bool saved = form.Save(fields);
  if (!saved) {
    KeepUnsaved(session, form);
  }
  return {saved, form.IsModified()};
}

qv::DiscriminatorList::RunEditor EditorOf(Session& session) {
  return [&session](qv::XmlNode* deviceGroups, const QVWideString* path) {
    return RunEditor(session, deviceGroups, path);
  };
}

void Add(Session& session) {
  session.List().OnAdd(EditorOf(session), [&] { session.Refresh(); });
}

void Modify(Session& session) {
  if (const auto rows = session.NamedRows()) {
    session.List().OnModify(*rows, EditorOf(session), [&] { session.Refresh(); });
  }
}

void Remove(Session& session) {
  const auto rows = session.NamedRows();
  if (rows && session.List().OnRemove(*rows, [](int) {}).outcome != qv::RemovalOutcome::Done) {
    session.End().status = 1;
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
  std::erase_if(checked.findings,
                [&](const Finding& finding) { return kept.count(finding.file) == 0; });
  return true;
}

void Check(Session& session) {
  auto checked = CheckInstallation(session.Directory(), session.Config(), session.Files());
  if (!session.Call().stems.empty() && !KeepNamed(session, checked)) {
    return;
  }
  Outcome& end = session.End();
  end.filesChecked = static_cast<unsigned>(checked.files.size());
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
