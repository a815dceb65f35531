#include "checks/CalendarCheck.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

#include "calendar/CalendarTree.h"
#include "discriminator/Fields.h"
#include "tools/Format.h"
#include "tools/Nodes.h"
#include "tools/Numbers.h"

namespace qv {
namespace {

/// Whether the tag is `word` with a number behind it, as "month12"; the number may be any.
bool IsNumbered(const XmlNode& node, std::wstring_view word) {
  const std::wstring_view tag = node.Tag().ToView();
  return tag.size() > word.size() && tag.starts_with(word) &&
         tag.find_first_not_of(L"0123456789", word.size()) == std::wstring_view::npos;
}

/// Whether `text` is digits behind at most a minus sign, of a number that 16 bits hold.
bool IsYear(std::wstring_view text) {
  const std::wstring_view digits = text.substr(text.starts_with(L'-') ? 1 : 0);
  const int year = Wtoi(text);
  using Years = std::numeric_limits<std::int16_t>;
  return !digits.empty() && digits.find_first_not_of(L"0123456789") == std::wstring_view::npos &&
         year >= Years::min() && year <= Years::max();
}

/// The look through one calendar.
class CalendarChecker {
 public:
  CalendarChecker(const PartIds& dayTypes, Findings& findings)
      : m_dayTypes(dayTypes), m_findings(findings) {
    m_marks.SetBrush({0, L"any"});
  }

  void CheckYear(const XmlNode& node) {
    const QVWideString text = node.Value(tag::Year);
    m_written = Wtoi(text.ToView());
    m_year = static_cast<std::int16_t>(m_written);
    if (!IsYear(text.ToView())) {
      Tell(FindingKind::WrongYear, Format(L"calendar/%s", {text}), text, Format(L"%d", {m_year}));
    }
    const NumberedChildren<12> months = MonthsOf(node);
    for (auto child = node.ChildsBegin(); child != node.ChildsEnd(); ++child) {
      if (IsNumbered(**child, L"month")) {
        CheckMonth(**child, months);
      }
    }
  }

  /// Tells how many dates the calendar dialog leaves out when it writes them.
  void CheckWalk() {
    const auto left = DatesBeyondWalk(m_marks);
    if (!left.empty()) {
      Tell(FindingKind::DatesBeyondWalk,
           Format(L"calendar/%d-%02d", {left.front().year, left.front().month}),
           QVWideString(Format(L"%d", {static_cast<int>(left.size())}).c_str()));
    }
  }

 private:
  void CheckMonth(const XmlNode& node, const NumberedChildren<12>& months) {
    const auto month = std::find(months.begin(), months.end(), &node);
    if (month == months.end()) {
      Tell(FindingKind::NoSuchMonth, Format(L"calendar/%d", {m_year}), node.Tag());
      return;
    }
    const int number = static_cast<int>(month - months.begin());
    const NumberedChildren<31> days = DaysOf(node);
    for (auto child = node.ChildsBegin(); child != node.ChildsEnd(); ++child) {
      if (IsNumbered(**child, L"day")) {
        const auto day = std::find(days.begin(), days.end(), *child);
        CheckDay({m_year, number, day == days.end() ? 0 : static_cast<int>(day - days.begin())},
                 **child);
      }
    }
  }

  void CheckDay(CalendarDate date, const XmlNode& node) {
    // A leap day needs the year as it is written and as it is narrowed.
    const int days = DaysIn(m_written, date.month);
    if (date.day > days || !ToDateTime(date).Valid()) {
      Tell(FindingKind::NoSuchDate, Format(L"calendar/%d-%02d", {date.year, date.month}),
           node.Tag());
    } else if (!m_dayTypes.contains(std::wstring(node.Value().ToView()))) {
      Tell(FindingKind::DeadDayType,
           Format(L"calendar/%d-%02d-%02d", {date.year, date.month, date.day}), node.Value());
    } else {
      m_marks.Select(ToDateTime(date));
    }
  }

  void Tell(FindingKind kind, std::wstring place, const QVWideString& value,
            std::wstring expected = {}) {
    m_findings.push_back({.kind = kind,
                          .place = std::move(place),
                          .value = std::wstring(value.ToView()),
                          .expected = std::move(expected)});
  }

  const PartIds& m_dayTypes;
  Findings& m_findings;
  CalendarMarks m_marks;
  int m_written = 0;  // the year as it stands in the document
  int m_year = 0;     // the same in 16 bits, as which it is read
};

}  // namespace

void CheckCalendar(const XmlNode* calendar, const PartIds& dayTypes, Findings& findings) {
  CalendarChecker checker(dayTypes, findings);
  for (const XmlNode& year : ChildrenWithTag(calendar, tag::Year)) {
    checker.CheckYear(year);
  }
  checker.CheckWalk();
}

}  // namespace qv
