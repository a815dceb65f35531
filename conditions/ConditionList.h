#pragma once

#include <optional>
#include <vector>

#include "discriminator/Containers.h"
#include "discriminator/ListEnd.h"
#include "host/EditorEnd.h"
#include "host/Prompter.h"

namespace qv {

/// One condition as its list shows it.
struct ConditionRow {
  XmlNode* node = nullptr;
  QVWideString name;
  QVWideString expression;
};

/// The conditions of a discriminator, as their dialog lists them: the children of their container
/// with one tag, in their order. Children with other tags are left alone.
class ConditionList {
 public:
  /// Both outlive the list.
  ConditionList(OrderedConditions conditions, Prompter& prompter);

  /// In the order of the document.
  const std::vector<ConditionRow>& Rows() const { return m_rows; }

  /// The row of the last condition with this name, or the first row; nothing if there are none.
  std::optional<int> RowToSelect(const QVWideString& name) const;

  /// Runs the editor on a new condition that lies outside the list and has an id of its own, and
  /// appends it if it was confirmed: true then. What is selected stays so. On any other end all is
  /// as it was.
  [[nodiscard]] bool OnAdd(const RunEditor& runEditor);

  /// Runs the editor on the row's condition itself, so that an editor can tell it from the others.
  /// True if it was confirmed: the row has new texts then. On any other end all is as it was.
  /// Does nothing without a row.
  [[nodiscard]] bool OnModify(std::optional<int> row, const RunEditor& runEditor);

  /// Asks once, and removes the conditions of these rows, which are in ascending order. The row
  /// that moved to the place of the last one is selected then, or the new last one. Asks nothing
  /// without a row, and does nothing after a No.
  ListEnd OnRemove(const std::vector<int>& rows);

  /// Exchanges name and expression of the row with those of the row above. Each id stays at its
  /// place, and the list doesn't count as modified. Selected is the last row with the name that was
  /// moved. Does nothing without a row, or if there is none above.
  ListEnd OnUp(std::optional<int> row);

  /// The same with the row below.
  ListEnd OnDown(std::optional<int> row);

  /// Whether anything was added, changed or removed; never cleared. Moves don't count.
  bool IsModified() const { return m_modified; }

 private:
  void Fill();
  bool IsRow(std::optional<int> row) const;
  XmlNode& NodeOf(int row) const { return *m_rows[static_cast<std::size_t>(row)].node; }
  bool AskToRemove(const std::vector<int>& rows) const;
  ListEnd Exchange(std::optional<int> row, int step);

  OrderedConditions m_conditions;
  Prompter& m_prompter;
  std::vector<ConditionRow> m_rows;
  bool m_modified = false;
};

}  // namespace qv
