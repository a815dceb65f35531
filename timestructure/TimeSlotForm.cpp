#include "timestructure/TimeSlotForm.h"

#include <algorithm>

#include "discriminator/Fields.h"
#include "discriminator/NewChildNode.h"
#include "discriminator/ValueForms.h"
#include "timestructure/TimeGrid.h"
#include "tools/Guid.h"
#include "tools/Nodes.h"
#include "tools/Numbers.h"

namespace qv {
namespace {

constexpr int lastHour = hoursOfDay;
constexpr int lastMinute = 59;

}  // namespace

void SpinState::SetText(const std::wstring& text) {
  m_text = text;
  const bool isNumber =
      !text.empty() && text.find_first_not_of(L"0123456789") == std::wstring::npos;
  const int number = isNumber ? Wtoi(text) : -1;
  if (number >= 0 && number <= m_upper) {
    m_position = number;
  }
}

void SpinState::SetRange(int upper) {
  m_upper = upper;
  SetText(m_text);
}

void SpinState::SetPosition(int position) {
  m_position = std::clamp(position, 0, m_upper);
  m_text = std::to_wstring(m_position);
}

TimeSlotForm::TimeSlotForm(XmlNode& hourTypes, XmlNode& slot, Prompter& prompter)
    : m_hourTypes(hourTypes), m_slot(slot), m_prompter(prompter) {
  for (const SlotEdge edge : {SlotEdge::From, SlotEdge::To}) {
    Hours(edge).SetRange(lastHour);
    Minutes(edge).SetRange(lastMinute);
  }
  FillHourTypes(std::nullopt);
  InitializeTime(SlotEdge::From, m_slot.Value(tag::From));
  InitializeTime(SlotEdge::To, m_slot.Value(tag::To));
}

bool TimeSlotForm::IsNew() const { return m_slot.Value(tag::Id).Empty(); }

void TimeSlotForm::FillHourTypes(std::optional<int> select) {
  m_choices.clear();
  const QVWideString slotId = m_slot.Value(tag::Id);
  int match = 0;
  for (XmlNode& hour : ChildrenWithTag(m_hourTypes, tag::Hour)) {
    match = hour.Value(tag::Id) == slotId ? static_cast<int>(m_choices.size()) : match;
    m_choices.push_back({&hour, hour.Value(tag::Name), ColourOfText(hour.Value(tag::Color))});
  }
  m_selected = m_choices.empty() ? std::nullopt : std::optional(select.value_or(match));
  // Also a spin that was locked: only its range still says so.
  for (SpinState& spin : m_spins) {
    spin.Enable(true);
  }
}

void TimeSlotForm::InitializeTime(SlotEdge edge, const QVWideString& text) {
  const TimeOfDay time = TimeOf(text);
  Hours(edge).SetPosition(time.hours);
  if (Hours(edge).Position() < lastHour) {
    Minutes(edge).SetPosition(time.minutes);
  } else {
    LockMinutes(edge);
  }
}

void TimeSlotForm::LockMinutes(SlotEdge edge) {
  Minutes(edge).SetRange(0);
  Minutes(edge).SetPosition(0);
  Minutes(edge).Enable(false);
}

void TimeSlotForm::FreeMinutes(SlotEdge edge) {
  Minutes(edge).SetRange(lastMinute);
  Minutes(edge).Enable(true);
}

/// All that the four fields show.
std::wstring TimeSlotForm::Shown() const {
  std::wstring shown;
  for (const SpinState& spin : m_spins) {
    shown += spin.Text() + L"|";
  }
  return shown;
}

void TimeSlotForm::TakeChange() {
  m_modified = true;
  if (m_dragging) {
    TakeDragged();  // a selection under way has the last word
  }
}

void TimeSlotForm::SelectHourType(int index) {
  if (index != m_selected) {
    m_selected = index;
    TakeChange();
  }
}

void TimeSlotForm::Type(TimeField field, const std::wstring& text) {
  m_spins[Index(field)].SetText(text);
  TakeChange();
}

void TimeSlotForm::Step(TimeField field, int delta) {
  const std::wstring before = Shown();
  SpinState& spin = m_spins[Index(field)];
  const int position = spin.Position() + delta;
  if (field.isHours) {
    position < lastHour ? FreeMinutes(field.edge) : LockMinutes(field.edge);
  }
  spin.SetPosition(position);
  if (Shown() != before) {
    TakeChange();
  }
}

void TimeSlotForm::LeaveField(TimeField field) {
  const std::wstring before = Shown();
  SpinState& spin = m_spins[Index(field)];
  const bool isAbove = Wtoi(spin.Text()) > spin.Upper();
  if (isAbove) {
    spin.SetPosition(spin.Upper());
  }
  if (field.isHours) {
    isAbove ? LockMinutes(field.edge) : FreeMinutes(field.edge);
  }
  if (Shown() != before) {
    TakeChange();
  }
}

bool TimeSlotForm::Press(std::optional<int> minute) {
  const bool begins = minute && !m_dragging;
  m_dragging = begins;
  if (begins) {
    m_dragStart = *minute;
    m_dragEnd = *minute + TimeGrid::quarter;
    TakeChange();
  }
  return begins;
}

bool TimeSlotForm::Move(std::optional<int> minute) {
  const bool follows = minute && m_dragging;
  if (follows) {
    m_dragEnd = *minute + TimeGrid::quarter;
    TakeDragged();
  }
  return follows;
}

std::optional<MinuteRange> TimeSlotForm::Dragged() const {
  const auto isOutside = [](int minute) { return minute < 0 || minute > minutesOfDay; };
  if (isOutside(m_dragStart) || isOutside(m_dragEnd)) {
    return std::nullopt;
  }
  return m_dragStart < m_dragEnd
             ? MinuteRange{m_dragStart, m_dragEnd}
             : MinuteRange{m_dragEnd - TimeGrid::quarter, m_dragStart + TimeGrid::quarter};
}

void TimeSlotForm::TakeDragged() {
  // The positions alone: minutes that are locked stay at 0.
  if (const auto range = Dragged()) {
    Hours(SlotEdge::From).SetPosition(range->from / minutesOfHour);
    Minutes(SlotEdge::From).SetPosition(range->from % minutesOfHour);
    Hours(SlotEdge::To).SetPosition(range->to / minutesOfHour);
    Minutes(SlotEdge::To).SetPosition(range->to % minutesOfHour);
  }
}

int TimeSlotForm::MinuteOf(SlotEdge edge) const {
  return Hours(edge).Position() * minutesOfHour + Minutes(edge).Position();
}

std::optional<MinuteRange> TimeSlotForm::Selection() const {
  if (m_dragging) {
    return Dragged();
  }
  const bool fillsHour = Minutes(SlotEdge::To).Position() == lastMinute;
  const MinuteRange range{
      MinuteOf(SlotEdge::From),
      fillsHour ? (Hours(SlotEdge::To).Position() + 1) * minutesOfHour : MinuteOf(SlotEdge::To)};
  const bool isPainted =
      range.from < range.to && range.from <= minutesOfDay && range.to <= minutesOfDay;
  return isPainted ? std::optional(range) : std::nullopt;
}

std::optional<Colour> TimeSlotForm::SelectionColour() const {
  return m_selected ? std::optional(m_choices[static_cast<std::size_t>(*m_selected)].colour)
                    : std::nullopt;
}

void TimeSlotForm::OnAddHourType(const TypeList::RunEditor& runEditor) {
  NewChildNode hour(m_hourTypes, tag::Hour,
                    {{tag::Id, NewGuidText()}, {tag::Name, L""}, {tag::Color, L"FFFFFF"}});
  const EditorEnd end = runEditor(hour.Node());
  if (end.confirmed) {
    hour.Keep();
    m_modified = m_modified || end.modified;
    FillHourTypes(m_selected);
  }
}

bool TimeSlotForm::IsValid() const {
  const bool isOrdered = MinuteOf(SlotEdge::From) <= MinuteOf(SlotEdge::To);
  if (!isOrdered || m_choices.empty()) {
    m_prompter.Show(isOrdered ? Text::NoHourType : Text::SlotStartAfterEnd);
    return false;
  }
  return true;
}

bool TimeSlotForm::Save() {
  if (!IsValid()) {
    return false;
  }
  const QVWideString& name = m_choices[static_cast<std::size_t>(*m_selected)].name;
  const XmlNode* hour = m_hourTypes.NodeV(L"/hour?name=%s?", name);
  if (!hour) {
    return false;
  }
  const auto textOf = [this](SlotEdge edge) {
    return TimeText({Hours(edge).Position(), Minutes(edge).Position()});
  };
  m_slot.SetValue(tag::Id, hour->Value(tag::Id));
  m_slot.SetValue(tag::From, textOf(SlotEdge::From));
  m_slot.SetValue(tag::To, textOf(SlotEdge::To));
  return true;
}

}  // namespace qv
