#pragma once

#include <cstdint>
#include <vector>

#include "calendar/CalendarDate.h"

namespace qv {

/// A rule that covers many dates of one year.
struct FastSelection {
  std::uint32_t weekDays = 0;  ///< bit 0 for Monday to bit 6 for Sunday
  std::uint32_t months = 0;    ///< bit 0 for January to bit 11 for December

  friend bool operator==(const FastSelection&, const FastSelection&) = default;
};

/// Whether the date's weekday and its month are both in the rule; a date that isn't `Valid` never
/// matches.
bool MatchesFastSelection(const QVDateTime& date, const FastSelection& rule);

/// The dates of `year` that match the rule, in order.
std::vector<CalendarDate> DatesOfFastSelection(int year, const FastSelection& rule);

/// The months of the year that may be chosen.
class MonthRange {
 public:
  /// Takes the months from `first` to `last`, both counted from 1 and included. False, and the
  /// whole year is on offer, if these aren't two months in this order.
  bool Set(int first, int last);

  bool Contains(int month) const { return m_first <= month && month <= m_last; }

 private:
  int m_first = 1;
  int m_last = 12;
};

}  // namespace qv
