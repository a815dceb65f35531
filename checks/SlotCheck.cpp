#include "checks/SlotCheck.h"

#include <optional>
#include <utility>
#include <vector>

#include "discriminator/DayMinutes.h"
#include "discriminator/Fields.h"
#include "timestructure/DaySlots.h"
#include "timestructure/SlotFaults.h"
#include "tools/Format.h"
#include "tools/Nodes.h"

namespace qv {
namespace {

class SlotCheck {
 public:
  SlotCheck(std::wstring place, const PartIds& hourTypes, Findings& findings)
      : m_place(std::move(place)), m_hourTypes(hourTypes), m_findings(findings) {}

  /// One slot after the other, without regard to those before it.
  void Check(const XmlNode& slot) {
    const std::wstring from = FieldOf(slot, tag::From);
    const std::wstring to = FieldOf(slot, tag::To);
    const std::wstring name = Format(L"slot %u (%s-%s)", {++m_slots, from.c_str(), to.c_str()});
    const std::wstring id = FieldOf(slot, tag::Id);
    if (!m_hourTypes.contains(id)) {
      Tell(FindingKind::DeadHourType, PlaceOf(name), id);
    }
    if (const auto times = GoodTimes(from, to, PlaceOf(name))) {
      m_good.push_back(*times);
      m_names.push_back(name);
    }
  }

  /// The slots that are good alone, together; of gaps only where all are.
  void CheckTogether() {
    // Their times are good, so all that can be wrong is that one overlaps another.
    const auto overlaps = FaultsOfSlots(m_good);
    for (const SlotFault& fault : overlaps) {
      Tell(FindingKind::SlotsOverlap, PlaceOf(m_names[fault.slot]), m_names[*fault.overlapped]);
    }
    const int gaps = minutesOfDay - MinutesOfSlots(m_good);
    if (overlaps.empty() && m_good.size() == m_slots && gaps > 0) {
      Tell(FindingKind::DayGaps, m_place, std::to_wstring(gaps));
    }
  }

 private:
  std::wstring PlaceOf(const std::wstring& slot) const { return m_place + L"/" + slot; }

  /// The times of a slot, unless it has been told what is wrong with them.
  std::optional<SlotRange> GoodTimes(const std::wstring& from, const std::wstring& to,
                                     const std::wstring& place) {
    const auto start = GoodTime(from, place);
    const auto end = GoodTime(to, place);
    if (!start || !end) {
      return std::nullopt;
    }
    const SlotRange times{*start, *end};
    if (FaultOfTimes(times)) {
      Tell(FindingKind::StartAfterEnd, place, {});
      return std::nullopt;
    }
    return times;
  }

  std::optional<TimeOfDay> GoodTime(const std::wstring& text, const std::wstring& place) {
    const QVWideString wide(text.c_str());
    const TimeOfDay time = TimeOf(wide);
    if (NormalizeTime(wide) != wide) {
      Tell(FindingKind::MalformedTime, place, text);
      return std::nullopt;
    }
    // A slot that starts and ends at a time has no fault but those of that time.
    if (FaultOfTimes({time, time})) {
      Tell(FindingKind::TimeOutOfRange, place, text);
      return std::nullopt;
    }
    return time;
  }

  void Tell(FindingKind kind, const std::wstring& place, const std::wstring& value) {
    m_findings.push_back({.kind = kind, .place = place, .value = value});
  }

  const std::wstring m_place;
  const PartIds& m_hourTypes;
  Findings& m_findings;
  unsigned m_slots = 0;               ///< how many have been checked
  std::vector<SlotRange> m_good;      ///< those with good times
  std::vector<std::wstring> m_names;  ///< the names of these
};

}  // namespace

void CheckSlots(const XmlNode& day, const PartIds& hourTypes, Findings& findings) {
  SlotCheck check(L"dayTypes/" + FieldOf(day, tag::Name), hourTypes, findings);
  for (const XmlNode& slot : ChildrenWithTag(day, tag::Slot)) {
    check.Check(slot);
  }
  check.CheckTogether();
}

}  // namespace qv
