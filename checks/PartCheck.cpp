#include "checks/PartCheck.h"

#include "discriminator/Fields.h"
#include "tools/Nodes.h"

namespace qv {

PartIds CheckParts(const XmlNode& root, const wchar_t* container, const wchar_t* part,
                   Findings& findings) {
  PartIds ids;
  std::set<std::wstring> names;
  const auto tellTwice = [&](std::set<std::wstring>& known, const XmlNode& node,
                             const wchar_t* field) {
    const std::wstring value = FieldOf(node, field);
    if (!known.insert(value).second) {
      findings.push_back({.kind = FindingKind::DuplicatePart,
                          .place = container,
                          .value = value,
                          .expected = field});
    }
  };
  for (const XmlNode& node : ChildrenWithTag(root.Node(container), part)) {
    tellTwice(ids, node, tag::Id);
    tellTwice(names, node, tag::Name);
  }
  return ids;
}

}  // namespace qv
