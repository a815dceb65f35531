#include "checks/FileNameCheck.h"

#include "discriminator/FileNames.h"

namespace qv {

bool CheckFileName(const SeenFile& seen, Findings& findings) {
  const std::wstring_view stem = *WithoutExtension(seen.file);
  if (FileStem(QVWideString(seen.id.c_str()), QVWideString(seen.name.c_str())) == stem) {
    return true;
  }
  const auto name = NameOfStem(stem);
  if (!name) {
    findings.push_back({.kind = FindingKind::FileName, .file = seen.file});
    return false;
  }
  const std::wstring id = IdInFileName(seen.file);
  if (id != seen.id) {
    findings.push_back(
        {.kind = FindingKind::IdDiffers, .file = seen.file, .value = seen.id, .expected = id});
  }
  if (*name != seen.name) {
    findings.push_back({.kind = FindingKind::NameDiffers,
                        .file = seen.file,
                        .value = seen.name,
                        .expected = std::wstring(*name)});
  }
  return false;
}

std::wstring IdInFileName(const std::wstring& file) {
  return std::wstring(IdOfStem(QVWideString(std::wstring_view{file})).ToView());
}

}  // namespace qv
