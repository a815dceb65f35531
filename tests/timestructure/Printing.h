#pragma once

#include <ostream>

#include "timestructure/DialGeometry.h"

// How a failing test shows these values. All tests of one program have to show them alike.
namespace qv {

inline void PrintTo(const Point& point, std::ostream* out) { *out << point.x << "," << point.y; }

inline void PrintTo(const Rect& area, std::ostream* out) {
  *out << area.left << "," << area.top << " " << area.right << "," << area.bottom;
}

inline void PrintTo(const STagSlot& slot, std::ostream* out) {
  *out << slot.from << " to " << slot.to << " in " << std::hex << slot.color << std::dec;
}

inline void PrintTo(const FaceMinutes& minutes, std::ostream* out) {
  *out << minutes.first << " to " << minutes.last;
}

}  // namespace qv
