#include "apps/qvdisc/Session.h"

#include <algorithm>
#include <ostream>
#include <set>
#include <string>

#include "apps/qvdisc/Words.h"
#include "discriminator/FileNames.h"
#include "tools/Names.h"

namespace qvdisc {
namespace {

/// Tells on one line how far a reading is, every so often.
class ProgressLine : public qv::Progress {
 public:
  ProgressLine(std::ostream& err, qv::Language language, bool isSeen)
      : m_err(err), m_language(language), m_isSeen(isSeen) {}
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  ~ProgressLine() override {
    if (m_isShown) {
      m_err << "\r\033[K" << std::flush;
    }
  }

  bool Advance(std::size_t done, std::size_t total) override {
    constexpr std::size_t step = 50;
    if (m_isSeen && done > 0 && done % step == 0) {
      m_isShown = true;
      m_err << "\r\033[K"
            << NarrowWords(Word::Reading, m_language,
                           {static_cast<unsigned>(done), static_cast<unsigned>(total)})
            << std::flush;
    }
    return true;
  }

 private:
  std::ostream& m_err;
  qv::Language m_language;
  bool m_isSeen;
  bool m_isShown = false;
};

}  // namespace

Session::Session(const Arguments& arguments, const Terminal& terminal, const System& system,
                 Outcome& outcome)
    : m_arguments(arguments),
      m_terminal(terminal),
      m_system(system),
      m_outcome(outcome),
      m_language(arguments.language.value_or(system.language)),
      m_setup(arguments.installation, L"", 0),
      m_configuration(m_mainCfg, system.files),
      m_notices([&outcome](int id) { outcome.notices.push_back(id); }),
      m_indexFiles(system.files),
      m_clipboard(terminal.in),
      m_prompter(terminal, m_texts, arguments.answer, m_language, outcome) {}

bool Session::Open() {
  if (!LoadLanguage() || !LoadConfiguration()) {
    return false;
  }
  m_list.emplace(Services(), Files(), m_prompter, *this, m_configuration.DeviceGroups());
  m_list->ReadInstallation();
  Refresh();
  return true;
}

bool Session::LoadLanguage() {
  const std::string code = qv::NameOf(m_language).code;
  const std::wstring file =
      m_system.languageDirectory + std::wstring(code.begin(), code.end()) + L".txt";
  const bool loaded = m_texts.Load(file);
  if (!loaded) {
    m_outcome.Fail(Words(Word::LanguageFileMissing, m_language, {file.c_str()}));
  }
  return loaded;
}

bool Session::LoadConfiguration() {
  const auto refuse = [this](Word reason) {
    m_outcome.Fail(Words(reason, m_language, {m_arguments.installation.c_str()}));
    return false;
  };
  m_loaded = m_configuration.Load(Directory().ToView());
  if (m_arguments.verb == Verb::Check) {
    return true;
  }
  switch (m_loaded) {
    case qv::Configuration::Loaded::Unreadable:
      return refuse(Word::ConfigurationUnreadable);
    case qv::Configuration::Loaded::Foreign:
      return refuse(Word::ConfigurationForeign);
    case qv::Configuration::Loaded::FromFile:
    case qv::Configuration::Loaded::New:
      break;
  }
  return true;
}

qv::Host Session::Services() {
  return {m_setup, m_mainCfg, m_notices, m_texts, m_indexFiles, m_clipboard};
}

std::unique_ptr<qv::Progress> Session::NewProgress() {
  return std::make_unique<ProgressLine>(m_terminal.err, m_language, m_terminal.showsProgress);
}

void Session::Refresh() { m_list->Refresh(); }

std::optional<std::vector<int>> Session::NamedRows() {
  std::set<int> rows;
  for (const std::wstring& text : m_arguments.stems) {
    const auto row = NamedRow(text);
    if (!row) {
      return std::nullopt;
    }
    rows.insert(*row);
  }
  return std::vector<int>(rows.begin(), rows.end());
}

std::optional<int> Session::NamedRow(const std::wstring& text) {
  auto rows = RowsWhere([&](const auto& shown) { return shown.fileStem == text; });
  if (rows.empty()) {
    rows = RowsWhere([&](const auto& shown) { return qv::IdOfStem(shown.fileStem) == text; });
  }
  if (rows.empty()) {
    rows =
        RowsWhere([&](const auto& shown) { return qv::EqualUppered(shown.name.ToView(), text); });
  }
  if (rows.size() == 1) {
    return rows.front();
  }
  const Word reason = rows.empty() ? Word::NoSuchDiscriminator : Word::SeveralDiscriminators;
  m_outcome.Fail(Words(reason, m_language, {text.c_str()}));
  return std::nullopt;
}

std::vector<int> Session::RowsWhere(
    const std::function<bool(const qv::DiscriminatorSummary&)>& matches) {
  std::vector<int> rows;
  for (std::size_t i = 0; i < m_list->Rows().size(); ++i) {
    if (matches(m_list->Rows()[i].shown)) {
      rows.push_back(static_cast<int>(i));
    }
  }
  return rows;
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
  m_outcome.Fail(
      Words(Word::ConfigurationNotSaved, m_language, {m_arguments.installation.c_str()}));
}

}  // namespace qvdisc
