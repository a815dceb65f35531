#pragma once

#include <algorithm>

#include "tools/Numbers.h"

namespace qv {

/// How many dots of the screen a pixel of the layout has, along one side. Pictures are drawn in
/// dots, so that on a dense screen their curves have steps of one dot and all their lines one
/// breadth.
struct Density {
  double dotsPerPixel = 1;

  /// The dots nearest to a length in pixels.
  int Dots(int pixels) const { return roundi(pixels * dotsPerPixel); }

  /// The breadth of a line in dots, at least 1; midway between two, the lesser.
  int LineBreadth() const { return std::max(1, roundi(dotsPerPixel - 0.01)); }

  friend bool operator==(const Density&, const Density&) = default;
};

}  // namespace qv
