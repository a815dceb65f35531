#include "apps/qvdisc/NamedFiles.h"

#include <algorithm>
#include <iterator>

#include "discriminator/FileNames.h"
#include "tools/Names.h"

namespace qvdisc {
namespace {

/// Whether the call names the discriminator file by its stem, or by id or name alone.
bool IsNamed(const std::wstring& file, const std::wstring& text) {
  const auto stem = qv::WithoutExtension(file).value_or(file);
  const auto name = qv::NameOfStem(stem);
  return stem == text || qv::IdOfStem(QVWideString(stem)) == text ||
         (name && qv::EqualUppered(*name, text));
}

}  // namespace

std::vector<std::wstring> FilesNamed(const std::vector<std::wstring>& files,
                                     const std::wstring& name) {
  std::vector<std::wstring> named;
  std::copy_if(files.begin(), files.end(), std::back_inserter(named),
               [&](const std::wstring& file) { return IsNamed(file, name); });
  return named;
}

}  // namespace qvdisc
