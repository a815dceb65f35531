#pragma once

#include <vector>

#include "discriminator/NewChildNode.h"
#include "tools/Colour.h"
#include "tools/XmlNode.h"

namespace qv {

/// An hour type or a day type as lists show it.
struct ColouredType {
  XmlNode* node = nullptr;
  QVWideString name;
  Colour colour = 0;
};

/// What `type` is called and which colour it has; a colour that is missing or wrong is black.
ColouredType ReadColouredType(XmlNode& type);

/// The children of `container` with this tag, in the order of the document; null has none.
std::vector<ColouredType> ReadColouredTypes(XmlNode* container, const wchar_t* tag);

/// The same, sorted by name without regard to case; types of equal name stand in the order of the
/// document.
std::vector<ColouredType> SortedColouredTypes(XmlNode* container, const wchar_t* tag);

/// A new type without a name, white, under an id of its own, at the end of its container, which
/// outlives it. It goes again unless it is kept.
NewChildNode NewWhiteType(XmlNode& container, const wchar_t* tag);

/// The hour type of a slot, by its id, or null if there is none or `hourTypes` is null.
const XmlNode* HourTypeOfSlot(const XmlNode& slot, const XmlNode* hourTypes);

}  // namespace qv
