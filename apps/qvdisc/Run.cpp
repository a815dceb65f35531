#include "apps/qvdisc/Run.h"

#include <ostream>

#include "apps/qvdisc/Reports.h"
#include "apps/qvdisc/Session.h"
#include "apps/qvdisc/Verbs.h"

namespace qvdisc {
namespace {

void TellErrors(const Outcome& outcome, const Surroundings& surroundings) {
  for (const std::wstring& error : outcome.errors) {
    const std::string line = ErrorLine(Utf8(OneLine(error)));
    surroundings.err << (surroundings.coloursErrors ? "\033[31m" + line + "\033[0m" : line);
  }
}

}  // namespace

int Run(const Arguments& arguments, const Surroundings& surroundings) {
  Outcome outcome;
  Session session(arguments, surroundings, outcome);
  if (session.Open()) {
    Perform(session);
    session.Close();
  }
  surroundings.out << (arguments.json ? JsonReport(arguments, outcome)
                                      : TextReport(arguments, outcome, session.Language(),
                                                   surroundings.coloursOutput))
                   << std::flush;
  if (!surroundings.out) {
    outcome.Fail(Words(Word::OutputFailed, session.Language()));
  }
  TellErrors(outcome, surroundings);
  return outcome.status;
}

}  // namespace qvdisc
