#pragma once

#include <iosfwd>
#include <string>

#include "hostkit/Language.h"
#include "tools/Files.h"

namespace qvdisc {

/// What the program runs in. A test gives texts in place of the terminal.
struct Surroundings {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool canAsk = false;         ///< a user reads the errors and can answer
  bool showsProgress = false;  ///< a user sees the errors
  bool coloursOutput = false;
  bool coloursErrors = false;
  qv::Language language = qv::Language::English;  ///< unless the call names one
  std::wstring languages;                         ///< directory of the language files
  qv::Files& files = qv::Files::Disk();
};

}  // namespace qvdisc
