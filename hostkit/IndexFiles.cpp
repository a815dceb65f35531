#include "hostkit/IndexFiles.h"

#include "discriminator/DiscriminatorFile.h"
#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "discriminator/IndexDocument.h"

namespace qv {
namespace {

bool HasName(std::wstring_view discriminatorFile, std::wstring_view name) {
  const auto stem = WithoutExtension(discriminatorFile);
  return stem && NameOfStem(*stem) == name;
}

/// How one file fared.
enum class Outcome { NotConcerned, Written, Failed };

Outcome WriteIndex(const QVWideString& directory, std::wstring_view fileName, Files& files) {
  XmlDocument document;
  if (!LoadDiscriminator(document, directory, fileName, files)) {
    return Outcome::NotConcerned;
  }
  const XmlNode* hourTypes = document.Root()->Node(tag::HourTypes);
  if (!hourTypes) {
    return Outcome::NotConcerned;
  }
  const QVWideString path = IndexPath(directory + QVWideString(fileName));
  return MakeIndexDocument(*hourTypes)->SaveAs(path, files) ? Outcome::Written : Outcome::Failed;
}

}  // namespace

IndexFiles::IndexFiles(Files& files) : m_files(files) {}

bool IndexFiles::operator()(const QVWideString& directory, const QVWideString& fileName) {
  const auto name = WithoutExtension(fileName.ToView());
  bool anyWritten = false;
  bool anyFailed = false;
  if (name) {
    for (const auto& found : m_files.Walk((directory + discriminatorPattern).ToView())) {
      const auto outcome =
          HasName(found, *name) ? WriteIndex(directory, found, m_files) : Outcome::NotConcerned;
      anyWritten |= outcome == Outcome::Written;
      anyFailed |= outcome == Outcome::Failed;
    }
  }
  return anyWritten && !anyFailed;
}

}  // namespace qv
