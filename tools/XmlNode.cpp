#include "tools/XmlNode.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace qv {
namespace {

/// A path taken apart.
struct Path {
  std::wstring_view tag;
  bool hasPredicate = false;
  std::wstring_view field;
  std::wstring_view value;
};

/// The parts of `text`, or nothing if it has a "?" and isn't "tag?field=value?".
std::optional<Path> Resolve(std::wstring_view text) {
  if (text.starts_with(L'/')) {
    text.remove_prefix(1);
  }
  const std::size_t question = text.find(L'?');
  Path path{text.substr(0, question), false, {}, {}};
  if (question == std::wstring_view::npos) {
    return path;
  }
  const std::wstring_view rest = text.substr(question + 1);
  const std::size_t closing = rest.find(L'?');
  const std::size_t equals = rest.find(L'=');
  if (closing == std::wstring_view::npos || equals > closing) {
    return std::nullopt;
  }
  path.hasPredicate = true;
  path.field = rest.substr(0, equals);
  path.value = rest.substr(equals + 1, closing - equals - 1);
  return path;
}

bool Satisfies(const XmlNode& node, const Path& path) {
  if (node.Tag() != path.tag) {
    return false;
  }
  return !path.hasPredicate ||
         std::any_of(node.ChildsBegin(), node.ChildsEnd(), [&](const XmlNode* field) {
           return field->Tag() == path.field && field->Value() == path.value;
         });
}

/// The first child of `node`, const or not, that `path` names, or null.
template <class Node>
Node* FindChild(Node& node, const wchar_t* path) {
  const auto resolved = Resolve(path);
  if (!resolved) {
    return nullptr;
  }
  const auto found = std::find_if(node.ChildsBegin(), node.ChildsEnd(), [&](const XmlNode* child) {
    return Satisfies(*child, *resolved);
  });
  return found == node.ChildsEnd() ? nullptr : *found;
}

void Destroy(XmlNode::Children& children) {
  for (XmlNode* child : children) {
    delete child;
  }
  children.clear();
}

}  // namespace

XmlNode::XmlNode(const QVWideString& tag) : m_tag(tag) {}

// The node is whole once the first constructor has ended, so that its destructor frees the children
// that there are if a later one can't be copied.
XmlNode::XmlNode(const XmlNode& source) : XmlNode(source.m_tag) {
  m_value = source.m_value;
  CopyChildren(source.m_children);
}

XmlNode::~XmlNode() { Destroy(m_children); }

XmlNode& XmlNode::operator=(const XmlNode& source) {
  if (this != &source) {
    XmlNode copy(source);
    m_children.swap(copy.m_children);
    m_value = std::move(copy.m_value);
  }
  return *this;
}

void XmlNode::CopyChildren(const Children& source) {
  for (const XmlNode* child : source) {
    auto copy = std::make_unique<XmlNode>(*child);
    m_children.push_back(copy.get());
    copy.release();
  }
}

QVWideString XmlNode::Value(const wchar_t* path, const wchar_t* otherwise) const {
  const XmlNode* node = Node(path);
  return node ? node->m_value : QVWideString(otherwise);
}

XmlNode* XmlNode::Node(const wchar_t* path) { return FindChild(*this, path); }

const XmlNode* XmlNode::Node(const wchar_t* path) const { return FindChild(*this, path); }

void XmlNode::SetValue(const wchar_t* tag, const wchar_t* value) {
  SetValue(tag, QVWideString(value, false));
}

void XmlNode::SetValue(const wchar_t* tag, const QVWideString& value) {
  const auto found = std::find_if(m_children.begin(), m_children.end(),
                                  [&](const XmlNode* child) { return child->m_tag == tag; });
  XmlNode* field = found == m_children.end() ? NewChild(tag, nullptr) : *found;
  field->SetValue(value);
}

XmlNode* XmlNode::NewChild(const wchar_t* tag, XmlNode* /*reserved*/) {
  auto child = std::make_unique<XmlNode>(QVWideString(tag));
  m_children.push_back(child.get());
  return child.release();
}

void XmlNode::RemoveChild(XmlNode* child) {
  const auto found = std::find(m_children.begin(), m_children.end(), child);
  if (found != m_children.end()) {
    m_children.erase(found);
    delete child;
  }
}

bool XmlNode::EraseTag(const wchar_t* tag) {
  const auto found = std::find_if(m_children.begin(), m_children.end(),
                                  [&](const XmlNode* child) { return child->m_tag == tag; });
  if (found == m_children.end()) {
    return false;
  }
  RemoveChild(*found);
  return true;
}

void XmlNode::Reset() {
  Destroy(m_children);
  m_value = QVWideString();
}

bool operator==(const XmlNode& a, const XmlNode& b) {
  return a.m_tag == b.m_tag && a.m_value == b.m_value &&
         std::equal(a.m_children.begin(), a.m_children.end(), b.m_children.begin(),
                    b.m_children.end(),
                    [](const XmlNode* x, const XmlNode* y) { return *x == *y; });
}

}  // namespace qv
