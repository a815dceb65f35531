#pragma once

#include <bitset>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/Prompter.h"
#include "host/QVDriver.h"
#include "host/Refusal.h"

namespace qv {

/// What the items of a discriminator are. Each kind has a box of its own.
enum class ItemCategory { DayType, HourType, Condition };

/// One quantity of one item.
struct VariableCell {
  std::wstring variable{};     ///< in full, without the device
  std::wstring description{};  ///< in words
  bool isTicked = false;
  bool isLocked = false;  ///< it was selected before, and isn't reported
};

/// The quantities of one item.
struct VariableRow {
  std::wstring item{};
  ItemCategory category = ItemCategory::DayType;
  std::vector<VariableCell> cells{};
};

/// The variables of a device that is a discriminator, while a user selects of them: a row for each
/// item, a cell for each of its quantities.
class VariableMatrix {
 public:
  using Selection = std::list<QVWideString>;

  /// The variables of the device that have a class in common with `mask`, or nothing if there are
  /// none. `maximum` is how many may be selected, 0 for any number. `driver` is asked here and for
  /// its name; both references outlive the matrix.
  [[nodiscard]] static std::unique_ptr<VariableMatrix> Read(QVDriver& driver,
                                                            const std::bitset<34>& mask,
                                                            int maximum, Prompter& prompter);

  /// In the order in which the items come first in the device; cells in the order of the device.
  const std::vector<VariableRow>& Rows() const { return m_rows; }
  /// The headings of the columns, those of the first row. Never empty.
  std::vector<std::wstring> Headings() const;

  /// Ticks and locks the variables of this device in `variables`, which are written
  /// "<device>.<variable>". What isn't here is passed over.
  void CheckInitialVariables(const Selection& variables);

  /// Ticks or unticks a free cell, as the user did in the window. False if that isn't possible,
  /// once the user has been told: the cell is unticked then.
  bool OnCheckVariable(std::size_t row, std::size_t cell, bool isTicked);

  /// Ticks all cells of a row, or unticks them if all are ticked, locked ones included. Nothing
  /// changes if that would be too many, once the user has been told.
  void OnVariableSelect(std::size_t row);

  /// The same for the cells of a column in all rows; nothing changes either if a row has no cell
  /// there.
  void OnSelectVar(std::size_t column);

  /// Why what is selected can't be taken: more cells than the maximum are ticked and free.
  std::optional<Refusal> Fault() const;

  /// The ticked free cells as "<device>.<variable>", row by row.
  Selection SelectVariables() const;

 private:
  VariableMatrix(QVDriver& driver, int maximum, Prompter& prompter)
      : m_driver(driver), m_prompter(prompter), m_maximum(maximum) {}

  void Offer(const VariableInfo& info);
  void Lock(std::wstring_view variable);
  VariableRow& RowOf(ItemCategory category, const std::wstring& item);
  void Toggle(const std::vector<VariableCell*>& cells);
  bool CanSelect(std::size_t count);
  void UnSelect(std::size_t count);
  bool IsTooMany(std::size_t count) const;
  Refusal TooMany() const;

  QVDriver& m_driver;
  Prompter& m_prompter;
  int m_maximum;
  std::vector<VariableRow> m_rows;
  std::map<std::pair<ItemCategory, std::wstring>, std::size_t> m_places;  ///< of rows
  std::size_t m_selected = 0;  ///< a running count of what the user ticked; `Fault` counts anew
};

}  // namespace qv
