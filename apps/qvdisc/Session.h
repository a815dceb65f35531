#pragma once

#include <optional>
#include <vector>

#include "apps/qvdisc/Arguments.h"
#include "apps/qvdisc/Outcome.h"
#include "apps/qvdisc/StreamClipboard.h"
#include "apps/qvdisc/System.h"
#include "apps/qvdisc/Terminal.h"
#include "apps/qvdisc/TerminalView.h"
#include "apps/qvdisc/UserPrompter.h"
#include "hostkit/Configuration.h"
#include "hostkit/DeviceModel.h"
#include "hostkit/DirectorySetup.h"
#include "hostkit/ExpressionSupport.h"
#include "hostkit/GuidNotices.h"
#include "hostkit/IndexFiles.h"
#include "hostkit/LanguageFile.h"
#include "manager/DiscriminatorList.h"

namespace qvdisc {

/// One call of the program on one installation: the services that the rules ask of a host, and the
/// list of discriminators, as the manager dialog has them.
class Session {
 public:
  /// All references outlive the session.
  Session(const Arguments& arguments, const Terminal& terminal, const System& system,
          Outcome& outcome);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// Reads language, configuration and list. False, and the outcome tells why, if that isn't
  /// possible; a check also works without a good configuration.
  [[nodiscard]] bool Open();

  /// Does what the call asks for; the outcome tells how that ended.
  void Perform();

  /// Does what a host does after the manager dialog: saves the configuration if something changed.
  void Close();

 private:
  [[nodiscard]] bool LoadLanguage();
  [[nodiscard]] bool LoadConfiguration();
  qv::InstallationToCheck ToCheck() const;
  /// Does what the call asks for, with the rows that it names.
  void PerformOn(const std::vector<int>& rows);
  /// Tells why files that the call names can't be read, since the list doesn't have them.
  void TellUnreadable();
  void Save();

  const Arguments& m_arguments;
  const System& m_system;
  Outcome& m_outcome;
  qv::DirectorySetup m_setup;
  QVMainCfg m_mainCfg;
  qv::Configuration m_configuration;
  qv::Configuration::Loaded m_loaded = qv::Configuration::Loaded::New;
  qv::GuidNotices m_notices;
  qv::LanguageFile m_texts;
  qv::IndexFiles m_indexFiles;
  qv::DeviceModel m_devices;
  qv::ExpressionSupport m_expressions;
  StreamClipboard m_clipboard;
  UserPrompter m_prompter;
  TerminalView m_view;
  qv::Host m_host;
  std::optional<qv::DiscriminatorList> m_list;
};

}  // namespace qvdisc
