#include <algorithm>

#include "apps/qvdisc/Verbs.h"
#include "discriminator/FileNames.h"

namespace qvdisc {

void Names(const qv::DiscriminatorDirectory& directory, Outcome& outcome) {
  std::vector<std::wstring> names;
  for (const std::wstring& file : directory.FileNames()) {
    const auto stem = qv::WithoutExtension(file);
    const auto name = stem ? qv::NameOfStem(*stem) : std::nullopt;
    if (stem) {
      outcome.names.emplace_back(*stem);
    }
    if (name) {
      names.emplace_back(*name);
    }
  }
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  outcome.names.insert(outcome.names.end(), names.begin(), names.end());
}

}  // namespace qvdisc
