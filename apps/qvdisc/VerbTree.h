#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace qvdisc {

/// A verb under its whole name, as in "hour-type add" for one that stands below another.
struct NamedVerb {
  std::string name;
  const CLI::App* verb = nullptr;
};

/// The verbs right below `app`, without those that aren't for people.
std::vector<const CLI::App*> VerbsOf(const CLI::App& app);

/// The same at every depth, each before those below it.
std::vector<NamedVerb> VerbsBelow(const CLI::App& app);

}  // namespace qvdisc
