#pragma once

#include <string>

#include "hostkit/Language.h"

namespace CLI {
class App;
}

namespace qvdisc {

/// The manual page of `app` and its verbs, as input for man; `language` is that in which they were
/// described.
std::string ManualPage(const CLI::App& app, qv::Language language);

/// What bash has to source to complete calls of `app`: verbs, options, their values, directories,
/// and the discriminators of the installation that the call is for, which it asks the program for.
std::string BashCompletion(const CLI::App& app);

}  // namespace qvdisc
