#pragma once

#include <optional>

#include "tools/QVBasicString.h"
#include "tools/XmlNode.h"

/// What is told of a discriminator by the document in its file.
namespace qv {

/// The name without extension that the file of a document with this root has: `<id>.<name>` of its
/// own fields. What stands in these may be anything.
QVWideString StemOfDocument(const XmlNode& root);

/// What the list shows of a discriminator file.
struct DiscriminatorSummary {
  QVWideString fileStem;  ///< `<id>.<name>`
  QVWideString name;
  QVWideString description;  ///< may be empty
};

/// Whether discriminators of type CONDITIONS belong to the list.
enum class ShowConditions { No, Yes };

/// What the list shows of the discriminator whose document has this root; nothing if it is of the
/// hidden type.
std::optional<DiscriminatorSummary> SummaryOf(const XmlNode& root, ShowConditions showConditions);

}  // namespace qv
