#pragma once

#include "hostkit/Language.h"

namespace qvdisc {

/// A text of the help and the manual page in both languages, in UTF-8.
struct Meaning {
  const char* spanish;
  const char* english;

  constexpr const char* In(qv::Language language) const {
    return language == qv::Language::Spanish ? spanish : english;
  }
};

}  // namespace qvdisc
