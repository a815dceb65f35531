#pragma once

#include <optional>
#include <string>

#include "tools/Export.h"
#include "tools/XmlNode.h"

namespace qv {

/// Whether the text starts with an XML declaration, as a file does, or is the bare element.
enum class Declaration { No, Yes };

/// The XML text of `root` and all below it, in UTF-8. What `XmlReader` makes of it is equal to
/// `root`.
///
/// A node that has children and no value stands on lines of its own, indented by two spaces a
/// level; the text of a leaf stands verbatim, with carriage return, tab and line feed as
/// references; a node with both is written without added white space. Nothing for a tree that can't
/// be read back: a character that XML can't carry, a tag that is no name, or sizes beyond the
/// reader's limits.
QVTOOLS_EXPORT std::optional<std::string> WriteXml(const XmlNode& root, Declaration declaration);

}  // namespace qv
