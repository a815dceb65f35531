#include "timestructure/QuarterDrag.h"

namespace qv {

bool QuarterDrag::Press(std::optional<int> minute) {
  m_active = minute && !m_active;
  if (m_active) {
    m_start = *minute;
    m_end = *minute + minutesOfQuarter;
  }
  return m_active;
}

bool QuarterDrag::Move(std::optional<int> minute) {
  const bool follows = minute && m_active;
  if (follows) {
    m_end = *minute + minutesOfQuarter;
  }
  return follows;
}

std::optional<MinuteRange> QuarterDrag::Range() const {
  const auto isOutside = [](int minute) { return minute < 0 || minute > minutesOfDay; };
  if (isOutside(m_start) || isOutside(m_end)) {
    return std::nullopt;
  }
  return m_start < m_end ? MinuteRange{m_start, m_end}
                         : MinuteRange{m_end - minutesOfQuarter, m_start + minutesOfQuarter};
}

}  // namespace qv
