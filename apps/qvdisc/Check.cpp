#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "apps/qvdisc/NamedFiles.h"
#include "apps/qvdisc/Verbs.h"

namespace qvdisc {
namespace {

/// The files that the call names, in order; nothing, and the outcome tells why, if one of the names
/// is of no file.
std::optional<std::set<std::wstring>> AllNamed(const std::vector<std::wstring>& files,
                                               const std::vector<std::wstring>& names,
                                               Outcome& outcome) {
  std::set<std::wstring> all;
  for (const std::wstring& name : names) {
    const auto named = FilesNamed(files, name);
    if (named.empty()) {
      outcome.Fail(Word::NoSuchDiscriminator, {name.c_str()});
      return std::nullopt;
    }
    all.insert(named.begin(), named.end());
  }
  return all;
}

/// Leaves what was found in these files and in their index files.
void Keep(const std::set<std::wstring>& files, qv::CheckedInstallation& checked) {
  checked.files.assign(files.begin(), files.end());
  std::erase_if(checked.findings, [&](const qv::Finding& finding) {
    const bool isIndex = finding.kind == qv::FindingKind::IndexWithoutUse;
    return files.count(finding.file.substr(0, finding.file.size() - (isIndex ? 1 : 0))) == 0;
  });
}

}  // namespace

void Check(const qv::InstallationToCheck& installation, const Arguments& call,
           qv::Progress& progress, Outcome& outcome) {
  auto checked = qv::CheckInstallation(installation, progress);
  if (!call.stems.empty()) {
    const auto named = AllNamed(checked.files, call.stems, outcome);
    if (!named) {
      return;
    }
    Keep(*named, checked);
  }
  outcome.checked = std::move(checked);
  const bool hasCountedNotes = call.strict && outcome.checked.Notes() > 0;
  outcome.status = outcome.checked.Faults() > 0 || hasCountedNotes ? 1 : 0;
}

}  // namespace qvdisc
