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
  bool inIsTerminal = false;
  bool outIsTerminal = false;
  bool errIsTerminal = false;
  qv::Language language = qv::Language::English;  ///< unless the call names one
  std::wstring languages;                         ///< directory of the language files
  qv::Files& files = qv::Files::Disk();
};

}  // namespace qvdisc
