#pragma once

#include <string>

#include "hostkit/ExpressionSupport.h"
#include "hostkit/Language.h"
#include "tools/Files.h"

namespace qvdisc {

/// What the program finds on the system that it runs on.
struct System {
  qv::Language language = qv::Language::English;  ///< of its user, unless the call names one
  std::wstring languageDirectory;                 ///< of the language files; ends in its separator
  qv::Files& files = qv::Files::Disk();
  qv::ExpressionSupport::Clock minuteOfDay = qv::LocalMinuteOfDay;  ///< of the present values
};

}  // namespace qvdisc
