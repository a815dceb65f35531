#include <algorithm>
#include <optional>
#include <set>
#include <string>

#include "apps/qvdisc/Check.h"
#include "discriminator/Fields.h"
#include "tools/Format.h"
#include "tools/Numbers.h"

namespace qvdisc {
namespace {

using qv::XmlNode;

std::wstring Field(const XmlNode& node, const wchar_t* tag) {
  return std::wstring(node.Value(tag, L"").ToView());
}

std::vector<const XmlNode*> ChildrenWithTag(const XmlNode* node, const wchar_t* tag) {
  std::vector<const XmlNode*> children;
  if (node) {
    std::copy_if(node->ChildsBegin(), node->ChildsEnd(), std::back_inserter(children),
                 [&](const XmlNode* child) { return child->Tag() == tag; });
  }
  return children;
}

/// The number behind `prefix` in the tag, as of "month12".
std::optional<int> NumberInTag(const XmlNode& node, std::wstring_view prefix) {
  const std::wstring_view tag = node.Tag().ToView();
  return tag.starts_with(prefix) ? std::optional(qv::Wtoi(tag.substr(prefix.size())))
                                 : std::nullopt;
}

class DocumentCheck {
 public:
  DocumentCheck(const XmlNode& root, std::wstring file) : m_root(root), m_file(std::move(file)) {}

  std::vector<Finding> Run() {
    const auto hours = Parts(qv::tag::HourTypes, qv::tag::Hour);
    const auto days = Parts(qv::tag::DayTypes, qv::tag::Day);
    for (const XmlNode* day : ChildrenWithTag(m_root.Node(qv::tag::DayTypes), qv::tag::Day)) {
      CheckSlots(*day, hours);
    }
    for (const XmlNode* year : ChildrenWithTag(m_root.Node(qv::tag::Calendar), qv::tag::Year)) {
      CheckYear(*year, days);
    }
    return std::move(m_findings);
  }

 private:
  /// The ids of the parts in a container; tells of ids and names that come twice.
  std::set<std::wstring> Parts(const wchar_t* container, const wchar_t* tag) {
    std::set<std::wstring> ids;
    std::set<std::wstring> names;
    for (const XmlNode* part : ChildrenWithTag(m_root.Node(container), tag)) {
      TellTwice(ids, *part, qv::tag::Id, container);
      TellTwice(names, *part, qv::tag::Name, container);
    }
    return ids;
  }

  void TellTwice(std::set<std::wstring>& known, const XmlNode& part, const wchar_t* field,
                 const wchar_t* container) {
    const std::wstring value = Field(part, field);
    if (!known.insert(value).second) {
      Tell({.kind = Word::DuplicatePart, .place = container, .value = value, .expected = field});
    }
  }

  void CheckSlots(const XmlNode& day, const std::set<std::wstring>& hours) {
    unsigned number = 0;
    for (const XmlNode* slot : ChildrenWithTag(&day, qv::tag::Slot)) {
      ++number;
      const std::wstring id = Field(*slot, qv::tag::Id);
      if (hours.count(id) == 0) {
        const std::wstring place =
            qv::Format(L"dayTypes/%s/slot %u (%s-%s)",
                       {day.Value(qv::tag::Name, L""), number, slot->Value(qv::tag::From, L""),
                        slot->Value(qv::tag::To, L"")});
        Tell({.kind = Word::DeadHourType, .place = place, .value = id});
      }
    }
  }

  void CheckYear(const XmlNode& year, const std::set<std::wstring>& days) {
    for (auto month = year.ChildsBegin(); month != year.ChildsEnd(); ++month) {
      const auto monthNumber = NumberInTag(**month, L"month");
      for (auto day = (*month)->ChildsBegin(); monthNumber && day != (*month)->ChildsEnd(); ++day) {
        const auto dayNumber = NumberInTag(**day, L"day");
        const std::wstring id((*day)->Value().ToView());
        if (dayNumber && days.count(id) == 0) {
          const std::wstring date = qv::Format(
              L"calendar/%s-%02d-%02d", {year.Value(qv::tag::Year, L""), *monthNumber, *dayNumber});
          Tell({.kind = Word::DeadDayType, .place = date, .value = id});
        }
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
