#pragma once

#include "tools/Colour.h"

#include <initializer_list>

namespace qv {

/// A colour between two: so many hundredths of the way from the first to the second one.
constexpr Colour Mixed(Colour first, Colour second, unsigned hundredths) {
  Colour mixed = 0;
  for (const int shift : {0, 8, 16}) {
    const Colour part =
        (first >> shift & 0xFF) * (100 - hundredths) + (second >> shift & 0xFF) * hundredths;
    mixed |= part / 100 << shift;
  }
  return mixed;
}

}  // namespace qv
