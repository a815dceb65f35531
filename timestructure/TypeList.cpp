#include "timestructure/TypeList.h"

#include <algorithm>

#include "discriminator/EditedCopies.h"

namespace qv {

TypeList::TypeList(XmlNode& container, const wchar_t* tag) : m_container(container), m_tag(tag) {
  Fill();
}

void TypeList::Fill() { m_rows = SortedColouredTypes(&m_container, m_tag); }

ListEnd TypeList::OnAdd(const RunEditor& runEditor) {
  NewChildNode added = NewWhiteType(m_container, m_tag);
  if (!runEditor(added.Node()).confirmed) {
    return {};
  }
  added.Keep();
  m_modified = true;
  Fill();
  return {true, std::nullopt, RowOf(added.Node())};
}

ListEnd TypeList::OnModify(std::optional<int> row, const RunEditor& runEditor) {
  XmlNode* node = NodeOf(row);
  if (!node) {
    return {};
  }
  EditedCopies copies({node});
  if (!copies.TakeBack(runEditor(copies.Of(*node)), m_modified)) {
    return {};
  }
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
  return {true, NearestRow(*row, m_rows.size())};
}

int TypeList::RowOf(const XmlNode& type) const {
  const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                [&](const ColouredType& known) { return known.node == &type; });
  return static_cast<int>(row - m_rows.begin());
}

XmlNode* TypeList::NodeOf(std::optional<int> row) const {
  const bool isThere = row && *row >= 0 && *row < static_cast<int>(m_rows.size());
  return isThere ? m_rows[static_cast<std::size_t>(*row)].node : nullptr;
}

}  // namespace qv
