#include "apps/qvdisc/CalendarReport.h"

#include <nlohmann/json.hpp>

#include "apps/qvdisc/CalendarYears.h"
#include "apps/qvdisc/DateRanges.h"
#include "apps/qvdisc/Words.h"
#include "discriminator/Fields.h"
#include "tools/Nodes.h"

namespace qvdisc {
namespace {

using Json = nlohmann::ordered_json;

std::wstring NameOf(const TypedDates& typed) { return qv::FieldOf(*typed.dayType, qv::tag::Name); }

Json Typed(const TypedDates& typed) {
  return {{"dayTypeId", Utf8(typed.id)},
          {"dayType", typed.dayType ? Json(Utf8(NameOf(typed))) : Json(nullptr)},
          {"dates", typed.dates.size()},
          {"ranges", RangesAsJson(typed.dates)}};
}

Json Year(const CalendarYear& year) {
  Json types = Json::array();
  for (const TypedDates& typed : year.types) {
    types.push_back(Typed(typed));
  }
  return {{"year", year.year}, {"dates", year.Dates()}, {"dayTypes", std::move(types)}};
}

std::wstring Counted(const std::wstring& what, int count, qv::Language language) {
  return L"  " + what + L": " + CountedDates(count, language);
}

}  // namespace

std::wstring CountedDates(int count, qv::Language language) {
  return count == 1 ? Words(Word::OneDate, language) : Words(Word::Dates, language, {count});
}

Json RangesAsJson(const std::vector<qv::CalendarDate>& dates) {
  Json ranges = Json::array();
  for (const DateRange& range : RangesOf(dates)) {
    ranges.push_back({{"from", Utf8(DateText(range.from))}, {"to", Utf8(DateText(range.to))}});
  }
  return ranges;
}

Json CalendarAsJson(const qv::XmlNode& root) {
  Json years = Json::array();
  for (const CalendarYear& year : YearsOf(root)) {
    years.push_back(Year(year));
  }
  return {{"years", std::move(years)}};
}

std::vector<std::wstring> CalendarAsLines(const qv::XmlNode& root, qv::Language language) {
  std::vector<std::wstring> lines;
  for (const CalendarYear& year : YearsOf(root)) {
    lines.push_back(Counted(std::to_wstring(year.year), year.Dates(), language));
    int unknown = 0;
    for (const TypedDates& typed : year.types) {
      const int count = static_cast<int>(typed.dates.size());
      if (typed.dayType) {
        lines.push_back(L"  " + Counted(NameOf(typed), count, language));
      } else {
        unknown += count;
      }
    }
    if (unknown > 0) {
      lines.push_back(L"  " + Counted(Words(Word::NoKnownDayType, language), unknown, language));
    }
  }
  return lines;
}

}  // namespace qvdisc
