#include "checks/CalendarCheck.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "discriminator/Fields.h"
#include "tools/Format.h"
#include "tools/Nodes.h"
#include "tools/Numbers.h"

namespace qv {
namespace {

/// The number behind `prefix` in the tag, as of "month12"; nothing for any other tag.
std::optional<int> NumberInTag(const XmlNode& node, std::wstring_view prefix) {
  const std::wstring_view tag = node.Tag().ToView();
  const std::wstring_view digits = tag.substr(std::min(prefix.size(), tag.size()));
  const bool isNumbered = tag.starts_with(prefix) && !digits.empty() &&
                          digits.find_first_not_of(L"0123456789") == std::wstring_view::npos;
  return isNumbered ? std::optional(Wtoi(digits)) : std::nullopt;
}

/// The month of a calendar that a node holds.
struct Month {
  QVWideString year;
  int number = 0;
};

void CheckMonth(const Month& month, const XmlNode& node, const PartIds& dayTypes,
                Findings& findings) {
  for (auto day = node.ChildsBegin(); day != node.ChildsEnd(); ++day) {
    const auto number = NumberInTag(**day, L"day");
    const std::wstring id((*day)->Value().ToView());
    if (number && !dayTypes.contains(id)) {
      findings.push_back(
          {.kind = FindingKind::DeadDayType,
           .place = Format(L"calendar/%s-%02d-%02d", {month.year, month.number, *number}),
           .value = id});
    }
  }
}

}  // namespace

void CheckCalendar(const XmlNode* calendar, const PartIds& dayTypes, Findings& findings) {
  for (const XmlNode& year : ChildrenWithTag(calendar, tag::Year)) {
    for (auto month = year.ChildsBegin(); month != year.ChildsEnd(); ++month) {
      if (const auto number = NumberInTag(**month, L"month")) {
        CheckMonth({year.Value(tag::Year), *number}, **month, dayTypes, findings);
      }
    }
  }
}

}  // namespace qv
