#include "discriminator/DiscriminatorFile.h"

#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"

namespace qv {

QVWideString StemOfDocument(const XmlNode& root) {
  return FileStem(root.Value(tag::Id), root.Value(tag::Name));
}

std::optional<DiscriminatorSummary> SummaryOf(const XmlNode& root, ShowConditions showConditions) {
  if (root.Value(tag::Type) == word::Conditions && showConditions == ShowConditions::No) {
    return std::nullopt;
  }
  return DiscriminatorSummary{StemOfDocument(root), root.Value(tag::Name),
                              root.Value(tag::Description)};
}

}  // namespace qv
