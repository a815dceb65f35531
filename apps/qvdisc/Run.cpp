#include "apps/qvdisc/Run.h"

#include <ostream>

#include "apps/qvdisc/RehearsedFiles.h"
#include "apps/qvdisc/Reports.h"
#include "apps/qvdisc/Session.h"
#include "apps/qvdisc/Verbs.h"

namespace qvdisc {
namespace {

void Perform(const Arguments& arguments, const Terminal& terminal, const System& system,
             Outcome& outcome) {
  if (arguments.verb == Verb::Names) {
    const qv::DirectorySetup setup(arguments.installation, L"", 0);
    return Names({setup.CfgPath(), system.files}, outcome);
  }
  Session session(arguments, terminal, system, outcome);
  if (session.Open()) {
    session.Perform();
    session.Close();
  }
}

/// The same on a disk that stays as it is.
void Rehearse(const Arguments& arguments, const Terminal& terminal, const System& system,
              Outcome& outcome) {
  RehearsedFiles files(system.files);
  Perform(arguments, terminal,
          {system.language, system.languageDirectory, files, system.minuteOfDay}, outcome);
  outcome.changes = files.Changes();
}

void TellErrors(const Outcome& outcome, const Terminal& terminal) {
  for (const std::wstring& remark : outcome.remarks) {
    terminal.err << ErrorLine(Utf8(remark));
  }
  for (const std::wstring& error : outcome.errors) {
    const std::string line = ErrorLine(Utf8(error));
    terminal.err << (terminal.coloursErrors ? "\033[31m" + line + "\033[0m" : line);
  }
}

}  // namespace

int Run(const Arguments& arguments, const Terminal& terminal, const System& system) {
  Outcome outcome;
  outcome.language = arguments.language.value_or(system.language);
  (arguments.dryRun ? Rehearse : Perform)(arguments, terminal, system, outcome);
  terminal.out << (arguments.json ? JsonReport(arguments, outcome)
                                  : TextReport(arguments, outcome, terminal.coloursOutput))
               << std::flush;
  if (!terminal.out) {
    outcome.Fail(Word::OutputFailed);
  }
  TellErrors(outcome, terminal);
  return outcome.status;
}

}  // namespace qvdisc
