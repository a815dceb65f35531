#include "calendar/CalendarTree.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "discriminator/Fields.h"
#include "tools/Format.h"
#include "tools/Nodes.h"
#include "tools/Numbers.h"

namespace qv {
namespace {

constexpr std::wstring_view monthWord = L"month";
constexpr std::wstring_view dayWord = L"day";

/// The number in a tag made as from "month%d"; 0 for any other tag.
int NumberInTag(std::wstring_view tag, std::wstring_view word) {
  const std::wstring_view digits = tag.substr(std::min(word.size(), tag.size()));
  const bool isNumber = tag.starts_with(word) && !digits.empty() && digits.size() <= 2 &&
                        digits.front() != L'0' &&
                        digits.find_first_not_of(L"0123456789") == std::wstring_view::npos;
  return isNumber ? Wtoi(digits) : 0;
}

template <int last>
NumberedChildren<last> Numbered(const XmlNode& node, std::wstring_view word) {
  NumberedChildren<last> children{};
  for (auto child = node.ChildsBegin(); child != node.ChildsEnd(); ++child) {
    const int number = NumberInTag((*child)->Tag().ToView(), word);
    if (number >= 1 && number <= last && !children[static_cast<std::size_t>(number)]) {
      children[static_cast<std::size_t>(number)] = *child;
    }
  }
  return children;
}

/// Finds the brush that an id of the file stands for. Each id is looked up once.
class BrushesById {
 public:
  BrushesById(const XmlNode& dayTypes, const std::vector<ColouredType>& rows)
      : m_dayTypes(dayTypes), m_rows(rows) {}

  /// Null if it stands for none.
  const Brush* Of(const QVWideString& id) {
    const auto [known, isNew] = m_known.try_emplace(std::wstring(id.ToView()));
    if (isNew) {
      known->second = LookUp(id);
    }
    return known->second ? &*known->second : nullptr;
  }

 private:
  std::optional<Brush> LookUp(const QVWideString& id) const {
    const XmlNode* day = m_dayTypes.NodeV(L"/day?id=%s?", id);
    if (!day) {
      return std::nullopt;
    }
    const QVWideString name = day->Value(tag::Name);
    const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                  [&](const ColouredType& type) { return type.name == name; });
    return row == m_rows.end() ? std::nullopt : std::optional(Brush{row->colour, name});
  }

  const XmlNode& m_dayTypes;
  const std::vector<ColouredType>& m_rows;
  std::map<std::wstring, std::optional<Brush>> m_known;
};

using VisitDate = std::function<void(CalendarDate date, const QVWideString& id)>;

void VisitMonth(CalendarDate first, const XmlNode& month, const VisitDate& visit) {
  const NumberedChildren<31> days = DaysOf(month);
  const int count = DaysOfMonth(ToDateTime(first));
  for (int day = 1; day <= count; ++day) {
    const XmlNode* node = days[static_cast<std::size_t>(day)];
    const CalendarDate date{static_cast<std::int16_t>(first.year), first.month, day};
    // The 29th of February may be one of the year as it is written and not of the narrowed one.
    if (node && ToDateTime(date).Valid()) {
      visit(date, node->Value());
    }
  }
}

/// Finds the id under which the file knows a brush. Each brush is looked up once.
class IdsOfBrushes {
 public:
  explicit IdsOfBrushes(const XmlNode& dayTypes) : m_dayTypes(dayTypes) {}

  /// Null if no day type bears its name.
  const QVWideString* Of(const Brush& brush) {
    const auto [known, isNew] = m_known.try_emplace(&brush);
    if (isNew) {
      if (const XmlNode* day = m_dayTypes.NodeV(L"/day?name=%s?", brush.text)) {
        known->second = day->Value(tag::Id);
      }
    }
    return known->second ? &*known->second : nullptr;
  }

 private:
  const XmlNode& m_dayTypes;
  std::map<const Brush*, std::optional<QVWideString>> m_known;
};

/// The walk over the months from the first mark on to behind the last one.
class MonthWalk {
 public:
  explicit MonthWalk(const CalendarMarks& marks) : m_last(marks.Last()) {
    if (const auto first = marks.First()) {
      m_date = *first;
    }
  }

  bool IsOver() const { return !m_last || m_date > *m_last; }
  CalendarDate Date() const { return m_date; }
  /// The day of the month stays, also where the month doesn't have it.
  void NextMonth() {
    const bool isDecember = m_date.month == 12;
    m_date = {m_date.year + (isDecember ? 1 : 0), isDecember ? 1 : m_date.month + 1, m_date.day};
  }

 private:
  std::optional<CalendarDate> m_last;
  CalendarDate m_date;
};

bool IsInMonth(CalendarDate date, CalendarDate month) {
  return date.year == month.year && date.month == month.month;
}

void RemoveYears(XmlNode& calendar) {
  while (XmlNode* year = calendar.Node(tag::Year)) {
    calendar.RemoveChild(year);
  }
}

XmlNode& NewYear(XmlNode& calendar, int number) {
  XmlNode& year = *calendar.NewChild(tag::Year, nullptr);
  year.SetValue(tag::Year, Format(L"%d", {number}).c_str());
  return year;
}

using Marks = std::vector<CalendarMarks::Mark>;

/// Writes the marks from `mark` on that lie in the month of `walked`; gives the first behind it.
Marks::const_iterator WriteMonth(Marks::const_iterator mark, Marks::const_iterator end,
                                 CalendarDate walked, IdsOfBrushes& ids, XmlNode& year) {
  XmlNode* month = nullptr;
  for (; mark != end && IsInMonth(mark->date, walked); ++mark) {
    if (const QVWideString* id = ids.Of(mark->brush)) {
      month = month ? month : year.NewChild(Format(L"month%d", {walked.month}).c_str(), nullptr);
      month->NewChild(Format(L"day%d", {mark->date.day}).c_str(), nullptr)->SetValue(*id);
    }
  }
  return mark;
}

Marks AllOf(const CalendarMarks& marks) {
  Marks all;
  marks.ForEach([&](const CalendarMarks::Mark& mark) { all.push_back(mark); });
  return all;
}

}  // namespace

NumberedChildren<12> MonthsOf(const XmlNode& year) { return Numbered<12>(year, monthWord); }

NumberedChildren<31> DaysOf(const XmlNode& month) { return Numbered<31>(month, dayWord); }

void ForEachDate(const XmlNode& calendar, const VisitDate& visit) {
  for (const XmlNode& year : ChildrenWithTag(calendar, tag::Year)) {
    const int number = Wtoi(year.Value(tag::Year).ToView());
    const NumberedChildren<12> months = MonthsOf(year);
    for (int month = 1; month <= 12; ++month) {
      if (const XmlNode* node = months[static_cast<std::size_t>(month)]) {
        VisitMonth({number, month, 1}, *node, visit);
      }
    }
  }
}

CalendarMarks ReadCalendar(Calendar calendar, DayTypes dayTypes,
                           const std::vector<ColouredType>& rows) {
  CalendarMarks marks;
  BrushesById brushes(dayTypes.Node(), rows);
  ForEachDate(calendar.Node(), [&](CalendarDate date, const QVWideString& id) {
    if (const Brush* brush = brushes.Of(id)) {
      marks.SetBrush(*brush);
      marks.Select(ToDateTime(date));
    }
  });
  marks.SetBrush({});
  return marks;
}

void WriteCalendar(const CalendarMarks& marks, DayTypes dayTypes, Calendar calendar) {
  RemoveYears(calendar.Node());
  IdsOfBrushes ids(dayTypes.Node());
  const Marks all = AllOf(marks);
  auto mark = all.begin();
  XmlNode* year = nullptr;
  // Each year is made anew and each month met once, so that no node has to be looked for.
  for (MonthWalk walk(marks); !walk.IsOver(); walk.NextMonth()) {
    if (!year || walk.Date().month == 1) {
      year = &NewYear(calendar.Node(), walk.Date().year);
    }
    mark = WriteMonth(mark, all.end(), walk.Date(), ids, *year);
  }
}

std::vector<CalendarDate> DatesBeyondWalk(const CalendarMarks& marks) {
  MonthWalk walk(marks);
  while (!walk.IsOver()) {
    walk.NextMonth();
  }
  std::vector<CalendarDate> dates;
  marks.ForEach([&](const CalendarMarks::Mark& mark) {
    if (IsInMonth(mark.date, walk.Date())) {
      dates.push_back(mark.date);
    }
  });
  return dates;
}

}  // namespace qv
