#pragma once

#include <string>

namespace CLI {
class App;
}

namespace qvdisc {

/// The manual page of `app` and its verbs, as input for man.
std::string ManualPage(const CLI::App& app);

/// What bash has to source to complete calls of `app`: verbs, options, their values, directories,
/// and the discriminators of the installation that the call names.
std::string BashCompletion(const CLI::App& app);

}  // namespace qvdisc
