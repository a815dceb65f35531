#include "hostkit/IndexFiles.h"

#include "discriminator/DiscriminatorDirectory.h"
#include "discriminator/FileNames.h"

namespace qv {
namespace {

bool HasName(std::wstring_view discriminatorFile, std::wstring_view name) {
  const auto stem = WithoutExtension(discriminatorFile);
  return stem && NameOfStem(*stem) == name;
}

/// A file that is nobody's discriminator needs no index.
IndexOutcome WriteIndex(const DiscriminatorDirectory& directory, std::wstring_view fileName) {
  XmlDocument document;
  return directory.Load(document, fileName) ? directory.SaveIndex(*document.Root())
                                            : IndexOutcome::NotNeeded;
}

}  // namespace

IndexFiles::IndexFiles(Files& files) : m_files(files) {}

bool IndexFiles::operator()(const QVWideString& path, const QVWideString& fileName) {
  const auto name = WithoutExtension(fileName.ToView());
  if (!name) {
    return false;
  }
  const DiscriminatorDirectory directory(path, m_files);
  bool anyWritten = false;
  bool anyFailed = false;
  for (const auto& found : directory.FileNames()) {
    const auto outcome =
        HasName(found, *name) ? WriteIndex(directory, found) : IndexOutcome::NotNeeded;
    anyWritten |= outcome == IndexOutcome::Written;
    anyFailed |= outcome == IndexOutcome::NotWritten;
  }
  return anyWritten && !anyFailed;
}

}  // namespace qv
