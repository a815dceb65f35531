#pragma once

#include <string>

#include "apps/qvdisc/Arguments.h"
#include "apps/qvdisc/CallOptions.h"
#include "hostkit/Language.h"

namespace CLI {
class App;
}

namespace qvdisc {

/// Describes the whole command line: every verb with its options, and the help in `language`.
/// `texts` takes what the call gives, and outlives `app`.
void Describe(CLI::App& app, OptionTexts& texts, qv::Language language);

/// Which verb is called so, one of those that were described.
Verb VerbNamed(const std::string& name);

}  // namespace qvdisc
