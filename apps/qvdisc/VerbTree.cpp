#include "apps/qvdisc/VerbTree.h"

#include <CLI/CLI.hpp>

namespace qvdisc {
namespace {

void Collect(const CLI::App& app, const std::string& before, std::vector<NamedVerb>& verbs) {
  for (const CLI::App* verb : VerbsOf(app)) {
    verbs.push_back({before + verb->get_name(), verb});
    Collect(*verb, before + verb->get_name() + " ", verbs);
  }
}

}  // namespace

std::vector<const CLI::App*> VerbsOf(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App* verb) { return !verb->get_group().empty(); });
}

std::vector<NamedVerb> VerbsBelow(const CLI::App& app) {
  std::vector<NamedVerb> verbs;
  Collect(app, "", verbs);
  return verbs;
}

}  // namespace qvdisc
