#include "apps/qvdisc/DateRanges.h"

#include <cstdlib>

#include "apps/qvdisc/Words.h"

namespace qvdisc {
namespace {

using qv::CalendarDate;

CalendarDate DayAfter(CalendarDate date) {
  constexpr int lastMonth = 12;
  if (date.day < DaysOfMonth(ToDateTime(date))) {
    return {date.year, date.month, date.day + 1};
  }
  return date.month < lastMonth ? CalendarDate{date.year, date.month + 1, 1}
                                : CalendarDate{date.year + 1, 1, 1};
}

std::wstring RangeAsText(const DateRange& range, qv::Language language) {
  const std::wstring from = DateText(range.from);
  return range.from == range.to
             ? from
             : Words(Word::DatesFromTo, language, {from.c_str(), DateText(range.to).c_str()});
}

}  // namespace

std::wstring DateText(CalendarDate date) {
  return qv::Format(date.year < 0 ? L"-%04d-%02d-%02d" : L"%04d-%02d-%02d",
                    {std::abs(date.year), date.month, date.day});
}

std::vector<CalendarDate> DatesOf(const DateRange& range) {
  std::vector<CalendarDate> dates;
  for (CalendarDate date = range.from; date <= range.to; date = DayAfter(date)) {
    dates.push_back(date);
  }
  return dates;
}

std::vector<DateRange> RangesOf(const std::vector<CalendarDate>& dates) {
  std::vector<DateRange> ranges;
  for (const CalendarDate date : dates) {
    if (!ranges.empty() && DayAfter(ranges.back().to) == date) {
      ranges.back().to = date;
    } else {
      ranges.push_back({date, date});
    }
  }
  return ranges;
}

std::wstring RangesAsText(const std::vector<CalendarDate>& dates, qv::Language language) {
  std::wstring text;
  for (const DateRange& range : RangesOf(dates)) {
    text += (text.empty() ? L"" : L", ") + RangeAsText(range, language);
  }
  return text;
}

}  // namespace qvdisc
