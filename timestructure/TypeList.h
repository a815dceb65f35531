#pragma once

#include <optional>
#include <vector>

#include "discriminator/ColouredType.h"
#include "discriminator/ListEnd.h"
#include "host/EditorEnd.h"

namespace qv {

/// The hour types or the day types of a discriminator, as their dialog lists them: the children of
/// a container with one tag, sorted by name. Children with other tags are left alone.
class TypeList {
 public:
  /// `container` outlives the list.
  TypeList(XmlNode& container, const wchar_t* tag);

  /// Sorted by name without regard to case; types of equal name stand in the order of the document.
  const std::vector<ColouredType>& Rows() const { return m_rows; }

  /// Appends a new type without a name, white, and runs the editor on it. On any end but a
  /// confirmation it is removed again. Afterwards no row is selected.
  ListEnd OnAdd(const RunEditor& runEditor);

  /// Runs the editor on a copy of the row's type, and takes the copy over if it was confirmed, also
  /// without a change. The row at the same place is selected then, which after a new name may be
  /// another type's. Does nothing without a row.
  ListEnd OnModify(std::optional<int> row, const RunEditor& runEditor);

  /// Removes the row's type, without a question. The row that moves to its place is selected then,
  /// or the new last one. Does nothing without a row. What refers to the type stays as it is.
  ListEnd OnRemove(std::optional<int> row);

  /// Whether anything was added, changed or removed; never cleared.
  bool IsModified() const { return m_modified; }

 private:
  void Fill();
  XmlNode* NodeOf(std::optional<int> row) const;
  int RowOf(const XmlNode& type) const;

  XmlNode& m_container;
  const wchar_t* m_tag;
  std::vector<ColouredType> m_rows;
  bool m_modified = false;
};

}  // namespace qv
