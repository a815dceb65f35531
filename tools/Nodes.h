#pragma once

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "tools/XmlNode.h"

/// Short ways to read a document's nodes.
namespace qv {

/// The value of the node's field with this tag; empty if there is none.
inline std::wstring FieldOf(const XmlNode& node, const wchar_t* tag) {
  return std::wstring(node.Value(tag).ToView());
}

/// The children of a node that have one tag, in order. `Node` is `XmlNode` or `const XmlNode`.
template <class Node>
class TaggedChildren {
 public:
  using Base = decltype(std::declval<Node&>().ChildsBegin());

  class iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Node;
    using difference_type = std::ptrdiff_t;
    using pointer = Node*;
    using reference = Node&;

    iterator() = default;
    iterator(Base at, Base end, std::wstring_view tag) : m_at(at), m_end(end), m_tag(tag) {
      SkipOthers();
    }

    reference operator*() const { return **m_at; }
    pointer operator->() const { return *m_at; }
    iterator& operator++() {
      ++m_at;
      SkipOthers();
      return *this;
    }
    iterator operator++(int) {
      iterator before = *this;
      ++*this;
      return before;
    }
    friend bool operator==(const iterator& a, const iterator& b) { return a.m_at == b.m_at; }

   private:
    void SkipOthers() {
      while (m_at != m_end && (*m_at)->Tag() != m_tag) {
        ++m_at;
      }
    }

    Base m_at{};
    Base m_end{};
    std::wstring_view m_tag;
  };

  /// Null has none. `tag` outlives the range.
  TaggedChildren(Node* node, std::wstring_view tag)
      : m_begin(node ? node->ChildsBegin() : Base{}),
        m_end(node ? node->ChildsEnd() : Base{}),
        m_tag(tag) {}

  /// A child may be removed once the iterator has left it.
  iterator begin() const { return {m_begin, m_end, m_tag}; }
  iterator end() const { return {m_end, m_end, m_tag}; }

 private:
  Base m_begin;
  Base m_end;
  std::wstring_view m_tag;
};

/// The children of `node` with this tag; none for null.
inline TaggedChildren<XmlNode> ChildrenWithTag(XmlNode* node, std::wstring_view tag) {
  return {node, tag};
}
inline TaggedChildren<const XmlNode> ChildrenWithTag(const XmlNode* node, std::wstring_view tag) {
  return {node, tag};
}
inline TaggedChildren<XmlNode> ChildrenWithTag(XmlNode& node, std::wstring_view tag) {
  return {&node, tag};
}
inline TaggedChildren<const XmlNode> ChildrenWithTag(const XmlNode& node, std::wstring_view tag) {
  return {&node, tag};
}

}  // namespace qv
