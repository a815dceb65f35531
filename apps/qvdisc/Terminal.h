#pragma once

#include <iosfwd>

namespace qvdisc {

/// The streams that the program reads and writes, and what stands at their other end. A test gives
/// texts in place of a terminal.
struct Terminal {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool canAsk = false;         ///< a user reads the errors and can answer
  bool showsProgress = false;  ///< a user sees the errors
  bool coloursOutput = false;
  bool coloursErrors = false;
};

}  // namespace qvdisc
