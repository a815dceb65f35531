#pragma once

#include <vector>

namespace qv {

/// What one item of a row or column asks for.
struct LayoutShare {
  int amount;    ///< pixels, or per cent of the room that the fixed items leave over
  bool percent;  ///< which of the two

  bool operator==(const LayoutShare&) const = default;
};

/// Where one item comes to stand.
struct LayoutSpan {
  int offset;
  int length;

  bool operator==(const LayoutSpan&) const = default;
};

/// Divides `extent` among `items`, one span behind the other from 0. Fixed items get what they ask
/// for; what is left over is shared by the percentages, truncated, and the last one above zero
/// takes what the truncations leave. Percentages of less than 100 in sum leave room behind the last
/// item; more than 100 are scaled down to fit. Negative amounts count as 0, and so does a negative
/// rest. No span reaches beyond the extent: what has no room is cut, from the last item on.
std::vector<LayoutSpan> DivideExtent(int extent, const std::vector<LayoutShare>& items);

/// What the percentages of `items` are parts of: 100, or their sum if that is more.
int WholeOf(const std::vector<LayoutShare>& items);

/// The least room beside the fixed items in which `percent` of `whole` come to `needed` pixels. A
/// share of 0 never does, so it asks for nothing.
int RoomForShare(int needed, int percent, int whole);

}  // namespace qv
