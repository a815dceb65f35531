#include "timestructure/DaySlots.h"

#include "discriminator/ColouredType.h"
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

DaySlots::DaySlots(XmlNode& day, HourTypes hourTypes) : m_day(day), m_hourTypes(hourTypes) {}

void DaySlots::Fill() {
  m_rows.clear();
  const auto slots = ChildrenWithTag(m_day, tag::Slot);
  for (auto at = slots.begin(); at != slots.end();) {
    XmlNode& slot = *at++;
    const XmlNode* hour = HourTypeOfSlot(slot, &m_hourTypes.Node());
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

std::vector<SlotRange> DaySlots::Ranges() const {
  std::vector<SlotRange> ranges;
  for (const SlotRow& row : m_rows) {
    ranges.push_back({TimeOf(row.from), TimeOf(row.to)});
  }
  return ranges;
}

std::optional<SlotFault> DaySlots::FirstFault() const {
  const auto faults = FaultsOfSlots(Ranges());
  return faults.empty() ? std::nullopt : std::optional(faults.front());
}

bool DaySlots::IsCovered() const { return MinutesOfSlots(Ranges()) >= minutesOfDay; }

}  // namespace qv
