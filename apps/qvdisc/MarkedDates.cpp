#include "apps/qvdisc/MarkedDates.h"

#include <nlohmann/json.hpp>

#include "apps/qvdisc/CalendarReport.h"
#include "apps/qvdisc/Words.h"

namespace qvdisc {
namespace {

using Json = nlohmann::ordered_json;

void AddLeftOut(Json& json, const std::vector<qv::CalendarDate>& dates, const char* reason) {
  for (Json& range : RangesAsJson(dates)) {
    range["reason"] = reason;
    json.push_back(std::move(range));
  }
}

}  // namespace

Json MarkedAsJson(const MarkedDates& marked) {
  Json leftOut = Json::array();
  AddLeftOut(leftOut, marked.beyondWalk, "beyond-walk");
  AddLeftOut(leftOut, marked.withoutType, "no-day-type");
  return {{"dayType", marked.dayType ? Json(Utf8(*marked.dayType)) : Json(nullptr)},
          {"dates", marked.dates},
          {"leftOut", std::move(leftOut)}};
}

std::wstring MarkedAsLine(const MarkedDates& marked, qv::Language language) {
  const std::wstring dates = CountedDates(marked.dates, language);
  return marked.dayType ? Words(Word::MarkedAs, language, {dates.c_str(), marked.dayType->c_str()})
                        : Words(Word::Unmarked, language, {dates.c_str()});
}

}  // namespace qvdisc
