#pragma once

#include "tools/QVBasicString.h"
#include "tools/XmlNode.h"

/// What a discriminator's document must hold, whatever it was read from.
namespace qv {

/// What `Normalise` found.
struct NormalisedDocument {
  bool newId = false;  ///< there was no id, so that one was made
  QVWideString type;   ///< the type in force: the document's word, or "SLOTS" if that is empty
};

/// Gives `root` what it lacks of id, name, description, flag, type, and the containers of its type.
/// What is there stays as it is.
NormalisedDocument Normalise(XmlNode& root);

/// Makes the containers of `type` that `root` lacks: hourTypes, dayTypes and calendar for "SLOTS",
/// conditions for any other word.
void EnsureContainers(XmlNode& root, const QVWideString& type);

/// Removes the containers of the other type, of each tag the first: those of slots for
/// "CONDITIONS", conditions for any other word.
void DropOtherContainers(XmlNode& root, const QVWideString& type);

}  // namespace qv
