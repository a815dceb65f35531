#include "discriminator/DiscriminatorFile.h"

#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"

namespace qv {
namespace {

QVWideString StemOfFields(const XmlNode& root) {
  return FileStem(root.Value(tag::Id), root.Value(tag::Name));
}

}  // namespace

bool LoadDiscriminator(XmlDocument& document, const QVWideString& directory,
                       std::wstring_view fileName, Files& files) {
  return document.Load(directory + QVWideString(fileName), files) &&
         StemOfFields(*document.Root()) + discriminatorExtension == fileName;
}

std::optional<QVWideString> PathOfDocument(const XmlNode& root, const QVWideString& directory) {
  const auto stem = StemOfFields(root);
  return IsFileStem(stem) ? std::optional(DiscriminatorPath(directory, stem)) : std::nullopt;
}

std::optional<DiscriminatorSummary> GetDiscriminatorIdNameDescription(const QVWideString& directory,
                                                                      std::wstring_view fileName,
                                                                      ShowConditions showConditions,
                                                                      Files& files) {
  XmlDocument document;
  if (!LoadDiscriminator(document, directory, fileName, files)) {
    return std::nullopt;
  }
  const XmlNode& root = *document.Root();
  if (root.Value(tag::Type) == word::Conditions && showConditions == ShowConditions::No) {
    return std::nullopt;
  }
  return DiscriminatorSummary{StemOfFields(root), root.Value(tag::Name),
                              root.Value(tag::Description)};
}

}  // namespace qv
