#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>

namespace qv {

/// What a list shows after a verb: nothing new, or new rows with one of them or none selected.
struct [[nodiscard]] ListEnd {
  bool refilled = false;
  std::optional<int> rowToSelect{};

  friend bool operator==(const ListEnd&, const ListEnd&) = default;
};

/// The row to select after the row `row` was removed, so that `count` are left: the one that moved
/// to its place, or the new last one; nothing if none is left.
inline std::optional<int> RowAfterRemoval(int row, std::size_t count) {
  return count == 0 ? std::nullopt : std::optional(std::min(row, static_cast<int>(count) - 1));
}

}  // namespace qv
