#include "variables/VariableMatrix.h"

#include <algorithm>
#include <utility>

#include "tools/XmlText.h"

namespace qv {
namespace {

constexpr std::wstring_view keysOfEveryDevice[] = {L"STATUS", L"VDTTM"};

bool IsOfEveryDevice(std::wstring_view key) {
  return std::find(std::begin(keysOfEveryDevice), std::end(keysOfEveryDevice), key) !=
         std::end(keysOfEveryDevice);
}

/// A variable of a driver that is closed again, whatever becomes of it.
class OpenedVariable {
 public:
  OpenedVariable(QVDriver& driver, const std::wstring& key)
      : m_driver(driver), m_isOpen(driver.OpenVariable(key.c_str(), &m_handle)) {}
  OpenedVariable(const OpenedVariable&) = delete;
  OpenedVariable& operator=(const OpenedVariable&) = delete;
  ~OpenedVariable() {
    if (m_isOpen) {
      m_driver.CloseVariable(&m_handle);
    }
  }

  /// What the driver says of it; nothing if it couldn't be opened or the driver can't say.
  std::optional<VariableInfo> Info() const {
    VariableInfo info;
    const bool isKnown = m_isOpen && m_driver.GetVariableInfo(m_handle, &info, 0);
    return isKnown ? std::optional(info) : std::nullopt;
  }

 private:
  QVDriver& m_driver;
  void* m_handle = nullptr;
  bool m_isOpen;
};

std::optional<ItemCategory> CategoryOf(const QVWideString& word) {
  if (word == L"DAY") {
    return ItemCategory::DayType;
  }
  if (word == L"HOUR") {
    return ItemCategory::HourType;
  }
  return word == L"COND" ? std::optional(ItemCategory::Condition) : std::nullopt;
}

std::pair<QVWideString, QVWideString> Split(const QVWideString& variable) {
  std::pair<QVWideString, QVWideString> parts;
  SplitDriverVariable(variable, parts.first, parts.second, false);
  return parts;
}

}  // namespace

std::unique_ptr<VariableMatrix> VariableMatrix::Read(QVDriver& driver, const std::bitset<34>& mask,
                                                     int maximum, Prompter& prompter) {
  if ((driver.VariableClasses() & mask).none()) {
    return nullptr;
  }
  std::unique_ptr<VariableMatrix> matrix(new VariableMatrix(driver, maximum, prompter));
  const auto end = driver.VariablesEnd();
  for (auto variable = driver.VariablesBegin(); variable != end; ++variable) {
    if (IsOfEveryDevice(variable->first)) {
      continue;
    }
    const auto info = OpenedVariable(driver, variable->first).Info();
    if (info && (info->classes & mask).any()) {
      matrix->Offer(*info);
    }
  }
  return matrix->m_rows.empty() ? nullptr : std::move(matrix);
}

void VariableMatrix::Offer(const VariableInfo& info) {
  const auto [categoryWord, rest] = Split(info.name);
  const auto category = CategoryOf(categoryWord);
  const QVWideString item = Split(rest).first;
  if (!category || item.Empty()) {
    return;
  }
  QVWideString description;
  ParseXMLText(info.description, description);
  RowOf(*category, std::wstring(item.ToView()))
      .cells.push_back({.variable = info.name, .description = std::wstring(description.ToView())});
}

VariableRow& VariableMatrix::RowOf(ItemCategory category, const std::wstring& item) {
  const auto [place, isNew] = m_places.try_emplace({category, item}, m_rows.size());
  if (isNew) {
    m_rows.push_back({.item = item, .category = category});
  }
  return m_rows[place->second];
}

std::vector<std::wstring> VariableMatrix::Headings() const {
  std::vector<std::wstring> headings;
  for (const VariableCell& cell : m_rows.front().cells) {
    headings.push_back(cell.description);
  }
  return headings;
}

void VariableMatrix::CheckInitialVariables(const Selection& variables) {
  for (const QVWideString& selected : variables) {
    const auto [device, variable] = Split(selected);
    if (device == m_driver.Name()) {
      Lock(variable.ToView());
    }
  }
}

void VariableMatrix::Lock(std::wstring_view variable) {
  for (VariableRow& row : m_rows) {
    const auto found =
        std::find_if(row.cells.begin(), row.cells.end(),
                     [&](const VariableCell& cell) { return cell.variable == variable; });
    if (found != row.cells.end()) {
      found->isTicked = true;
      found->isLocked = true;
    }
  }
}

bool VariableMatrix::OnCheckVariable(std::size_t row, std::size_t cell, bool isTicked) {
  if (!isTicked) {
    UnSelect(1);
  }
  const bool isPossible = !isTicked || CanSelect(1);
  m_rows.at(row).cells.at(cell).isTicked = isTicked && isPossible;
  return isPossible;
}

void VariableMatrix::OnVariableSelect(std::size_t row) {
  if (row >= m_rows.size()) {
    return;
  }
  std::vector<VariableCell*> cells;
  for (VariableCell& cell : m_rows[row].cells) {
    cells.push_back(&cell);
  }
  Toggle(cells);
}

void VariableMatrix::OnSelectVar(std::size_t column) {
  std::vector<VariableCell*> cells;
  for (VariableRow& row : m_rows) {
    if (column >= row.cells.size()) {
      return;
    }
    cells.push_back(&row.cells[column]);
  }
  Toggle(cells);
}

void VariableMatrix::Toggle(const std::vector<VariableCell*>& cells) {
  const auto ticked = static_cast<std::size_t>(std::count_if(
      cells.begin(), cells.end(), [](const VariableCell* cell) { return cell->isTicked; }));
  const bool areAllTicked = ticked == cells.size();
  if (areAllTicked) {
    UnSelect(ticked);
  } else if (!CanSelect(cells.size() - ticked)) {
    return;
  }
  for (VariableCell* cell : cells) {
    cell->isTicked = !areAllTicked;
  }
}

bool VariableMatrix::CanSelect(std::size_t count) {
  if (IsTooMany(m_selected + count)) {
    Tell(m_prompter, TooMany());
    return false;
  }
  m_selected += count;
  return true;
}

void VariableMatrix::UnSelect(std::size_t count) { m_selected -= std::min(count, m_selected); }

bool VariableMatrix::IsTooMany(std::size_t count) const {
  return m_maximum != 0 && static_cast<long long>(count) > m_maximum;
}

Refusal VariableMatrix::TooMany() const {
  return m_maximum == 1
             ? Refused(Text::OneVariableAtMost)
             : Refusal{.text = Text::VariablesAtMost, .arguments = {std::to_wstring(m_maximum)}};
}

std::optional<Refusal> VariableMatrix::Fault() const {
  return IsTooMany(SelectVariables().size()) ? std::optional(TooMany()) : std::nullopt;
}

VariableMatrix::Selection VariableMatrix::SelectVariables() const {
  Selection selection;
  for (const VariableRow& row : m_rows) {
    for (const VariableCell& cell : row.cells) {
      if (cell.isTicked && !cell.isLocked) {
        selection.push_back(QVWideString(m_driver.Name()) + L"." + cell.variable.c_str());
      }
    }
  }
  return selection;
}

}  // namespace qv
