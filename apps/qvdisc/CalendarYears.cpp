#include "apps/qvdisc/CalendarYears.h"

#include <algorithm>
#include <cstdint>
#include <map>

#include "calendar/CalendarTree.h"
#include "discriminator/Fields.h"
#include "tools/Nodes.h"
#include "tools/Numbers.h"

namespace qvdisc {
namespace {

using qv::CalendarDate;
using qv::XmlNode;

/// Finds day types by id. Each id is looked up once.
class DayTypesById {
 public:
  explicit DayTypesById(const XmlNode* dayTypes) : m_dayTypes(dayTypes) {}

  /// Null if there is none.
  const XmlNode* Of(const std::wstring& id) {
    const auto [known, isNew] = m_known.try_emplace(id);
    if (isNew && m_dayTypes) {
      known->second = m_dayTypes->NodeV(L"/day?id=%s?", id.c_str());
    }
    return known->second;
  }

 private:
  const XmlNode* m_dayTypes;
  std::map<std::wstring, const XmlNode*> m_known;
};

using IdsByDate = std::map<CalendarDate, std::wstring>;

IdsByDate IdsIn(const XmlNode& calendar, DayTypesById& dayTypes) {
  IdsByDate ids;
  qv::ForEachDate(calendar, [&](CalendarDate date, const QVWideString& text) {
    const std::wstring id(text.ToView());
    const auto [entry, isNew] = ids.try_emplace(date, id);
    if (!isNew && dayTypes.Of(id)) {
      entry->second = id;
    }
  });
  return ids;
}

void Add(CalendarDate date, const std::wstring& id, const XmlNode* dayType, CalendarYear& year) {
  auto type = std::find_if(year.types.begin(), year.types.end(),
                           [&](const TypedDates& typed) { return typed.id == id; });
  if (type == year.types.end()) {
    type = year.types.insert(type, {id, dayType, {}});
  }
  type->dates.push_back(date);
}

}  // namespace

int CalendarYear::Dates() const {
  std::size_t count = 0;
  for (const TypedDates& typed : types) {
    count += typed.dates.size();
  }
  return static_cast<int>(count);
}

std::vector<CalendarYear> YearsOf(const XmlNode& root) {
  const XmlNode* calendar = root.Node(qv::tag::Calendar);
  std::map<int, CalendarYear> years;
  for (const XmlNode& node : qv::ChildrenWithTag(calendar, qv::tag::Year)) {
    const auto number = static_cast<std::int16_t>(qv::Wtoi(node.Value(qv::tag::Year).ToView()));
    years[number].year = number;
  }
  DayTypesById dayTypes(root.Node(qv::tag::DayTypes));
  for (const auto& [date, id] : calendar ? IdsIn(*calendar, dayTypes) : IdsByDate()) {
    Add(date, id, dayTypes.Of(id), years[date.year]);
  }
  std::vector<CalendarYear> sorted;
  for (auto& [number, year] : years) {
    sorted.push_back(std::move(year));
  }
  return sorted;
}

}  // namespace qvdisc
