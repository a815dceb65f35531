#pragma once

#include <initializer_list>
#include <utility>

#include "tools/QVBasicString.h"
#include "tools/XmlNode.h"

namespace qv {

/// A new child at the end of a node, which goes again unless it is kept: for an editor that works
/// on the real node and may be cancelled, or throw.
class NewChildNode {
 public:
  using Field = std::pair<const wchar_t*, QVWideString>;

  /// Gives the child these fields, in their order. `parent` outlives this object.
  NewChildNode(XmlNode& parent, const wchar_t* tag, std::initializer_list<Field> fields)
      : m_parent(parent), m_node(parent.NewChild(tag, nullptr)) {
    for (const auto& [field, value] : fields) {
      m_node->SetValue(field, value);
    }
  }
  NewChildNode(const NewChildNode&) = delete;
  NewChildNode& operator=(const NewChildNode&) = delete;
  ~NewChildNode() {
    if (!m_kept) {
      m_parent.RemoveChild(m_node);
    }
  }

  XmlNode& Node() { return *m_node; }
  void Keep() { m_kept = true; }

 private:
  XmlNode& m_parent;
  XmlNode* m_node;
  bool m_kept = false;
};

}  // namespace qv
