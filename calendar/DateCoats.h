#pragma once

#include <deque>
#include <optional>

#include "calendar/YearPicture.h"

namespace qv {

/// What a date's ground looks like, and what is drawn on it.
struct DateCoat {
  const Brush* brush = nullptr;  ///< null for a date without a mark
  Colour ground = 0;
  Colour ink = 0;                 ///< black or white, with a contrast of at least 4.5 on the ground
  wchar_t sign = L'\0';           ///< none if 0
  Colour ring = 0;                ///< around a date that is selected
  std::optional<Colour> frame{};  ///< of a mark that looks like a date without one
};

/// Finds the coats of dates. Each brush is looked at once, since contrasts take time.
class DateCoats {
 public:
  /// `look` outlives this object.
  explicit DateCoats(const YearLook& look);

  /// The coat of a date's mark, or of the one that is shown in its stead; else that of paper, which
  /// is tinted at weekends. It holds as long as this object.
  const DateCoat& Of(CalendarDate date);

 private:
  const Brush* BrushOf(CalendarDate date) const;
  const DateCoat& OfBrush(const Brush& brush);
  DateCoat Plain(Colour ground, Colour ink) const;
  Colour RingOn(Colour ground, Colour ink) const;
  bool IsLikePaper(Colour colour) const;

  const YearLook& m_look;
  DateCoat m_onPaper;
  DateCoat m_onWeekend;
  std::deque<DateCoat> m_coats;
};

}  // namespace qv
