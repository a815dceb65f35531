#pragma once

#include <memory>
#include <vector>

#include "tools/Files.h"
#include "tools/XmlDocument.h"

/// What discriminators look like on the clipboard: one XML document with the root
/// `discriminatorClipboard`, and in it a `discriminator` for each, which holds the root of its
/// document.
namespace qv {

/// The payload of the files at `paths`, in their order; what can't be loaded is passed over.
QVNarrowString ComposePayload(const std::vector<QVWideString>& paths, Files& files);

/// The payload of the one discriminator whose document has this root.
QVNarrowString ComposePayload(const XmlNode& root);

/// The document of a payload, or null for any other text. Foreign text is refused at its first
/// element.
std::unique_ptr<XmlDocument> ParsePayload(const char* text);

/// The discriminators of a payload: of each `discriminator` its `main`, or else its `root`.
std::vector<const XmlNode*> ItemsOfPayload(const XmlDocument& payload);

}  // namespace qv
