#pragma once

#include <list>
#include <memory>

#include "tools/Export.h"
#include "tools/Format.h"
#include "tools/QVBasicString.h"

namespace qv {

/// One node of a document: a tag, a text value and an ordered list of children. A field is a child
/// of which only the value is used. A node owns its children and never moves: its address holds
/// until it is removed.
///
/// A path names a child of the receiving node: an optional "/", a tag, and an optional predicate
/// "?field=value?". The result is the first child with the tag that has a child with the field's
/// tag and exactly that value. A path that isn't of this form names nothing.
class QVTOOLS_EXPORT XmlNode {
 public:
  using Children = std::list<XmlNode*>;
  using iterator = Children::iterator;
  using const_iterator = Children::const_iterator;

  explicit XmlNode(const QVWideString& tag);
  /// A deep copy: tag, value and children. What was copied is freed if there is no memory for all.
  XmlNode(const XmlNode& source);
  ~XmlNode();

  /// Replaces value and children by deep copies of those of `source`, and leaves the tag and the
  /// place of this node. `source` may lie below this node.
  XmlNode& operator=(const XmlNode& source);

  const QVWideString& Tag() const { return m_tag; }
  const QVWideString& Value() const { return m_value; }
  /// The value of the node that `path` names, or `otherwise` if there is none.
  QVWideString Value(const wchar_t* path, const wchar_t* otherwise = L"") const;

  /// The node that `path` names, or null.
  XmlNode* Node(const wchar_t* path);
  const XmlNode* Node(const wchar_t* path) const;

  /// As `Node`, with the path made by `qv::Format`. The arguments aren't escaped.
  template <class... Arguments>
  XmlNode* NodeV(const wchar_t* format, const Arguments&... arguments) {
    return Node(Format(format, {FormatArgument(arguments)...}).c_str());
  }
  template <class... Arguments>
  const XmlNode* NodeV(const wchar_t* format, const Arguments&... arguments) const {
    return Node(Format(format, {FormatArgument(arguments)...}).c_str());
  }

  /// Sets this node's own value.
  void SetValue(const QVWideString& value) { m_value = value; }
  /// Sets the value of the first child with this tag, which is made at the end if there is none.
  void SetValue(const wchar_t* tag, const wchar_t* value);
  void SetValue(const wchar_t* tag, const QVWideString& value);

  /// Appends a new child without value, even if there is one with that tag, and returns it. The
  /// second argument is reserved: callers pass null, and it is not looked at.
  XmlNode* NewChild(const wchar_t* tag, XmlNode* reserved);

  /// Destroys `child` with all below it; a node that is no child of this one is left alone.
  void RemoveChild(XmlNode* child);

  /// Removes the first child with this tag; whether there was one.
  bool EraseTag(const wchar_t* tag);

  /// Clears value and children; the node stays with its tag.
  void Reset();

  iterator ChildsBegin() { return m_children.begin(); }
  iterator ChildsEnd() { return m_children.end(); }
  const_iterator ChildsBegin() const { return m_children.begin(); }
  const_iterator ChildsEnd() const { return m_children.end(); }

  /// Whether tag, value and children are equal, in order and all the way down.
  friend QVTOOLS_EXPORT bool operator==(const XmlNode& a, const XmlNode& b);

 private:
  void CopyChildren(const Children& source);

  QVWideString m_tag;
  QVWideString m_value;
  Children m_children;
};

}  // namespace qv
