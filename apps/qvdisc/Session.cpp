#include "apps/qvdisc/Session.h"

#include <algorithm>
#include <string>

#include "apps/qvdisc/NamedFiles.h"
#include "apps/qvdisc/NamedRows.h"
#include "apps/qvdisc/Verbs.h"
#include "editor/DiscriminatorForm.h"
#include "manager/DiscriminatorClipboard.h"

namespace qvdisc {
namespace {

using Loaded = qv::Configuration::Loaded;

qv::ConfigurationState StateAfter(Loaded loaded) {
  switch (loaded) {
    case Loaded::Unreadable:
      return qv::ConfigurationState::Unreadable;
    case Loaded::Foreign:
      return qv::ConfigurationState::Foreign;
    case Loaded::FromFile:
    case Loaded::New:
      break;
  }
  return qv::ConfigurationState::Good;
}

/// The stems of the rows that a call names, or of all rows where it names none.
std::vector<QVWideString> StemsOf(const std::vector<qv::STagDiscriminatorRow>& rows,
                                  const std::vector<int>& named) {
  std::vector<QVWideString> stems;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (named.empty() || std::binary_search(named.begin(), named.end(), static_cast<int>(i))) {
      stems.push_back(rows[i].shown.fileStem);
    }
  }
  return stems;
}

}  // namespace

Session::Session(const Arguments& arguments, const Terminal& terminal, const System& system,
                 Outcome& outcome)
    : m_arguments(arguments),
      m_system(system),
      m_outcome(outcome),
      m_setup(arguments.installation, L"", 0),
      m_configuration(m_mainCfg, system.files),
      m_notices([&outcome](int id) { outcome.notices.push_back(id); }),
      m_indexFiles(system.files),
      m_expressions(m_devices, m_texts, system.minuteOfDay),
      m_clipboard(terminal.in),
      m_prompter(terminal, m_texts, arguments.answer, outcome),
      m_view(terminal, outcome.language),
      m_host{m_setup, m_mainCfg, m_notices, m_texts, m_indexFiles, m_clipboard} {}

bool Session::Open() {
  if (!LoadLanguage() || !LoadConfiguration()) {
    return false;
  }
  m_list.emplace(m_host, m_system.files, m_prompter, m_view, m_configuration.DeviceGroups());
  m_list->ReadInstallation();
  m_list->Refresh();
  return true;
}

bool Session::LoadLanguage() {
  const std::string code = qv::NameOf(m_outcome.language).code;
  const std::wstring file =
      m_system.languageDirectory + std::wstring(code.begin(), code.end()) + L".txt";
  const bool loaded = m_texts.Load(file);
  if (!loaded) {
    m_outcome.Fail(Word::LanguageFileMissing, {file.c_str()});
  }
  return loaded;
}

bool Session::LoadConfiguration() {
  m_loaded = m_configuration.Load(m_setup.CfgPath().ToView());
  m_devices.Read(*m_mainCfg.Root());
  const bool isGood = m_loaded == Loaded::FromFile || m_loaded == Loaded::New;
  if (isGood || m_arguments.verb == Verb::Check) {
    return true;
  }
  m_outcome.Fail(
      m_loaded == Loaded::Foreign ? Word::ConfigurationForeign : Word::ConfigurationUnreadable,
      {m_arguments.installation.c_str()});
  return false;
}

qv::InstallationToCheck Session::ToCheck() const {
  return {.directory = m_setup.CfgPath(),
          .files = m_system.files,
          .configuration = StateAfter(m_loaded),
          .isEmbedded = m_configuration.IsEmbedded(),
          .deviceGroups = m_configuration.DeviceGroups(),
          .drivers = m_loaded == Loaded::FromFile ? &m_expressions : nullptr};
}

void Session::Perform() {
  if (m_arguments.verb == Verb::Check) {
    Check(ToCheck(), m_arguments, *m_view.NewProgress(), m_outcome);
  } else if (const auto rows = NamedRows(m_list->Rows(), m_arguments.stems, m_outcome)) {
    PerformOn(*rows);
  } else {
    TellUnreadable();
  }
}

void Session::TellUnreadable() {
  const qv::DiscriminatorDirectory directory(m_setup.CfgPath(), m_system.files);
  const auto files = directory.FileNames();
  for (const std::wstring& stem : m_arguments.stems) {
    for (const std::wstring& file : FilesNamed(files, stem)) {
      const QVWideString path = directory.PathOf(file);
      std::optional<qv::Refusal> refusal;
      if (!qv::DiscriminatorForm::Open({m_host, m_system.files, nullptr}, &path, &refusal)) {
        Tell(m_prompter, *refusal);
      }
    }
  }
}

void Session::PerformOn(const std::vector<int>& rows) {
  const qv::DiscriminatorDirectory directory(m_setup.CfgPath(), m_system.files);
  qv::DiscriminatorClipboard clipboard(m_host, m_system.files, *m_list);
  const auto stems = [&] { return StemsOf(m_list->Rows(), rows); };
  const Editing editing{m_host, m_system.files, m_prompter, m_expressions, m_arguments};
  switch (m_arguments.verb) {
    case Verb::List:
    case Verb::Check:
    case Verb::Names:
      return;
    case Verb::Eval:
      return Eval(m_arguments.expression, m_expressions, m_texts, m_outcome);
    case Verb::Show:
      return Show(directory, stems().front(), m_outcome);
    case Verb::Index:
      return Index(directory, stems(), *m_view.NewProgress(), m_outcome);
    case Verb::Copy:
      return Copy(clipboard, rows, m_clipboard, m_outcome);
    case Verb::Paste:
      return Paste(clipboard, m_outcome);
    case Verb::Add:
      return Add(*m_list, editing, m_outcome);
    case Verb::Modify:
      return Modify(*m_list, rows, editing, m_outcome);
    case Verb::HourType:
      return HourTypes(*m_list, rows, editing, m_outcome);
    case Verb::DayType:
      return DayTypes(*m_list, rows, editing, m_outcome);
    case Verb::Condition:
      return Conditions(*m_list, rows, editing, m_outcome);
    case Verb::Mark:
    case Verb::Unmark:
      return Mark(*m_list, rows, editing, m_outcome);
    case Verb::Remove:
      return Remove(*m_list, rows, m_prompter, m_outcome);
  }
}

void Session::Close() {
  for (const auto& row : m_list->Rows()) {
    m_outcome.rows.push_back(row.shown);
  }
  m_outcome.hostHasToSave = m_list->Changed();
  if (m_outcome.hostHasToSave) {
    Save();
  }
}

void Session::Save() {
  m_outcome.saved = m_configuration.Save();
  if (m_outcome.saved) {
    return;
  }
  // A failed saving may have taken the old file. What this program knows must not go with it.
  QVNarrowString content;
  m_mainCfg.CreateXmlCode(content, true);
  m_outcome.unsavedConfiguration = content.ToView();
  m_outcome.Fail(Word::ConfigurationNotSaved, {m_arguments.installation.c_str()});
}

}  // namespace qvdisc
