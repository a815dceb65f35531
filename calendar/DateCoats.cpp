#include "calendar/DateCoats.h"

#include <algorithm>

#include "calendar/Contrast.h"
#include "calendar/Mixed.h"
#include "calendar/Weeks.h"

namespace qv {
namespace {

/// In hundredths of the way to the ink.
constexpr unsigned weekendTint = 12;
constexpr unsigned frameTint = 40;

wchar_t SignOf(const Brush& brush, const std::vector<LegendEntry>& legend) {
  const auto entry = std::find_if(legend.begin(), legend.end(),
                                  [&](const LegendEntry& each) { return each.brush == brush; });
  return entry == legend.end() ? L'\0' : entry->sign;
}

}  // namespace

DateCoats::DateCoats(const YearLook& look) : m_look(look) {
  const Colour weekend = Mixed(look.style.paper, look.style.ink, weekendTint);
  m_onPaper = Plain(look.style.paper, LegibleInkOn(look.style.paper));
  m_onWeekend = Plain(weekend, LegibleInkOn(weekend));
}

const DateCoat& DateCoats::Of(CalendarDate date) {
  if (const Brush* brush = BrushOf(date)) {
    return OfBrush(*brush);
  }
  return WeekdayOf(date) < saturday ? m_onPaper : m_onWeekend;
}

const Brush* DateCoats::BrushOf(CalendarDate date) const {
  if (!std::binary_search(m_look.preview.begin(), m_look.preview.end(), date)) {
    return m_look.marks.BrushOf(date);
  }
  return m_look.previewBrush.IsEraser() ? nullptr : &m_look.previewBrush;
}

const DateCoat& DateCoats::OfBrush(const Brush& brush) {
  const auto known = std::find_if(m_coats.begin(), m_coats.end(),
                                  [&](const DateCoat& coat) { return coat.brush == &brush; });
  if (known != m_coats.end()) {
    return *known;
  }
  DateCoat& coat = m_coats.emplace_back(Plain(brush.colour, LegibleInkOn(brush.colour)));
  coat.brush = &brush;
  coat.sign = SignOf(brush, m_look.legend);
  if (!coat.sign && IsLikePaper(brush.colour)) {
    coat.frame = Mixed(coat.ground, coat.ink, frameTint);
  }
  return coat;
}

DateCoat DateCoats::Plain(Colour ground, Colour ink) const {
  return {nullptr, ground, ink, L'\0', RingOn(ground, ink), {}};
}

Colour DateCoats::RingOn(Colour ground, Colour ink) const {
  for (const Colour ring : {m_look.style.highlight, m_look.style.ink}) {
    if (!LookAlike(ring, ground)) {
      return ring;
    }
  }
  return ink;
}

bool DateCoats::IsLikePaper(Colour colour) const {
  return LookAlike(colour, m_onPaper.ground) || LookAlike(colour, m_onWeekend.ground);
}

}  // namespace qv
