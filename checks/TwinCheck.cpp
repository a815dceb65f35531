#include "checks/TwinCheck.h"

#include <map>

#include "tools/QVBasicString.h"

namespace qv {
namespace {

std::wstring UpperCased(const std::wstring& text) {
  QVWideString upper{std::wstring_view{text}};
  upper.MakeUpper();
  return std::wstring(upper.ToView());
}

}  // namespace

void CheckTwins(const SeenFiles& seen, Findings& findings) {
  std::map<std::wstring, int> ids;
  std::map<std::wstring, int> names;
  for (const SeenFile& file : seen) {
    if (file.isRead) {
      ++ids[file.id];
      ++names[UpperCased(file.name)];
    }
  }
  for (const SeenFile& file : seen) {
    if (file.isRead && ids[file.id] > 1) {
      findings.push_back({.kind = FindingKind::DuplicateId, .file = file.file, .value = file.id});
    }
    if (file.isRead && names[UpperCased(file.name)] > 1) {
      findings.push_back(
          {.kind = FindingKind::DuplicateName, .file = file.file, .value = file.name});
    }
  }
}

}  // namespace qv
