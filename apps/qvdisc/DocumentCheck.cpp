#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "apps/qvdisc/InstallationCheck.h"
#include "discriminator/DayMinutes.h"
#include "discriminator/Fields.h"
#include "discriminator/ValueForms.h"
#include "timestructure/DaySlots.h"
#include "tools/Format.h"
#include "tools/Nodes.h"
#include "tools/Numbers.h"

namespace qvdisc {
namespace {

using qv::FieldOf;
using qv::XmlNode;

/// The number behind `prefix` in the tag, as of "month12"; nothing for any other tag.
std::optional<int> NumberInTag(const XmlNode& node, std::wstring_view prefix) {
  const std::wstring_view tag = node.Tag().ToView();
  const std::wstring_view digits = tag.substr(std::min(prefix.size(), tag.size()));
  const bool isNumbered = tag.starts_with(prefix) && !digits.empty() &&
                          digits.find_first_not_of(L"0123456789") == std::wstring_view::npos;
  return isNumbered ? std::optional(qv::Wtoi(digits)) : std::nullopt;
}

class DocumentCheck {
 public:
  DocumentCheck(const XmlNode& root, std::wstring file) : m_root(root), m_file(std::move(file)) {}

  std::vector<Finding> Run() {
    const auto hours = Parts(qv::tag::HourTypes, qv::tag::Hour);
    const auto days = Parts(qv::tag::DayTypes, qv::tag::Day);
    Parts(qv::tag::Conditions, qv::tag::Condition);
    for (const XmlNode& day : qv::ChildrenWithTag(m_root.Node(qv::tag::DayTypes), qv::tag::Day)) {
      CheckSlots(day, hours);
    }
    for (const XmlNode& year : qv::ChildrenWithTag(m_root.Node(qv::tag::Calendar), qv::tag::Year)) {
      CheckYear(year, days);
    }
    return std::move(m_findings);
  }

 private:
  /// The ids of the parts in a container; tells of ids and names that come twice.
  std::set<std::wstring> Parts(const wchar_t* container, const wchar_t* tag) {
    std::set<std::wstring> ids;
    std::set<std::wstring> names;
    for (const XmlNode& part : qv::ChildrenWithTag(m_root.Node(container), tag)) {
      TellTwice(ids, part, qv::tag::Id, container);
      TellTwice(names, part, qv::tag::Name, container);
    }
    return ids;
  }

  void TellTwice(std::set<std::wstring>& known, const XmlNode& part, const wchar_t* field,
                 const wchar_t* container) {
    const std::wstring value = FieldOf(part, field);
    if (!known.insert(value).second) {
      Tell({.kind = FindingKind::DuplicatePart,
            .place = container,
            .value = value,
            .expected = field});
    }
  }

  void CheckSlots(const XmlNode& day, const std::set<std::wstring>& hours) {
    const std::wstring place = L"dayTypes/" + FieldOf(day, qv::tag::Name);
    std::vector<NamedSlot> good;
    unsigned number = 0;
    for (const XmlNode& slot : qv::ChildrenWithTag(day, qv::tag::Slot)) {
      const std::wstring from = FieldOf(slot, qv::tag::From);
      const std::wstring to = FieldOf(slot, qv::tag::To);
      const std::wstring name =
          qv::Format(L"slot %u (%s-%s)", {++number, from.c_str(), to.c_str()});
      const std::wstring slotPlace = qv::Format(L"%s/%s", {place.c_str(), name.c_str()});
      const std::wstring id = FieldOf(slot, qv::tag::Id);
      if (hours.count(id) == 0) {
        Tell({.kind = FindingKind::DeadHourType, .place = slotPlace, .value = id});
      }
      if (const auto times = GoodTimes(from, to, slotPlace)) {
        good.push_back({name, *times});
      }
    }
    CheckTogether(good, place, number);
  }

  /// A slot whose times are those of a day.
  struct NamedSlot {
    std::wstring name;
    qv::MinuteRange times;
  };

  /// The times of a slot, unless it has been told what is wrong with them.
  std::optional<qv::MinuteRange> GoodTimes(const std::wstring& from, const std::wstring& to,
                                           const std::wstring& place) {
    const auto start = GoodTime(from, place);
    const auto end = GoodTime(to, place);
    if (!start || !end) {
      return std::nullopt;
    }
    if (*start > *end) {
      Tell({.kind = FindingKind::StartAfterEnd, .place = place});
      return std::nullopt;
    }
    return qv::MinuteRange{*start, *end};
  }

  std::optional<int> GoodTime(const std::wstring& text, const std::wstring& place) {
    const QVWideString wide(text.c_str());
    const qv::TimeOfDay time = qv::TimeOf(wide);
    if (qv::NormalizeTime(wide) != wide) {
      Tell({.kind = FindingKind::MalformedTime, .place = place, .value = text});
      return std::nullopt;
    }
    if (qv::FaultOfTimes({time, time})) {
      Tell({.kind = FindingKind::TimeOutOfRange, .place = place, .value = text});
      return std::nullopt;
    }
    return time.Minutes();
  }

  /// What is wrong between the slots of a day; of gaps only where all of its slots are good.
  void CheckTogether(const std::vector<NamedSlot>& slots, const std::wstring& place,
                     unsigned slotsOfDay) {
    int covered = 0;
    bool isApart = true;
    for (auto slot = slots.begin(); slot != slots.end(); ++slot) {
      const auto other = std::find_if(slots.begin(), slot, [&](const NamedSlot& earlier) {
        return slot->times.Overlaps(earlier.times);
      });
      if (other != slot) {
        isApart = false;
        Tell({.kind = FindingKind::SlotsOverlap,
              .place = place + L"/" + slot->name,
              .value = other->name});
      }
      covered += slot->times.Length();
    }
    if (isApart && slots.size() == slotsOfDay && covered < qv::minutesOfDay) {
      Tell({.kind = FindingKind::DayGaps,
            .place = place,
            .value = std::to_wstring(qv::minutesOfDay - covered)});
    }
  }

  void CheckYear(const XmlNode& year, const std::set<std::wstring>& days) {
    for (auto month = year.ChildsBegin(); month != year.ChildsEnd(); ++month) {
      if (const auto number = NumberInTag(**month, L"month")) {
        CheckMonth(year.Value(qv::tag::Year), *number, **month, days);
      }
    }
  }

  void CheckMonth(const QVWideString& year, int month, const XmlNode& node,
                  const std::set<std::wstring>& days) {
    for (auto day = node.ChildsBegin(); day != node.ChildsEnd(); ++day) {
      const auto number = NumberInTag(**day, L"day");
      const std::wstring id((*day)->Value().ToView());
      if (number && days.count(id) == 0) {
        Tell({.kind = FindingKind::DeadDayType,
              .place = qv::Format(L"calendar/%s-%02d-%02d", {year, month, *number}),
              .value = id});
      }
    }
  }

  void Tell(Finding finding) {
    finding.file = m_file;
    m_findings.push_back(std::move(finding));
  }

  const XmlNode& m_root;
  std::wstring m_file;
  std::vector<Finding> m_findings;
};

}  // namespace

std::vector<Finding> CheckDocument(const XmlNode& root, const std::wstring& file) {
  return DocumentCheck(root, file).Run();
}

}  // namespace qvdisc
