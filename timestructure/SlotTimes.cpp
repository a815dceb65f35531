#include "timestructure/SlotTimes.h"

#include "discriminator/ValueForms.h"

namespace qv {
namespace {

constexpr int lastHour = hoursOfDay;
constexpr int lastMinute = minutesOfHour - 1;

}  // namespace

SlotTimes::SlotTimes(const QVWideString& from, const QVWideString& to) {
  for (const SlotEdge edge : {SlotEdge::From, SlotEdge::To}) {
    Hours(edge).SetRange(lastHour);
    Minutes(edge).SetRange(lastMinute);
  }
  InitializeTime(SlotEdge::From, from);
  InitializeTime(SlotEdge::To, to);
}

void SlotTimes::EnableSpins() {
  for (SpinState& spin : m_spins) {
    spin.Enable(true);
  }
}

void SlotTimes::InitializeTime(SlotEdge edge, const QVWideString& text) {
  const TimeOfDay time = TimeOf(text);
  Hours(edge).SetPosition(time.hours);
  if (Hours(edge).Position() < lastHour) {
    Minutes(edge).SetPosition(time.minutes);
  } else {
    LockMinutes(edge);
  }
}

void SlotTimes::LockMinutes(SlotEdge edge) {
  Minutes(edge).SetRange(0);
  Minutes(edge).SetPosition(0);
  Minutes(edge).Enable(false);
}

void SlotTimes::FreeMinutes(SlotEdge edge) {
  Minutes(edge).SetRange(lastMinute);
  Minutes(edge).Enable(true);
}

/// All that the four fields show.
std::wstring SlotTimes::Shown() const {
  std::wstring shown;
  for (const SpinState& spin : m_spins) {
    shown += spin.Text() + L"|";
  }
  return shown;
}

void SlotTimes::TakeChange() {
  m_modified = true;
  if (m_drag.IsActive()) {
    TakeDragged();
  }
}

void SlotTimes::Type(TimeField field, const std::wstring& text) {
  m_spins[Index(field)].SetText(text);
  TakeChange();
}

void SlotTimes::Step(TimeField field, int delta) {
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

void SlotTimes::LeaveField(TimeField field) {
  const std::wstring before = Shown();
  SpinState& spin = m_spins[Index(field)];
  const bool isAbove = spin.IsAbove();
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

bool SlotTimes::Press(std::optional<int> minute) {
  const bool begins = m_drag.Press(minute);
  if (begins) {
    TakeChange();
  }
  return begins;
}

bool SlotTimes::Move(std::optional<int> minute) {
  const bool follows = m_drag.Move(minute);
  if (follows) {
    TakeDragged();
  }
  return follows;
}

void SlotTimes::TakeDragged() {
  // The positions alone: minutes that are locked stay at 0.
  if (const auto range = m_drag.Range()) {
    Hours(SlotEdge::From).SetPosition(range->from / minutesOfHour);
    Minutes(SlotEdge::From).SetPosition(range->from % minutesOfHour);
    Hours(SlotEdge::To).SetPosition(range->to / minutesOfHour);
    Minutes(SlotEdge::To).SetPosition(range->to % minutesOfHour);
  }
}

int SlotTimes::MinuteOf(SlotEdge edge) const {
  return Hours(edge).Position() * minutesOfHour + Minutes(edge).Position();
}

std::optional<MinuteRange> SlotTimes::Selection() const {
  if (m_drag.IsActive()) {
    return m_drag.Range();
  }
  const bool fillsHour = Minutes(SlotEdge::To).Position() == lastMinute;
  const MinuteRange range{
      MinuteOf(SlotEdge::From),
      fillsHour ? (Hours(SlotEdge::To).Position() + 1) * minutesOfHour : MinuteOf(SlotEdge::To)};
  const bool isPainted =
      range.from < range.to && range.from <= minutesOfDay && range.to <= minutesOfDay;
  return isPainted ? std::optional(range) : std::nullopt;
}

QVWideString SlotTimes::TextOf(SlotEdge edge) const {
  return TimeText({Hours(edge).Position(), Minutes(edge).Position()});
}

}  // namespace qv
