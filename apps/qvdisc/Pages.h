#pragma once

#include <string>
#include <utility>

namespace CLI {
class App;
}

namespace qvdisc {

/// The description of the command line, of which help, pages and completion are all made, asks for
/// this text in place of any work.
struct Page {
  explicit Page(std::string content) : text(std::move(content)) {}

  std::string text;
};

/// The manual page of `app` and its verbs, as input for man.
std::string ManualPage(const CLI::App& app);

/// What bash has to source to complete calls of `app`: verbs, options, their values, directories,
/// and the discriminators of the installation that the call names.
std::string BashCompletion(const CLI::App& app);

}  // namespace qvdisc
