#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>

namespace qv {

/// What a list shows after a verb: nothing new, or new rows with one of them or none selected.
struct [[nodiscard]] ListEnd {
  bool refilled = false;
  std::optional<int> rowToSelect{};
  /// The row from which the arrow keys go on if none is selected: the changed one.
  std::optional<int> currentRow{};

  friend bool operator==(const ListEnd&, const ListEnd&) = default;
};

/// The row `row` of `count`, or the last one if there are fewer; nothing if there are none. After a
/// removal that is the row that moved to its place, or the new last one.
inline std::optional<int> NearestRow(int row, std::size_t count) {
  return count == 0 ? std::nullopt : std::optional(std::min(row, static_cast<int>(count) - 1));
}

}  // namespace qv
