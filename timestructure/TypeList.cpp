#include "timestructure/TypeList.h"

#include <algorithm>

#include "discriminator/Fields.h"
#include "discriminator/NewChildNode.h"
#include "discriminator/ValueForms.h"
#include "tools/Guid.h"
#include "tools/Names.h"
#include "tools/Nodes.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

constexpr wchar_t white[] = L"FFFFFF";

}  // namespace

std::optional<int> RowAfterRemoval(int row, std::size_t count) {
  return count == 0 ? std::nullopt : std::optional(std::min(row, static_cast<int>(count) - 1));
}

TypeList::TypeList(XmlNode& container, const wchar_t* tag) : m_container(container), m_tag(tag) {
  Fill();
}

void TypeList::Fill() {
  m_rows.clear();
  for (XmlNode& type : ChildrenWithTag(m_container, m_tag)) {
    m_rows.push_back({&type, type.Value(tag::Name), ColourOfText(type.Value(tag::Color))});
  }
  std::stable_sort(m_rows.begin(), m_rows.end(), [](const TypeRow& a, const TypeRow& b) {
    return CompareLowered(a.name.ToView(), b.name.ToView()) < 0;
  });
}

ListEnd TypeList::OnAdd(const RunEditor& runEditor) {
  NewChildNode added(m_container, m_tag,
                     {{tag::Id, NewGuidText()}, {tag::Name, L""}, {tag::Color, white}});
  if (!runEditor(added.Node()).confirmed) {
    return {};
  }
  added.Keep();
  m_modified = true;
  Fill();
  return {true, std::nullopt};
}

ListEnd TypeList::OnModify(std::optional<int> row, const RunEditor& runEditor) {
  XmlNode* node = NodeOf(row);
  if (!node) {
    return {};
  }
  XmlDocument copy(*node);
  const EditorEnd end = runEditor(*copy.Root());
  if (!end.confirmed) {
    return {};
  }
  m_modified = m_modified || end.modified;
  *node = *copy.Root();
  Fill();
  return {true, row};
}

ListEnd TypeList::OnRemove(std::optional<int> row) {
  XmlNode* node = NodeOf(row);
  if (!node) {
    return {};
  }
  m_container.RemoveChild(node);
  Fill();
  m_modified = true;
  return {true, RowAfterRemoval(*row, m_rows.size())};
}

XmlNode* TypeList::NodeOf(std::optional<int> row) const {
  const bool isThere = row && *row >= 0 && *row < static_cast<int>(m_rows.size());
  return isThere ? m_rows[static_cast<std::size_t>(*row)].node : nullptr;
}

}  // namespace qv
