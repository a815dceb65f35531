#pragma once

#include <cstdint>

namespace qv {

/// A colour: red in the lowest byte, then green, then blue. The highest byte means nothing.
using Colour = std::uint32_t;

}  // namespace qv
