#include "conditions/ConditionList.h"

#include <string>
#include <utility>

#include "discriminator/Fields.h"
#include "tools/Guid.h"
#include "tools/Nodes.h"
#include "tools/XmlDocument.h"

namespace qv {
namespace {

ConditionRow RowOf(XmlNode& condition) {
  return {&condition, condition.Value(tag::Name), condition.Value(tag::Expression)};
}

/// Runs the editor on a node that gets its content back on any end but a confirmation.
bool IsConfirmed(XmlNode& edited, const RunEditor& runEditor) {
  const XmlNode before(edited);
  try {
    if (runEditor(edited).confirmed) {
      return true;
    }
  } catch (...) {
    edited = before;
    throw;
  }
  edited = before;
  return false;
}

}  // namespace

ConditionList::ConditionList(OrderedConditions conditions, Prompter& prompter)
    : m_conditions(conditions), m_prompter(prompter) {
  Fill();
}

void ConditionList::Fill() {
  m_rows.clear();
  for (XmlNode& condition : ChildrenWithTag(&m_conditions.Node(), tag::Condition)) {
    m_rows.push_back(RowOf(condition));
  }
}

bool ConditionList::IsRow(std::optional<int> row) const {
  return row && *row >= 0 && *row < static_cast<int>(m_rows.size());
}

std::optional<int> ConditionList::RowToSelect(const QVWideString& name) const {
  std::size_t wanted = 0;
  for (std::size_t row = 0; row < m_rows.size(); ++row) {
    wanted = m_rows[row].name == name ? row : wanted;
  }
  return m_rows.empty() ? std::nullopt : std::optional(static_cast<int>(wanted));
}

bool ConditionList::OnAdd(const RunEditor& runEditor) {
  XmlDocument scratch;
  scratch.Create(tag::Condition);
  scratch.Root()->SetValue(tag::Id, NewGuidText());
  if (!runEditor(*scratch.Root()).confirmed) {
    return false;
  }
  XmlNode* added = m_conditions.Node().NewChild(tag::Condition, nullptr);
  *added = *scratch.Root();
  m_rows.push_back(RowOf(*added));
  m_modified = true;
  return true;
}

bool ConditionList::OnModify(std::optional<int> row, const RunEditor& runEditor) {
  if (!IsRow(row) || !IsConfirmed(NodeOf(*row), runEditor)) {
    return false;
  }
  m_rows[static_cast<std::size_t>(*row)] = RowOf(NodeOf(*row));
  m_modified = true;
  return true;
}

ListEnd ConditionList::OnRemove(const std::vector<int>& rows) {
  if (rows.empty() || !AskToRemove(rows)) {
    return {};
  }
  int last = 0;
  for (std::size_t removed = 0; removed < rows.size(); ++removed) {
    last = rows[removed] - static_cast<int>(removed);
    m_conditions.Node().RemoveChild(&NodeOf(last));
    m_rows.erase(m_rows.begin() + last);
  }
  m_modified = true;
  return {true, NearestRow(last, m_rows.size())};
}

bool ConditionList::AskToRemove(const std::vector<int>& rows) const {
  Addition names;
  for (const int index : rows) {
    const ConditionRow& row = m_rows.at(static_cast<std::size_t>(index));
    const QVWideString& told = row.name.Empty() ? row.expression : row.name;
    names.push_back({Text::ItemToRemove, {std::wstring(told.ToView())}});
  }
  return m_prompter.Ask(Text::RemoveConditionsQuestion, {}, Shortened(std::move(names)));
}

ListEnd ConditionList::OnUp(std::optional<int> row) { return Exchange(row, -1); }

ListEnd ConditionList::OnDown(std::optional<int> row) { return Exchange(row, 1); }

ListEnd ConditionList::Exchange(std::optional<int> row, int step) {
  if (!IsRow(row) || !IsRow(*row + step)) {
    return {};
  }
  XmlNode& moved = NodeOf(*row);
  XmlNode& partner = NodeOf(*row + step);
  const QVWideString expression = moved.Value(tag::Expression);
  const QVWideString name = moved.Value(tag::Name);
  moved.SetValue(tag::Expression, partner.Value(tag::Expression));
  moved.SetValue(tag::Name, partner.Value(tag::Name));
  partner.SetValue(tag::Expression, expression);
  partner.SetValue(tag::Name, name);
  Fill();
  return {true, RowToSelect(name)};
}

}  // namespace qv
