#include "discriminator/Nodes.h"

#include <algorithm>
#include <iterator>

namespace qv {

std::wstring FieldOf(const XmlNode& node, const wchar_t* tag) {
  return std::wstring(node.Value(tag, L"").ToView());
}

std::vector<const XmlNode*> ChildrenWithTag(const XmlNode* node, const wchar_t* tag) {
  std::vector<const XmlNode*> children;
  if (node) {
    std::copy_if(node->ChildsBegin(), node->ChildsEnd(), std::back_inserter(children),
                 [&](const XmlNode* child) { return child->Tag() == tag; });
  }
  return children;
}

}  // namespace qv
