#pragma once

#include <array>
#include <cstddef>

namespace qv {

/// Rows that are found by the enumerator in their member `key`. Each stands at the place of its
/// own, and there is one for each enumerator before `Count`: any other table doesn't compile.
template <class Row, std::size_t size>
class EnumTable {
 public:
  using Key = decltype(Row::key);

  consteval explicit EnumTable(const std::array<Row, size>& rows) : m_rows(rows) {
    if (!IsComplete(rows)) {
      throw "a row is missing, or doesn't stand at the place of its enumerator";
    }
  }

  /// Whether a table can be made of these rows.
  static constexpr bool IsComplete(const std::array<Row, size>& rows) {
    for (std::size_t i = 0; i < size; ++i) {
      if (rows[i].key != static_cast<Key>(i)) {
        return false;
      }
    }
    return size == static_cast<std::size_t>(Key::Count);
  }

  /// The row of an enumerator before `Count`.
  constexpr const Row& operator[](Key key) const {
    return m_rows.at(static_cast<std::size_t>(key));
  }

 private:
  std::array<Row, size> m_rows;
};

}  // namespace qv
