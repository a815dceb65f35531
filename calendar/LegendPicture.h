#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "calendar/YearLegend.h"
#include "tools/Canvas.h"
#include "tools/Density.h"

namespace qv {

/// Where the entries of a legend stand in a strip that begins at its corner: in rows, from left to
/// right, as many columns as there are with room for a name. All lengths are in dots.
class LegendGeometry {
 public:
  /// For so many entries in lines of this height.
  LegendGeometry(int width, int lineHeight, std::size_t entries);

  /// What the strip takes of the height.
  int Height() const;
  int LineHeight() const { return m_lineHeight; }

  Rect PlaceOf(std::size_t entry) const;
  /// The entry that stands at this place, if there is one: the inverse of `PlaceOf`.
  std::optional<std::size_t> EntryAt(Point place) const;

 private:
  int m_lineHeight;
  int m_entries;
  int m_columns;
  int m_entryWidth;
};

/// The texts and colours of a legend's picture.
struct LegendStyle {
  QVWideString withoutType{};  ///< name of the last entry
  Colour ground = 0xF0F0F0;    ///< already painted all over
  Colour paper = 0xFFFFFF;     ///< of dates without a day type
  Colour ink = 0;
  std::optional<std::size_t> chosen{};  ///< the entry whose brush marks
  Density density{};
};

/// Paints the entries: the colour with its sign, the name, and the number of days. A name without
/// room is cut, and says so by three dots.
void PaintLegend(Canvas& canvas, const LegendGeometry& geometry,
                 std::span<const LegendEntry> legend, const LegendStyle& style);

}  // namespace qv
