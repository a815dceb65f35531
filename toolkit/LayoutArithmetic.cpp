#include "toolkit/LayoutArithmetic.h"

#include <algorithm>
#include <cstdint>

namespace qv {

namespace {

constexpr int wholePercent = 100;

int Amount(const LayoutShare& item) { return std::max(item.amount, 0); }

/// `room` * `percent` / `whole`, truncated, without overflow on the way.
int Part(int room, int percent, int whole) {
  return static_cast<int>(std::int64_t{room} * percent / whole);
}

int SumOf(const std::vector<LayoutShare>& items, bool percent) {
  int sum = 0;
  for (const LayoutShare& item : items) {
    sum += item.percent == percent ? Amount(item) : 0;
  }
  return sum;
}

std::size_t LastShare(const std::vector<LayoutShare>& items) {
  std::size_t last = items.size();
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i].percent && items[i].amount > 0) {
      last = i;
    }
  }
  return last;
}

}  // namespace

int WholeOf(const std::vector<LayoutShare>& items) {
  return std::max(wholePercent, SumOf(items, true));
}

std::vector<LayoutSpan> DivideExtent(int extent, const std::vector<LayoutShare>& items) {
  const int all = std::max(0, extent);
  const int room = std::max(0, all - SumOf(items, false));
  const int whole = WholeOf(items);
  const std::size_t last = LastShare(items);
  int unspent = Part(room, SumOf(items, true), whole);
  std::vector<LayoutSpan> spans;
  int offset = 0;
  for (std::size_t i = 0; i < items.size(); ++i) {
    int length = Amount(items[i]);
    if (items[i].percent) {
      length = i == last ? unspent : Part(room, length, whole);
      unspent -= length;
    }
    length = std::min(length, all - offset);
    spans.push_back({offset, length});
    offset += length;
  }
  return spans;
}

int RoomForShare(int needed, int percent, int whole) {
  if (needed <= 0 || percent <= 0) {
    return 0;
  }
  return static_cast<int>((std::int64_t{needed} * whole + percent - 1) / percent);
}

}  // namespace qv
