#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "apps/qvdisc/Arguments.h"
#include "apps/qvdisc/Outcome.h"
#include "apps/qvdisc/StreamClipboard.h"
#include "apps/qvdisc/System.h"
#include "apps/qvdisc/Terminal.h"
#include "apps/qvdisc/UserPrompter.h"
#include "hostkit/Configuration.h"
#include "hostkit/DirectorySetup.h"
#include "hostkit/GuidNotices.h"
#include "hostkit/IndexFiles.h"
#include "hostkit/LanguageFile.h"
#include "manager/DiscriminatorList.h"

namespace qvdisc {

/// One call of the program on one installation: the services that the rules ask of a host, and the
/// list of discriminators, as the manager dialog has them.
class Session : public qv::DiscriminatorListView {
 public:
  /// All references outlive the session.
  Session(const Arguments& arguments, const Terminal& terminal, const System& system,
          Outcome& outcome);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// Reads language, configuration and list. False, and the outcome tells why, if that isn't
  /// possible; a check also works without a good configuration.
  bool Open();

  /// Reads the list, with a line that tells how far it is if a user sees it.
  void Refresh();
  /// Tells how far a reading is, on a line that goes with it, if a user sees it.
  std::unique_ptr<qv::Progress> NewProgress() override;

  /// The rows that the call names, in ascending order and each once; nothing, and the outcome tells
  /// why, if one of the names is of no row or of several.
  std::optional<std::vector<int>> NamedRows();

  /// Does what a host does after the manager dialog: saves the configuration if something changed.
  void Close();

  const Arguments& Call() const { return m_arguments; }
  qv::Language Language() const { return m_language; }
  Outcome& Result() { return m_outcome; }
  qv::Host Services();
  qv::Prompter& Prompter() { return m_prompter; }
  qv::Files& Files() { return m_system.files; }
  qv::DiscriminatorList& List() { return *m_list; }
  qv::Configuration& Config() { return m_configuration; }
  qv::Configuration::Loaded ConfigLoaded() const { return m_loaded; }
  const StreamClipboard& Clipboard() const { return m_clipboard; }
  const QVWideString& Directory() const { return m_setup.CfgPath(); }

 private:
  bool LoadLanguage();
  bool LoadConfiguration();
  void Save();
  std::optional<int> NamedRow(const std::wstring& text);
  std::vector<int> RowsWhere(const std::function<bool(const qv::DiscriminatorSummary&)>& matches);

  const Arguments& m_arguments;
  const Terminal& m_terminal;
  const System& m_system;
  Outcome& m_outcome;
  qv::Language m_language;
  qv::DirectorySetup m_setup;
  QVMainCfg m_mainCfg;
  qv::Configuration m_configuration;
  qv::Configuration::Loaded m_loaded = qv::Configuration::Loaded::New;
  qv::GuidNotices m_notices;
  qv::LanguageFile m_texts;
  qv::IndexFiles m_indexFiles;
  StreamClipboard m_clipboard;
  UserPrompter m_prompter;
  std::optional<qv::DiscriminatorList> m_list;
};

}  // namespace qvdisc
