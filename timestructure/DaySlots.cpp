#include "timestructure/DaySlots.h"

#include <algorithm>
#include <optional>

#include "discriminator/DayMinutes.h"
#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "tools/Nodes.h"

namespace qv {
namespace {

bool IsDigit(wchar_t letter) { return letter >= L'0' && letter <= L'9'; }

}  // namespace

QVWideString NormalizeTime(const QVWideString& text) {
  const std::wstring_view view = text.ToView();
  constexpr std::size_t length = 5;
  const bool isTime = view.size() == length && view[2] == L':' && IsDigit(view[0]) &&
                      IsDigit(view[1]) && IsDigit(view[3]) && IsDigit(view[4]);
  return isTime ? text : QVWideString(L"00:00");
}

std::optional<Text> FaultOfTimes(TimeOfDay from, TimeOfDay to) {
  const auto isBeyondDay = [](TimeOfDay time) {
    return time.hours > hoursOfDay || (time.hours == hoursOfDay && time.minutes > 0);
  };
  if (isBeyondDay(from) || isBeyondDay(to)) {
    return Text::SlotHourOutOfRange;
  }
  if (from.minutes >= minutesOfHour || to.minutes >= minutesOfHour) {
    return Text::SlotMinuteOutOfRange;
  }
  return from.Minutes() > to.Minutes() ? std::optional(Text::SlotStartAfterEnd) : std::nullopt;
}

DaySlots::DaySlots(XmlNode& day, const XmlNode& hourTypes) : m_day(day), m_hourTypes(hourTypes) {}

void DaySlots::Fill() {
  m_rows.clear();
  const auto slots = ChildrenWithTag(m_day, tag::Slot);
  for (auto at = slots.begin(); at != slots.end();) {
    XmlNode& slot = *at++;
    const XmlNode* hour = m_hourTypes.NodeV(L"hour?id=%s?", slot.Value(tag::Id));
    if (!hour) {
      m_day.RemoveChild(&slot);
      continue;
    }
    m_rows.push_back({hour->Value(tag::Name), ColourOfText(hour->Value(tag::Color)),
                      NormalizeTime(slot.Value(tag::From)), NormalizeTime(slot.Value(tag::To))});
  }
}

XmlNode* DaySlots::SlotOfRow(int row) {
  for (XmlNode& slot : ChildrenWithTag(m_day, tag::Slot)) {
    if (row-- == 0) {
      return &slot;
    }
  }
  return nullptr;
}

void DaySlots::Remove(int row) {
  if (XmlNode* slot = SlotOfRow(row)) {
    m_day.RemoveChild(slot);
    m_rows.erase(m_rows.begin() + row);
  }
}

bool DaySlots::CheckSlots(bool warn, Prompter& prompter) const {
  std::vector<MinuteRange> earlier;
  int total = 0;
  for (const SlotRow& row : m_rows) {
    const TimeOfDay from = TimeOf(row.from);
    const TimeOfDay to = TimeOf(row.to);
    if (const auto fault = FaultOfTimes(from, to)) {
      prompter.Show(*fault);
      return false;
    }
    const MinuteRange slot{from.Minutes(), to.Minutes()};
    if (std::any_of(earlier.begin(), earlier.end(),
                    [&](const MinuteRange& other) { return slot.Overlaps(other); })) {
      prompter.Show(Text::SlotsOverlap);
      return false;
    }
    total += slot.Length();
    earlier.push_back(slot);
  }
  return total >= minutesOfDay || !warn || prompter.Ask(Text::DayNotCoveredQuestion);
}

}  // namespace qv
