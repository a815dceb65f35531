#pragma once

namespace qv {

/// Counts the notches of a wheel, of which a fine one or a touchpad tells in parts.
class WheelSteps {
 public:
  /// The whole notches that are full with this turn, up for a number above zero.
  int Turn(int eighthsOfDegree) {
    constexpr int notch = 120;
    m_rest += eighthsOfDegree;
    const int steps = m_rest / notch;
    m_rest -= steps * notch;
    return steps;
  }

 private:
  int m_rest = 0;
};

}  // namespace qv
