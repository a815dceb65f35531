#pragma once

#include <string>
#include <vector>

#include "tools/XmlNode.h"

/// Short ways to read a document's nodes.
namespace qv {

/// The value of the node's field with this tag; empty if there is none.
std::wstring FieldOf(const XmlNode& node, const wchar_t* tag);

/// The children of `node` with this tag, in order; none for null.
std::vector<const XmlNode*> ChildrenWithTag(const XmlNode* node, const wchar_t* tag);

}  // namespace qv
